#include "toolkit/fronts/qt/cursor.h"

#include <QImage>
#include <QPixmap>

#include <algorithm>

namespace tavrik::front::qt {
namespace {

Qt::CursorShape to_qt(CursorShape shape) {
    switch (shape) {
        case CursorShape::kArrow:
            return Qt::ArrowCursor;
        case CursorShape::kIBeam:
            return Qt::IBeamCursor;
        case CursorShape::kCross:
            return Qt::CrossCursor;
        case CursorShape::kWait:
            return Qt::WaitCursor;
        case CursorShape::kPointingHand:
            return Qt::PointingHandCursor;
        case CursorShape::kOpenHand:
            return Qt::OpenHandCursor;
        case CursorShape::kClosedHand:
            return Qt::ClosedHandCursor;
        case CursorShape::kResizeHorizontal:
            return Qt::SizeHorCursor;
        case CursorShape::kResizeVertical:
            return Qt::SizeVerCursor;
        case CursorShape::kResizeUpLeft:
            return Qt::SizeFDiagCursor;
        case CursorShape::kResizeUpRight:
            return Qt::SizeBDiagCursor;
        case CursorShape::kResizeAll:
            return Qt::SizeAllCursor;
        case CursorShape::kForbidden:
            return Qt::ForbiddenCursor;
        case CursorShape::kBlank:
            return Qt::BlankCursor;
    }
    return Qt::ArrowCursor;
}

}  // namespace

QCursor to_qt(const Cursor& cursor) {
    if (!cursor.image) return to_qt(cursor.shape);
    const CursorImage& described = *cursor.image;
    QImage image(described.width, described.height, QImage::Format_ARGB32);
    auto row = described.pixels.begin();
    for (int y = 0; y < described.height; ++y, row += described.width) {
        std::copy_n(row, described.width, reinterpret_cast<std::uint32_t*>(image.scanLine(y)));
    }
    return QCursor(QPixmap::fromImage(image), described.hot_spot.left, described.hot_spot.top);
}

}  // namespace tavrik::front::qt
