#include "toolkit/fronts/qt/placement.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

namespace tavrik::front::qt {
namespace {

constexpr QPoint kStaggerStep(24, 24);

QPoint centred_in(const QRect& area, QSize size) {
    QRect rect(QPoint(), size);
    rect.moveCenter(area.center());
    return rect.topLeft();
}

QPoint centred_on(const QScreen& screen, QSize size) { return centred_in(screen.availableGeometry(), size); }

}  // namespace

std::optional<QPoint> opening_position(Placement placement, QSize size, const QWidget* in_front) {
    const QScreen& main_screen = *QGuiApplication::primaryScreen();
    switch (placement) {
        case Placement::kDefault:
        case Placement::kWhereTold:
            return std::nullopt;
        case Placement::kParent:
            return in_front ? centred_in(in_front->geometry(), size) : centred_on(main_screen, size);
        case Placement::kMainScreen:
            return centred_on(main_screen, size);
        case Placement::kParentScreen:
            return centred_on(in_front ? *in_front->screen() : main_screen, size);
        case Placement::kStagger:
            return (in_front ? in_front->geometry() : main_screen.availableGeometry()).topLeft() + kStaggerStep;
    }
    return std::nullopt;
}

}  // namespace tavrik::front::qt
