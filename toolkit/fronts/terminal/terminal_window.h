#pragma once

#include "toolkit/front/front.h"
#include "toolkit/fronts/terminal/terminal_control.h"
#include "toolkit/fronts/terminal/window_view.h"

#include <cstddef>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

namespace tavrik::front::terminal {

class WindowStack;

class TerminalWindow final : public Holding<WindowFace> {
public:
    TerminalWindow(WindowListener& listener, std::shared_ptr<WindowStack> stack);
    TerminalWindow(const TerminalWindow&) = delete;
    TerminalWindow& operator=(const TerminalWindow&) = delete;
    ~TerminalWindow() override;

    void apply(const WindowDescription& window) override;
    void apply_menus(std::span<const MenuDescription> menus) override;
    void bring_to_front() override;
    void clear_focus() override { place_.focus->clear(); }
    // Each line of input meets a screen that is printed anew.
    void refresh(const Rect*) override {}
    void update_now() override {}
    std::optional<Point> pointer() override { return std::nullopt; }
    std::uintptr_t handle() override { return 0; }
    void set_owner(WindowFace*) override {}

    WindowListener& listener() const { return listener_; }
    bool visible() const { return window_.visible; }
    bool minimized() const { return window_.size_state == WindowSize::kMinimized; }
    bool modal() const { return window_.modality != Modality::kNone; }
    // The entries that can be seen: none while the menu bar is hidden.
    std::vector<MenuEntry> entries() const;
    // What stands behind the numbers.
    struct Line {
        Control* control;
        std::size_t part;  // of the control's own lines
    };
    std::vector<Line> control_lines() const;
    // `untitled` stands where the window has no title.
    WindowView view(std::string_view untitled) const;

protected:
    const Place& place() const override { return place_; }

private:
    WindowListener& listener_;
    std::shared_ptr<WindowStack> stack_;
    Place place_;
    WindowDescription window_;
    std::vector<MenuEntry> entries_;
};

}  // namespace tavrik::front::terminal
