#include "toolkit/fronts/qt/window_face.h"

#include <QCursor>

namespace tavrik::front::qt {

QtWindowFace::QtWindowFace(WindowListener& listener) : window_(new Window(listener)) {}

void QtWindowFace::apply(const WindowDescription& window) { window_->apply(window); }

void QtWindowFace::apply_menus(std::span<const MenuDescription> menus) { window_->apply_menus(menus); }

void QtWindowFace::bring_to_front() { window_->bring_to_front(); }

void QtWindowFace::clear_focus() { window_->clear_focus(); }

void QtWindowFace::refresh(const Rect* part) { update_part(window_->content(), part); }

void QtWindowFace::update_now() { window_->content().repaint(); }

std::optional<Point> QtWindowFace::pointer() {
    const QPoint at = window_->content().mapFromGlobal(QCursor::pos());
    return Point{at.x(), at.y()};
}

std::uintptr_t QtWindowFace::handle() { return window_->testAttribute(Qt::WA_WState_Created) ? window_->winId() : 0; }

void QtWindowFace::set_owner(WindowFace* owner) {
    window_->set_owner(owner ? &static_cast<QtWindowFace*>(owner)->window() : nullptr);
}

Container& QtWindowFace::container() { return window_->content().container(); }

}  // namespace tavrik::front::qt
