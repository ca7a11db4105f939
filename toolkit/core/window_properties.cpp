#include "toolkit/core/embedded_window_control.h"
#include "toolkit/core/mouse_cursor.h"
#include "toolkit/core/scheduler.h"
#include "toolkit/core/window.h"

#include <tavrik/fields.h>
#include <tavrik/window.h>

namespace tavrik {
namespace {

using core::window_state;
using Description = front::WindowDescription;

// The four numbers that a selector chooses from.
template <class RectLike>
auto& part_of(RectLike& rect, std::int32_t which) {
    switch (which) {
        case 0:
            return rect.left;
        case 1:
            return rect.top;
        case 2:
            return rect.width;
        default:
            return rect.height;
    }
}

int& limit_of(Object* window, std::int32_t which, const char* call = __builtin_FUNCTION()) {
    Description& description = window_state(window, call).description;
    switch (which) {
        case 0:
            return description.min_width;
        case 1:
            return description.min_height;
        case 2:
            return description.max_width;
        default:
            return description.max_height;
    }
}

template <auto Part, class Value>
void set(Object* window, Value value, const char* call = __builtin_FUNCTION()) {
    core::WindowState& state = window_state(window, call);
    state.description.*Part = static_cast<std::remove_cvref_t<decltype(state.description.*Part)>>(value);
    state.changed();
}

// A number that stands for nothing is the first of its kind.
template <auto Part, auto Last>
void set_numbered(Object* window, std::int32_t number, const char* call = __builtin_FUNCTION()) {
    const bool known = number >= 0 && number <= static_cast<std::int32_t>(Last);
    set<Part>(window, known ? number : 0, call);
}

template <auto Part>
std::int32_t number_of(Object* window, const char* call = __builtin_FUNCTION()) {
    return static_cast<std::int32_t>(window_state(window, call).description.*Part);
}

// What only the window system can answer.
template <class Answer>
auto asked(Object* window, Answer answer, const char* call = __builtin_FUNCTION())
    -> decltype(answer(std::declval<front::WindowFace&>())) {
    core::WindowState& state = window_state(window, call);
    if (state.face() == nullptr) return {};
    return core::on_main_stack([&] { return answer(*state.face()); });
}

std::uintptr_t handle_of(Object* window) {
    if (const core::HostState* const host = window_state(window).host()) return host->handle();
    return asked(window, [](front::WindowFace& face) { return face.handle(); });
}

#if defined(_WIN32)
constexpr bool kOnWindows = true;
#else
constexpr bool kOnWindows = false;
#endif
#if defined(__APPLE__)
constexpr bool kOnMac = true;
#else
constexpr bool kOnMac = false;
#endif

}  // namespace

// During the construction the window waits until it is complete.
bool WindowVisibleGetter(Object* window, std::int32_t) { return window_state(window).description.visible; }
void WindowVisibleSetter(Object* window, std::int32_t, bool visible) {
    core::WindowState& state = window_state(window);
    if (!state.opened && state.host() == nullptr) {
        state.description.visible = visible;
    } else if (visible) {
        state.show();
    } else {
        state.hide();
    }
}

std::int32_t windowPosGetter(Object* window, std::int32_t which) {
    const front::Rect bounds = window_state(window).bounds();
    return part_of(bounds, which);
}
void windowPosSetter(Object* window, std::int32_t which, std::int32_t value) {
    core::WindowState& state = window_state(window);
    if (which < 2) state.description.placement = front::Placement::kWhereTold;
    front::Rect content = state.description.content;
    part_of(content, which) = value;
    state.set_bounds(content);
}

std::int32_t windowMinMaxWidthHeightGetter(Object* window, std::int32_t which) { return limit_of(window, which); }
void windowMinMaxWidthHeightSetter(Object* window, std::int32_t which, std::int32_t value) {
    limit_of(window, which) = value;
    window_state(window).limits_changed();
}

std::int32_t windowPlacementGetter(Object* window, std::int32_t) { return number_of<&Description::placement>(window); }
void windowPlacementSetter(Object* window, std::int32_t, std::int32_t placement) {
    set_numbered<&Description::placement, front::Placement::kStagger>(window, placement);
}

std::int32_t windowFrameGetter(Object* window, std::int32_t) { return number_of<&Description::frame>(window); }
void windowFrameSetter(Object* window, std::int32_t, std::int32_t frame) {
    set_numbered<&Description::frame, front::WindowFrame::kMetal>(window, frame);
    // Which bar a window without one of its own shows depends on its frame.
    window_state(window).menus_changed();
}

String windowTitleGetter(Object* window, std::int32_t) {
    return String(std::string_view(window_state(window).description.title));
}
void windowTitleSetter(Object* window, std::int32_t, const String& title) {
    set<&Description::title>(window, title.view());
}

bool windowFullScreenGetter(Object* window, std::int32_t) { return window_state(window).description.full_screen; }
void windowFullScreenSetter(Object* window, std::int32_t, bool full_screen) {
    window_state(window).set_full_screen(full_screen);
}
bool windowMenusVisibleGetter(Object* window, std::int32_t) {
    return window_state(window).description.menu_bar_visible;
}
void windowMenusVisibleSetter(Object* window, std::int32_t, bool visible) {
    set<&Description::menu_bar_visible>(window, visible);
}
bool windowCloseBoxGetter(Object* window, std::int32_t) { return window_state(window).description.close_button; }
void windowCloseBoxSetter(Object* window, std::int32_t, bool has) { set<&Description::close_button>(window, has); }
bool windowGrowIconGetter(Object* window, std::int32_t) { return window_state(window).description.resizable; }
void windowGrowIconSetter(Object* window, std::int32_t, bool has) { set<&Description::resizable>(window, has); }
bool windowZoomIconGetter(Object* window, std::int32_t) { return window_state(window).description.maximize_button; }
void windowZoomIconSetter(Object* window, std::int32_t, bool has) { set<&Description::maximize_button>(window, has); }
bool windowLiveResizeGetter(Object* window, std::int32_t) { return window_state(window).description.live_resize; }
void windowLiveResizeSetter(Object* window, std::int32_t, bool live) { set<&Description::live_resize>(window, live); }

bool windowHasBackColorGetter(Object* window, std::int32_t) {
    return window_state(window).description.background.has_value();
}
void windowHasBackColorSetter(Object* window, std::int32_t, bool has) {
    core::WindowState& state = window_state(window);
    state.description.background.reset();
    if (has) state.description.background = state.back_color;
    state.changed();
}
Color windowBackColorGetter(Object* window, std::int32_t) { return {window_state(window).back_color}; }
void windowBackColorSetter(Object* window, std::int32_t, Color color) {
    window_state(window).back_color = color.rgb;
    windowHasBackColorSetter(window, 0, windowHasBackColorGetter(window, 0));
}

Ref<Object> windowBackdropGetter(Object* window, std::int32_t) { return window_state(window).backdrop; }
void windowBackdropSetter(Object* window, std::int32_t, Object* picture) {
    window_state(window).backdrop = Ref<Object>(picture);
    formRefresh(window, true);
}

void windowBalloonHelpSetter(Object* window, std::int32_t field, const String& help) {
    stringSetter(window, field, help);
    set<&Description::help>(window, help.view());
}

void formMouseCursorSetter(Object* window, std::int32_t field, Object* cursor) {
    objSetter(window, field, cursor);
    set<&Description::cursor>(window, core::cursor_of(cursor));
}

std::int32_t windowMouseXGetter(Object* window, std::int32_t) { return window_state(window).pointer().left; }
std::int32_t windowMouseYGetter(Object* window, std::int32_t) { return window_state(window).pointer().top; }

// An identifier of the window system has 32 bits.
std::int32_t WindowHandleGetter(Object* window, std::int32_t) { return static_cast<std::int32_t>(handle_of(window)); }
std::int32_t windowHWNDGetter(Object* window, std::int32_t) { return kOnWindows ? WindowHandleGetter(window, 0) : 0; }
std::int32_t windowWindowPtrGetter(Object* window, std::int32_t) { return kOnMac ? WindowHandleGetter(window, 0) : 0; }
WindowPtr WindowToWindowPtr(Object* window) { return {reinterpret_cast<void*>(handle_of(window))}; }

Ref<Object> WindowMenuBarGetter(Object* window, std::int32_t) { return {window_state(window).menu_bar()}; }
void WindowMenuBarSetter(Object* window, std::int32_t, Object* bar) { window_state(window).set_menu_bar(bar); }

void formAcceptTextDrop(Object* window) { window_state(window).accepted_drops.text = true; }
void formAcceptPictureDrop(Object* window) { window_state(window).accepted_drops.pictures = true; }
void formAcceptFileDrop(Object* window, const String& type) {
    core::AcceptedDrops::add(window_state(window).accepted_drops.file_types, type.view());
}
void formAcceptMacDataDrop(Object* window, const String& type) {
    core::AcceptedDrops::add(window_state(window).accepted_drops.data_types, type.view());
}

}  // namespace tavrik
