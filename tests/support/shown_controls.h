#pragma once

#include "toolkit/front/front.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

// Faces of controls that nobody sees: they keep what they are told, and a test does what a person would.
namespace tavrik::test {

struct ShownControl;

// What lies in one thing.
class ShownControls {
public:
    std::vector<ShownControl*> controls;  // in the order in which they were made

    ShownControl& named(std::string_view name) const;
};

struct ShownControl {
    ShownControl(ShownControls& outer_controls, front::ControlListener& told) : outer(outer_controls), listener(told) {
        outer.controls.push_back(this);
    }
    ShownControl(const ShownControl&) = delete;
    ShownControl& operator=(const ShownControl&) = delete;
    virtual ~ShownControl() { std::erase(outer.controls, this); }

    virtual const front::ControlDescription& common() const = 0;

    ShownControls& outer;
    ShownControls inside;
    front::ControlListener& listener;
    int times_told = 0;
    int times_refreshed = 0;
    bool was_focused = false;
};

inline ShownControl& ShownControls::named(std::string_view name) const {
    return **std::ranges::find(controls, name, [](auto* control) { return control->common().name; });
}

template <class Face>
class ShownContainer : public Face {
public:
    std::unique_ptr<front::ButtonFace> make_button(front::ControlListener& control,
                                                   front::ButtonListener& button) override;
    std::unique_ptr<front::CanvasFace> make_canvas(front::ControlListener& control) override;
    std::unique_ptr<front::PanelFace> make_panel(front::ControlListener& control) override;
    std::unique_ptr<front::TabsFace> make_tabs(front::ControlListener& control, front::TabsListener& tabs) override;

protected:
    virtual ShownControls& shown_inside() = 0;
};

template <class Face, class Description>
struct ShownAs : ShownContainer<Face>, ShownControl {
    using ShownControl::ShownControl;

    void apply(const Description& told) override {
        description = told;
        ++times_told;
    }
    void set_focus() override {
        was_focused = true;
        listener.focus_changed(true);
    }
    void refresh(const front::Rect*) override { ++times_refreshed; }
    std::uintptr_t handle() override { return 77; }
    const front::ControlDescription& common() const override { return description; }
    ShownControls& shown_inside() override { return inside; }

    Description description;
};

struct ShownButton final : ShownAs<front::ButtonFace, front::ButtonDescription> {
    ShownButton(ShownControls& outer_controls, front::ControlListener& told, front::ButtonListener& told_of_presses)
        : ShownAs(outer_controls, told), presses(told_of_presses) {}

    front::ButtonListener& presses;
};
using ShownCanvas = ShownAs<front::CanvasFace, front::CanvasDescription>;
using ShownPanel = ShownAs<front::PanelFace, front::ControlDescription>;

struct ShownTabs final : ShownAs<front::TabsFace, front::TabsDescription> {
    ShownTabs(ShownControls& outer_controls, front::ControlListener& told, front::TabsListener& told_of_choices)
        : ShownAs(outer_controls, told), choices(told_of_choices) {}

    // Each is ten wide.
    int tab_at(front::Point at) override { return at.left / 10; }

    front::TabsListener& choices;
};

template <class Face>
std::unique_ptr<front::ButtonFace> ShownContainer<Face>::make_button(front::ControlListener& control,
                                                                     front::ButtonListener& button) {
    return std::make_unique<ShownButton>(shown_inside(), control, button);
}
template <class Face>
std::unique_ptr<front::CanvasFace> ShownContainer<Face>::make_canvas(front::ControlListener& control) {
    return std::make_unique<ShownCanvas>(shown_inside(), control);
}
template <class Face>
std::unique_ptr<front::PanelFace> ShownContainer<Face>::make_panel(front::ControlListener& control) {
    return std::make_unique<ShownPanel>(shown_inside(), control);
}
template <class Face>
std::unique_ptr<front::TabsFace> ShownContainer<Face>::make_tabs(front::ControlListener& control,
                                                                 front::TabsListener& tabs) {
    return std::make_unique<ShownTabs>(shown_inside(), control, tabs);
}

struct ShownWindow : ShownContainer<front::WindowFace> {
    ShownWindow(ShownWindow*& shown, front::WindowListener& told) : shown_as(shown), listener(told) { shown = this; }
    ~ShownWindow() override {
        if (shown_as == this) shown_as = nullptr;
    }
    ShownWindow(const ShownWindow&) = delete;
    ShownWindow& operator=(const ShownWindow&) = delete;

    void apply(const front::WindowDescription& window) override { description = window; }
    void apply_menus(std::span<const front::MenuDescription> bar) override { menus.assign(bar.begin(), bar.end()); }
    void bring_to_front() override {}
    void clear_focus() override {}
    void refresh(const front::Rect*) override {}
    void update_now() override {}
    std::optional<front::Point> pointer() override { return where_pointer_is; }
    std::uintptr_t handle() override { return 0; }
    void set_owner(front::WindowFace* above) override { owner = above; }
    ShownControls& shown_inside() override { return content; }

    void choose(std::size_t menu, std::size_t entry) { listener.menu_chosen(menus.at(menu).children.at(entry).id); }
    ShownButton& button(std::string_view caption) const {
        for (ShownControl* const control : content.controls) {
            auto* const button = dynamic_cast<ShownButton*>(control);
            if (button != nullptr && button->description.caption == caption) return *button;
        }
        throw std::out_of_range("no such button");
    }

    ShownWindow*& shown_as;
    front::WindowListener& listener;
    front::WindowDescription description;
    std::vector<front::MenuDescription> menus;
    ShownControls content;
    front::WindowFace* owner = nullptr;
    std::optional<front::Point> where_pointer_is;
};

}  // namespace tavrik::test
