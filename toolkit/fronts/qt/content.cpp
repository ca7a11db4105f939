#include "toolkit/fronts/qt/content.h"

#include "toolkit/fronts/qt/fitting.h"

#include <QCoreApplication>
#include <QEvent>

#include <algorithm>
#include <functional>
#include <iterator>
#include <utility>

namespace tavrik::front::qt {
namespace {

std::vector<QRect> without(std::size_t index, std::vector<QRect> rects) {
    rects.erase(rects.begin() + static_cast<std::ptrdiff_t>(index));
    return rects;
}

}  // namespace

Content::Content(QWidget* parent) : QWidget(parent) {}

Button* Content::add_button(ButtonListener& listener) {
    auto* const button = new Button(listener, this);
    buttons_.push_back(button);
    return button;
}

void Content::remove_button(Button& button) {
    std::erase(buttons_, &button);
    std::erase(tab_order_, &button);
    button.retire();
    arrange_later();
}

void Content::arrange_later() {
    // Qt merges requests that wait, and delivers them before it paints.
    QCoreApplication::postEvent(this, new QEvent(QEvent::LayoutRequest));
}

void Content::arrange() {
    place_buttons();
    order_tabs();
    focus_first_if_none();
}

Button* Content::default_button() const { return find_usable(&ButtonDescription::is_default); }
Button* Content::cancel_button() const { return find_usable(&ButtonDescription::is_cancel); }

void Content::retire() {
    for (Button* const button : std::exchange(buttons_, {})) button->retire();
    tab_order_.clear();
}

bool Content::event(QEvent* event) {
    if (event->type() != QEvent::LayoutRequest) return QWidget::event(event);
    arrange();
    return true;
}

void Content::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::StyleChange || event->type() == QEvent::FontChange) arrange_later();
}

void Content::resizeEvent(QResizeEvent*) { arrange(); }

void Content::place_buttons() {
    std::vector<Button*> shown;
    std::copy_if(buttons_.begin(), buttons_.end(), std::back_inserter(shown),
                 [](const Button* button) { return button->description().visible; });

    std::vector<QRect> rects;
    for (const Button* button : shown) rects.push_back(button->declared_bounds());

    const std::vector<QRect> declared = rects;
    for (std::size_t i = 0; i < shown.size(); ++i) {
        rects[i] = fit_height(declared[i], shown[i]->wanted_height(), without(i, declared), height());
    }
    for (std::size_t i = 0; i < shown.size(); ++i) {
        rects[i] = fit_width(rects[i], shown[i]->wanted_width(), without(i, rects), width());
        shown[i]->place(rects[i]);
    }
}

void Content::order_tabs() {
    std::vector<Button*> order = buttons_;
    std::stable_sort(order.begin(), order.end(), [](const Button* a, const Button* b) {
        return a->description().tab_index < b->description().tab_index;
    });
    if (order == tab_order_) return;

    for (std::size_t i = 1; i < order.size(); ++i) setTabOrder(order[i - 1], order[i]);
    tab_order_ = std::move(order);
}

void Content::focus_first_if_none() {
    if (!isVisible() || window()->focusWidget()) return;
    const auto first = std::find_if(tab_order_.begin(), tab_order_.end(), std::mem_fn(&Button::takes_part));
    if (first != tab_order_.end()) (*first)->setFocus(Qt::OtherFocusReason);
}

Button* Content::find_usable(bool ButtonDescription::*mark) const {
    const auto found = std::find_if(buttons_.begin(), buttons_.end(), [mark](const Button* button) {
        return button->takes_part() && button->description().*mark;
    });
    return found == buttons_.end() ? nullptr : *found;
}

}  // namespace tavrik::front::qt
