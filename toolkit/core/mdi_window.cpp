#include "toolkit/core/mdi_window.h"

#include "toolkit/core/program.h"
#include "toolkit/core/reflection.h"
#include "toolkit/core/scheduler.h"
#include "toolkit/core/window_list.h"

#include <tavrik/exception.h>
#include <tavrik/mdi_window.h>

#include <algorithm>

namespace tavrik {
namespace core {
namespace {

using front::WindowSize;

constinit Event<void()> opened_event{"MDIWindow", "Open"};
constinit Event<void()> minimized{"MDIWindow", "Minimize"};
constinit Event<void()> maximized{"MDIWindow", "Maximize"};
constinit Event<void()> restored{"MDIWindow", "Restore"};

// What all of these objects stand for is one area.
struct Area {
    std::vector<Object*> frames;  // the objects
    bool opened = false;
    std::string title;
    WindowSize size_state = WindowSize::kNormal;
    bool visible = true;
    std::vector<Ref<Object>> hidden;  // with it
};

Area& area() {
    static auto* const the_area = new Area;
    return *the_area;
}

void raise(Event<void()>& event) {
    std::vector<Ref<Object>> told;
    for (Object* const frame : area().frames) told.emplace_back(frame);
    for (const Ref<Object>& frame : told) event(frame.object());
}

bool is_document(Object* window) {
    const front::WindowFrame frame = window_state(window).description.frame;
    return frame == front::WindowFrame::kDocument || frame == front::WindowFrame::kMetal;
}

void set_size_state(WindowSize wanted, Event<void()>& event) {
    const bool is_new = std::exchange(area().size_state, wanted) != wanted;
    const std::vector<Ref<Object>> windows = open_windows();
    for (const Ref<Object>& window : windows) {
        WindowState& state = window_state(window.object());
        if (state.is_on_screen() && is_document(window.object())) state.set_size_state(wanted);
    }
    if (is_new) raise(event);
}

void hide_all() {
    const std::vector<Ref<Object>> windows = open_windows();
    for (const Ref<Object>& window : windows) {
        WindowState& state = window_state(window.object());
        if (!state.is_on_screen()) continue;
        area().hidden.push_back(window);
        state.hide();
    }
}

void show_all() {
    for (const Ref<Object>& window : std::exchange(area().hidden, {})) {
        if (is_open(window.object())) window_state(window.object()).show();
    }
}

}  // namespace

const std::string& title_of_untitled_windows() { return area().title; }

void mdi_windows_have_a_window() {
    if (area().frames.empty() || std::exchange(area().opened, true)) return;
    raise(opened_event);
}

void mdi_windows_lose(Object* window) { std::erase(area().hidden, Ref<Object>(window)); }

}  // namespace core

using namespace core;

void MDIWindowConstructor(Object* frame) { area().frames.push_back(frame); }

void MDIWindowDestructor(Object* frame) {
    std::erase(area().frames, frame);
    // The last one takes along what it has done to the windows, but for those that it hides.
    if (area().frames.empty()) area() = {.hidden = std::exchange(area().hidden, {})};
}

void MDIWindowMaximize(Object*) { set_size_state(WindowSize::kMaximized, maximized); }
void MDIWindowMinimize(Object*) { set_size_state(WindowSize::kMinimized, minimized); }
void MDIWindowRestore(Object*) { set_size_state(WindowSize::kNormal, restored); }

std::int32_t MDIWindowPosGetter(Object*, std::int32_t which) {
    const front::Rect available = on_main_stack([] { return core::front().available_area(); });
    const int parts[] = {available.left, available.top, available.width, available.height};
    return parts[std::clamp(which, 0, 3)];
}
void MDIWindowPosSetter(Object*, std::int32_t, std::int32_t) {}

String MDIWindowTitleGetter(Object*, std::int32_t) {
    return String(area().title.empty() ? std::string_view(program_name()) : std::string_view(area().title));
}
void MDIWindowTitleSetter(Object*, std::int32_t, const String& title) {
    area().title = title.view();
    const std::vector<Ref<Object>> windows = open_windows();
    for (const Ref<Object>& window : windows) window_state(window.object()).changed();
}

bool MDIWindowVisibleGetter(Object*, std::int32_t) { return area().visible; }
void MDIWindowVisibleSetter(Object*, std::int32_t, bool visible) {
    if (std::exchange(area().visible, visible) == visible) return;
    visible ? show_all() : hide_all();
}

std::int32_t MDIWindowHandleGetter(Object*, std::int32_t) { return 0; }

}  // namespace tavrik
