#include "toolkit/fronts/qt/window_face.h"

#include "toolkit/fronts/qt/button_face.h"

namespace tavrik::front::qt {

QtWindowFace::QtWindowFace(WindowListener& listener) : window_(new Window(listener)) {}

void QtWindowFace::apply(const WindowDescription& window) { window_->apply(window); }

void QtWindowFace::apply_menus(std::span<const MenuDescription> menus) { window_->apply_menus(menus); }

std::unique_ptr<ButtonFace> QtWindowFace::make_button(ButtonListener& listener) {
    return std::make_unique<QtButtonFace>(window_->content(), listener);
}

void QtWindowFace::bring_to_front() { window_->bring_to_front(); }

}  // namespace tavrik::front::qt
