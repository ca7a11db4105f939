#include "toolkit/fronts/qt/container.h"

#include "toolkit/fronts/qt/control.h"
#include "toolkit/fronts/qt/fitting.h"

#include <QCoreApplication>
#include <QEvent>

#include <algorithm>
#include <iterator>
#include <utility>

namespace tavrik::front::qt {

void Container::add(Control& control) {
    controls_.push_back(&control);
    arranged_.reset();
}

void Container::remove(Control& control) {
    std::erase(controls_, &control);
    arrange_later();
}

void Container::arrange_later() {
    arranged_.reset();
    if (std::exchange(arranges_later_, true)) return;
    // Qt delivers it before it paints.
    QCoreApplication::postEvent(&widget_, new QEvent(QEvent::LayoutRequest));
}

void Container::arrange() {
    arranges_later_ = false;
    if (std::exchange(arranged_, widget_.size()) == widget_.size()) return;
    std::vector<Control*> shown;
    std::copy_if(controls_.begin(), controls_.end(), std::back_inserter(shown),
                 [](const Control* control) { return control->is_shown(); });
    std::vector<QRect> declared;
    for (const Control* control : shown) declared.push_back(control->declared_bounds());

    std::vector<QRect> rects = declared;
    for (std::size_t i = 0; i < shown.size(); ++i) {
        rects[i] = fit_height(declared, i, shown[i]->wanted_height(), widget_.height());
    }
    for (std::size_t i = 0; i < shown.size(); ++i) {
        rects[i] = fit_width(rects, i, shown[i]->wanted_width(), widget_.width());
        shown[i]->place(rects[i]);
    }
}

void Container::collect_in_tab_order(std::vector<Control*>& controls) const {
    std::vector<Control*> order = controls_;
    std::stable_sort(order.begin(), order.end(),
                     [](const Control* a, const Control* b) { return a->tab_index() < b->tab_index(); });
    for (Control* const control : order) {
        controls.push_back(control);
        control->container().collect_in_tab_order(controls);
    }
}

void Container::retire_all() {
    for (Control* const control : std::exchange(controls_, {})) control->retire();
}

}  // namespace tavrik::front::qt
