#include "toolkit/core/page_panel.h"

#include "toolkit/core/pane.h"
#include "toolkit/core/reflection.h"
#include "toolkit/core/window.h"

#include <tavrik/exception.h>
#include <tavrik/fields.h>
#include <tavrik/page_panel.h>

#include <algorithm>
#include <string>
#include <vector>

namespace tavrik {
namespace core {
namespace {

constinit Property<std::int32_t> panel_count{"PagePanel", "PanelCount"};
constinit Property<std::int32_t> page_of_control{"Control", "TabPanelIndex"};
constinit Operation<void()> call_change{"PagePanel", "_CallChange", "%%"};
constinit Operation<void()> close_control{"Control", "Close", "%%"};

[[noreturn]] void raise_no_page(std::int32_t page) {
    RuntimeRaise("OutOfBoundsException", "the panel has no page " + std::to_string(page));
}

// What lies in it is closed first.
void close_with_children(ControlState& control) {
    const Ref<Object> kept(control.self());
    std::vector<Ref<Object>> inside;
    for (const ControlState* const child : control.children()) inside.emplace_back(child->self());
    for (const Ref<Object>& child : inside) {
        ControlState& state = control_state(child.object());
        if (state.parent() == &control) close_with_children(state);
    }
    close_control(kept.object());
}

}  // namespace

std::int32_t PagePanelState::count() const { return panel_count.get(self()); }

std::int32_t PagePanelState::value() const { return std::clamp(value_, 0, std::max(count() - 1, 0)); }

void PagePanelState::need_page(std::int32_t page) const {
    if (page < 0 || page >= count()) raise_no_page(page);
}

void PagePanelState::store_count(std::int32_t count) { panel_count.set(self(), count); }

void PagePanelState::set_value(std::int32_t page) {
    if (is_complete()) need_page(page);
    bring_to_front(page);
}

void PagePanelState::bring_to_front(std::int32_t page) {
    const std::int32_t before = value();
    value_ = page;
    if (value() == before) return;
    tell_pages();
    raise_change();
}

void PagePanelState::append_page(std::string_view caption) { insert_page(count(), caption); }

void PagePanelState::insert_page(std::int32_t page, std::string_view caption) {
    const std::int32_t before = count();
    if (page < 0 || page > before) raise_no_page(page);
    const bool shown_moves = before > 0 && page <= value();
    value_ = value() + (shown_moves ? 1 : 0);
    page_inserted(page, caption);
    store_count(before + 1);
    move_children(page, 1);
    tell_pages();
    if (before == 0) raise_change();
}

void PagePanelState::remove_page(std::int32_t page) {
    need_page(page);
    const Ref<Object> kept(self());
    close_children(page);
    need_page(page);  // closing runs the program's code
    const std::int32_t shown = value();
    page_removed(page);
    store_count(count() - 1);
    value_ = shown > page ? shown - 1 : shown;
    move_children(page + 1, -1);
    tell_pages();
    if (shown == page) raise_change();
}

bool PagePanelState::shows(const ControlState& child) const {
    if (child.panel_index() < 0) return true;
    return child.panel_index() == value() && value() < count();
}

void PagePanelState::look_at_stored_properties() {
    const bool other_page = told_count_ >= 0 && value() != told_value_;
    if (!other_page && count() == told_count_ && !has_new_looks()) return;
    value_ = value();
    tell_pages();
    if (other_page) raise_change();
}

bool PagePanelState::is_complete() const { return window() == nullptr || window_state(window()).opened; }

void PagePanelState::move_children(std::int32_t first_page, std::int32_t delta) {
    for (const ControlState* const child : children()) {
        const std::int32_t page = child->panel_index();
        if (page >= first_page) page_of_control.set(child->self(), page + delta);
    }
}

void PagePanelState::close_children(std::int32_t page) {
    std::vector<Ref<Object>> on_page;
    for (const ControlState* const child : children()) {
        if (child->panel_index() == page) on_page.emplace_back(child->self());
    }
    for (const Ref<Object>& child : on_page) {
        ControlState& state = control_state(child.object());
        if (state.parent() == this) close_with_children(state);
    }
}

void PagePanelState::tell_pages() {
    told_count_ = count();
    told_value_ = value();
    changed();
    children_changed();
}

void PagePanelState::raise_change() {
    if (is_complete()) call_change(self());
}

PagePanelState& page_panel_state(Object* panel) { return static_cast<PagePanelState&>(control_state(panel)); }

std::unique_ptr<ControlState> make_page_panel_state(Object* panel) { return std::make_unique<PagePanelState>(panel); }

}  // namespace core

using core::page_panel_state;

void PagePanelCreatePane(Object* panel) { core::create_pane(panel); }
void PagePanelAppendPage(Object* panel) { page_panel_state(panel).append_page(); }
void PagePanelInsertPage(Object* panel, std::int32_t page) { page_panel_state(panel).insert_page(page); }
void PagePanelRemovePage(Object* panel, std::int32_t page) { page_panel_state(panel).remove_page(page); }

std::int32_t PagePanelValueGetter(Object* panel, std::int32_t) { return page_panel_state(panel).value(); }
void PagePanelValueSetter(Object* panel, std::int32_t, std::int32_t page) { page_panel_state(panel).set_value(page); }

std::int32_t PagePanelCountGetter(Object* panel, std::int32_t field) {
    page_panel_state(panel).take_stored_pages();
    return std::clamp(intGetter(panel, field), 0, core::kMostPages);
}

}  // namespace tavrik
