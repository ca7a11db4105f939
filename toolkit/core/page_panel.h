#pragma once

#include "toolkit/core/control.h"

#include <string_view>

namespace tavrik::core {

// No more of them than a person could ever reach, whatever is stored.
inline constexpr std::int32_t kMostPages = 32767;

// A control with pages. How many there are is a stored value of the object, which the program may write at any time: it
// is read anew each time, and what depends on it is brought up to date at the end of the event.
class PagePanelState : public ControlState {
public:
    using ControlState::ControlState;

    std::int32_t count() const;
    // The page in front; 0 where there is none.
    std::int32_t value() const;
    void set_value(std::int32_t page);
    void append_page(std::string_view caption = {});
    void insert_page(std::int32_t page, std::string_view caption = {});
    void remove_page(std::int32_t page);

    bool shows(const ControlState& child) const override;
    void look_at_stored_properties() override;

    // A kind that has its pages from elsewhere stores how many there are by now.
    virtual void take_stored_pages() {}

protected:
    bool has_stored_looks() const override { return true; }
    virtual bool has_new_looks() const { return false; }
    virtual void page_inserted(std::int32_t, std::string_view) {}
    virtual void page_removed(std::int32_t) {}

    // Raises OutOfBoundsException unless it is a page.
    void need_page(std::int32_t page) const;
    void store_count(std::int32_t count);
    void bring_to_front(std::int32_t page);

private:
    // Once its window is open, or without any: until then nobody hears of changes.
    bool is_complete() const;
    void move_children(std::int32_t first_page, std::int32_t delta);
    void close_children(std::int32_t page);
    void tell_pages();
    void raise_change();

    std::int32_t value_ = 0;  // as it was told; the number of pages holds it
    std::int32_t told_count_ = -1;
    std::int32_t told_value_ = 0;
};

PagePanelState& page_panel_state(Object* panel);

}  // namespace tavrik::core
