#include "toolkit/fronts/qt/cursor.h"

#include <QImage>
#include <QPixmap>

#include <array>

namespace tavrik::front::qt {
namespace {

// In the order of CursorShape.
constexpr std::array kShapes{
    Qt::ArrowCursor,     Qt::IBeamCursor,      Qt::CrossCursor,     Qt::WaitCursor,    Qt::PointingHandCursor,
    Qt::OpenHandCursor,  Qt::ClosedHandCursor, Qt::SizeHorCursor,   Qt::SizeVerCursor, Qt::SizeFDiagCursor,
    Qt::SizeBDiagCursor, Qt::SizeAllCursor,    Qt::ForbiddenCursor, Qt::BlankCursor,
};
static_assert(kShapes.size() == static_cast<std::size_t>(CursorShape::kBlank) + 1);

QCursor of_image(const CursorImage& image) {
    const QImage pixels(reinterpret_cast<const uchar*>(image.pixels.data()), image.width, image.height,
                        QImage::Format_ARGB32);
    return QCursor(QPixmap::fromImage(pixels.copy()), image.hot_spot.left, image.hot_spot.top);
}

}  // namespace

QCursor to_qt(const Cursor& cursor) {
    return cursor.image ? of_image(*cursor.image) : QCursor(kShapes.at(static_cast<std::size_t>(cursor.shape)));
}

void apply_cursor(QWidget& widget, const std::optional<Cursor>& cursor) {
    if (cursor) {
        widget.setCursor(to_qt(*cursor));
    } else if (widget.testAttribute(Qt::WA_SetCursor)) {
        widget.unsetCursor();
    }
}

}  // namespace tavrik::front::qt
