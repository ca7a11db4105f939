#include "toolkit/fronts/qt/window_face.h"

#include "toolkit/fronts/qt/button_face.h"

#include <QCursor>

namespace tavrik::front::qt {

QtWindowFace::QtWindowFace(WindowListener& listener) : window_(new Window(listener)) {}

void QtWindowFace::apply(const WindowDescription& window) { window_->apply(window); }

void QtWindowFace::apply_menus(std::span<const MenuDescription> menus) { window_->apply_menus(menus); }

std::unique_ptr<ButtonFace> QtWindowFace::make_button(ButtonListener& listener) {
    return std::make_unique<QtButtonFace>(window_->content(), listener);
}

void QtWindowFace::bring_to_front() { window_->bring_to_front(); }

void QtWindowFace::clear_focus() { window_->clear_focus(); }

void QtWindowFace::refresh(const Rect* part) {
    part ? window_->content().update(part->left, part->top, part->width, part->height) : window_->content().update();
}

void QtWindowFace::update_now() { window_->content().repaint(); }

std::optional<Point> QtWindowFace::pointer() {
    const QPoint at = window_->content().mapFromGlobal(QCursor::pos());
    return Point{at.x(), at.y()};
}

std::uintptr_t QtWindowFace::handle() { return window_->testAttribute(Qt::WA_WState_Created) ? window_->winId() : 0; }

void QtWindowFace::set_owner(WindowFace* owner) {
    window_->set_owner(owner ? &static_cast<QtWindowFace*>(owner)->window() : nullptr);
}

}  // namespace tavrik::front::qt
