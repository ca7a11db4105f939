#include "toolkit/core/window.h"

#include "toolkit/core/application.h"
#include "toolkit/core/control.h"
#include "toolkit/core/event_scope.h"
#include "toolkit/core/menu_item.h"
#include "toolkit/core/program.h"
#include "toolkit/core/reflection.h"
#include "toolkit/core/scheduler.h"

#include <tavrik/class_record.h>
#include <tavrik/dictionary.h>
#include <tavrik/exception.h>
#include <tavrik/fields.h>
#include <tavrik/runtime.h>
#include <tavrik/variant.h>
#include <tavrik/window.h>

#include <algorithm>

namespace tavrik {
namespace core {
namespace {

constinit ObjectField controls_field{"Window", "_mControls"};
constinit ObjectField control_list_field{"Window", "_mControlList"};
constinit ObjectField menu_handlers_field{"Window", "_mMenuHandlers"};

constinit Event<void()> layout{"Window", "Layout"};
constinit Event<void()> create_controls{"Window", "CreateControls"};
constinit Event<void(Object*)> add_menu_handlers{"Window", "AddMenuHandlers"};
constinit Event<void()> setup_bindings{"Window", "SetupBindings"};
constinit Event<void()> opened_event{"Window", "Open"};
constinit Event<void()> closed_event{"Window", "Close"};

constinit Operation<bool(bool)> unified_close{"Window", "_UnifiedClose", "%b%b"};
constinit Operation<void()> call_activated{"Window", "_CallActivated", "%%"};
constinit Operation<void()> call_deactivated{"Window", "_CallDeactivated", "%%"};
constinit Operation<void()> call_moved{"Window", "_CallMoved", "%%"};
constinit Operation<void()> call_resized{"Window", "_CallResized", "%%"};
constinit Operation<void(Object*)> set_window{"Control", "_SetWindow", "%%o<Window>"};
constinit Operation<void()> call_open_event{"Control", "_CallOpenEvent", "%%"};

std::vector<Ref<Object>>& windows() {
    static auto* const open = new std::vector<Ref<Object>>;
    return *open;
}

// Implicit instances, and the class that was asked for in vain last: its next window is one.
struct ImplicitWindows {
    std::string awaited;
    std::vector<Object*> instances;  // open, so held by windows()
};

ImplicitWindows& implicit_windows() {
    static auto* const implicit = new ImplicitWindows;
    return *implicit;
}

void note_if_implicit(Object* window) {
    ImplicitWindows& implicit = implicit_windows();
    if (implicit.awaited != view(window->record->name)) return;
    implicit.awaited.clear();
    implicit.instances.push_back(window);
}

Ref<ArrayOf<Object>> control_list(Object* window) {
    return static_ref<ArrayOf<Object>>(control_list_field.get(window));
}

template <class Use>
void for_each_control(Object* window, Use use) {
    const auto controls = control_list(window);
    if (!controls) return;
    for (std::int32_t i = 0; i <= controls->upper_bound(); ++i) use(controls->at(i));
}

// At the very end the class layer has let go of its lists, and raises when it finds them gone.
bool agrees_to_close(Object* window, AppIsQuitting quitting) {
    if (quitting != AppIsQuitting::kNoMatterWhat) return unified_close(window, quitting == AppIsQuitting::kYes);
    try {
        unified_close(window, true);
    } catch (const RaisedException& raised) {
        // The controls go before the lists are looked for: while they are there, it was the window's own code.
        if (controls_field.get(window)) RuntimeUnhandledException(raised.exception.object());
    }
    return true;
}

void forget(Object* window) {
    std::erase(implicit_windows().instances, window);
    std::erase(windows(), Ref<Object>(window));
}

}  // namespace

WindowState& window_state(Object* window) {
    if (window == nullptr) RaiseNilObjectException();
    if (window->native == nullptr) RuntimeCreateWindow(window);
    return *native<WindowState>(window);
}

const std::vector<Ref<Object>>& open_windows() { return windows(); }

Object* frontmost_window() {
    const auto has_face = [](const Ref<Object>& window) { return window_state(window.object()).face() != nullptr; };
    const auto found = std::find_if(windows().rbegin(), windows().rend(), has_face);
    return found == windows().rend() ? nullptr : found->object();
}

front::WindowFace* frontmost_face() {
    Object* const window = frontmost_window();
    return window == nullptr ? nullptr : window_state(window).face();
}

void WindowState::set_menu_bar(Object* bar) {
    menu_bar_ = Ref<Object>(bar);
    menus_changed();
}

void WindowState::make_face() {
    face_ = front().make_window(*this);
    front::WindowDescription hidden = description;
    hidden.visible = false;
    face_->apply(hidden);
    menus_changed();
    for_each_control(self_, [this](const Ref<Object>& control) { attach(control_state(control.object())); });
}

void WindowState::attach(ControlState& control) {
    if (face_) on_main_stack([&] { control.attach(*face_); });
}

void WindowState::show() {
    description.visible = true;
    if (!face_) {
        description.minimize_button = bool_property(self_, "MinimizeButton");
        on_main_stack([this] { make_face(); });
    }
    enable_menu_items(self_);
    changed();
}

void WindowState::hide() {
    description.visible = false;
    changed();
}

void WindowState::changed() {
    if (face_) on_main_stack([this] { face_->apply(description); });
}

void WindowState::menus_changed() {
    if (face_) on_main_stack([this] { face_->apply_menus(describe_menus(menu_bar_.object())); });
}

void WindowState::drop_face() {
    for_each_control(self_, [](const Ref<Object>& control) { control_state(control.object()).detach(); });
    on_main_stack([this] { face_.reset(); });
}

void WindowState::close_requested() {
    deliver([this] { close_window(self_, AppIsQuitting::kNo); });
}

void WindowState::activated(bool active) {
    deliver([this, active] {
        const Ref<Object> self(self_);
        if (active) {
            std::stable_partition(windows().begin(), windows().end(),
                                  [&](const Ref<Object>& other) { return other != self; });
            call_activated(self_);
        } else {
            call_deactivated(self_);
        }
    });
}

void WindowState::moved(int left, int top) {
    deliver([=, this] {
        description.content.left = left;
        description.content.top = top;
        call_moved(self_);
    });
}

void WindowState::resized(int width, int height) {
    deliver([=, this] {
        // What fills the screen comes back to the size that it had.
        if (!description.full_screen) {
            description.content.width = width;
            description.content.height = height;
        }
        call_resized(self_);
    });
}

void WindowState::menus_opening() {
    deliver([this] { enable_menu_items(self_); });
}

void WindowState::menu_chosen(front::MenuId chosen) {
    deliver([this, chosen] { choose_menu_item(self_, chosen); });
}

// A window that has agreed to close is gone at the end, whatever its Close event does.
class Leaving {
public:
    explicit Leaving(Object* window) : window_(window) {}
    Leaving(const Leaving&) = delete;
    Leaving& operator=(const Leaving&) = delete;
    ~Leaving() {
        window_state(window_).drop_face();
        window_state(window_).set_menu_bar(nullptr);
        forget(window_);
    }

private:
    Object* window_;
};

bool close_window(Object* window, AppIsQuitting quitting) {
    const Ref<Object> kept(window);
    const bool is_open = std::ranges::find(windows(), kept) != windows().end();
    if (!is_open) return true;
    if (!agrees_to_close(window, quitting)) return false;
    {
        const Leaving leaving(window);
        closed_event(window);
    }
    if (quitting == AppIsQuitting::kNo && windows().empty() && quits_with_last_window()) quit();
    return true;
}

bool close_all_windows(AppIsQuitting quitting) {
    const std::vector<Ref<Object>> all = windows();
    return std::all_of(all.rbegin(), all.rend(),
                       [&](const Ref<Object>& window) { return close_window(window.object(), quitting); });
}

}  // namespace core

void RuntimeCreateWindow(Object* window) {
    if (window->native != nullptr) return;
    window->native = new core::WindowState(window);
    const Ref<Object> controls = RuntimeNewObject(core::need_class("Dictionary"));
    core::controls_field.set(window, controls.object());
    core::control_list_field.set(window, ArrayOf<Object>::make().object());
    const Ref<Object> handlers = RuntimeNewObject(core::need_class("Dictionary"));
    core::menu_handlers_field.set(window, handlers.object());
}

void RuntimeViewDestructor(Object* window) { delete std::exchange(window->native, nullptr); }

void WindowDefaultConstructor(Object* window) {
    core::WindowState& state = core::window_state(window);
    const Ref<Object> kept(window);
    core::windows().push_back(kept);
    core::note_if_implicit(window);
    core::layout(window);
    core::create_controls(window);
    core::add_menu_handlers(window, window);
    core::setup_bindings(window);
    core::for_each_control(window, [](const Ref<Object>& control) { core::call_open_event(control.object()); });
    state.opened = true;
    core::opened_event(window);
    if (state.description.visible) state.show();
}

void RuntimeShowWindow(Object* window) { core::window_state(window).show(); }
void RuntimeHideWindow(Object* window) { core::window_state(window).hide(); }
void RuntimeCloseWindow(Object* window) { core::close_window(window, core::AppIsQuitting::kNo); }

Ref<Object> WindowAllocateObject(Object* window, ClassRecord* record) {
    if (window == nullptr) RaiseNilObjectException();
    return RuntimeNewObject(record);
}

void WindowAddControl(Object* window, const String& name, Object* control) {
    if (control == nullptr) RaiseNilObjectException();
    core::WindowState& state = core::window_state(window);
    const Ref<Object> controls = core::controls_field.get(window);
    dictionaryValueSetter(controls.object(), StringToVariant(name).object(), control);
    core::control_list(window)->append(Arg<Object>(control));
    core::ControlState& added = core::control_state(control);
    added.enter(window);
    core::set_window(control, window);
    if (state.opened) core::call_open_event(control);
    state.attach(added);
}

void WindowAddMenuHandler(Object* window, const String& item, Function handler) {
    core::window_state(window).menu_handlers.add(core::menu_handlers_field.get(window).object(), item, handler);
}

Ref<Object> RuntimeControlReference(Object* window, const String& name) {
    if (window == nullptr) RaiseNilObjectException();
    const Ref<Object> controls = core::controls_field.get(window);
    return controls ? DictionaryLookup(controls.object(), StringToVariant(name).object(), nullptr) : nullptr;
}

Ref<Object> windowControl(Object* window, std::int32_t position) { return core::control_list(window)->at(position); }

std::int32_t windowControlCountGetter(Object* window, std::int32_t) {
    return core::control_list(window)->upper_bound() + 1;
}

Ref<Object> RuntimeGetImplicitWindow(const String& class_name) {
    core::ImplicitWindows& implicit = core::implicit_windows();
    for (Object* const window : implicit.instances) {
        if (view(window->record->name) == class_name.view()) return window;
    }
    implicit.awaited = class_name.view();
    return nullptr;
}

bool WindowVisibleGetter(Object* window, std::int32_t) { return core::window_state(window).description.visible; }

// During the construction the window waits until it is complete.
void WindowVisibleSetter(Object* window, std::int32_t, bool visible) {
    core::WindowState& state = core::window_state(window);
    if (!state.opened) {
        state.description.visible = visible;
    } else if (visible) {
        state.show();
    } else {
        state.hide();
    }
}

namespace {

// The four numbers that a selector chooses from.
std::int32_t& position_of(Object* window, std::int32_t which) {
    front::Rect& content = core::window_state(window).description.content;
    switch (which) {
        case 0:
            return content.left;
        case 1:
            return content.top;
        case 2:
            return content.width;
        default:
            return content.height;
    }
}

std::int32_t& limit_of(Object* window, std::int32_t which) {
    front::WindowDescription& description = core::window_state(window).description;
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
void set(Object* window, Value value) {
    core::WindowState& state = core::window_state(window);
    state.description.*Part = static_cast<std::remove_cvref_t<decltype(state.description.*Part)>>(value);
    state.changed();
}

using Description = front::WindowDescription;

}  // namespace

std::int32_t windowPosGetter(Object* window, std::int32_t which) { return position_of(window, which); }

void windowPosSetter(Object* window, std::int32_t which, std::int32_t value) {
    core::WindowState& state = core::window_state(window);
    if (which < 2) state.description.placement = front::Placement::kWhereTold;
    position_of(window, which) = value;
    state.changed();
}

std::int32_t windowMinMaxWidthHeightGetter(Object* window, std::int32_t which) { return limit_of(window, which); }

void windowMinMaxWidthHeightSetter(Object* window, std::int32_t which, std::int32_t value) {
    limit_of(window, which) = value;
    core::window_state(window).changed();
}

std::int32_t windowPlacementGetter(Object* window, std::int32_t) {
    return static_cast<std::int32_t>(core::window_state(window).description.placement);
}

// A number that stands for no placement leaves it to the desktop.
void windowPlacementSetter(Object* window, std::int32_t, std::int32_t placement) {
    const bool known = placement >= 0 && placement < static_cast<std::int32_t>(front::Placement::kWhereTold);
    set<&Description::placement>(window, known ? placement : 0);
}

String windowTitleGetter(Object* window, std::int32_t) {
    return String(std::string_view(core::window_state(window).description.title));
}
void windowTitleSetter(Object* window, std::int32_t, const String& title) {
    set<&Description::title>(window, title.view());
}

bool windowFullScreenGetter(Object* window, std::int32_t) { return core::window_state(window).description.full_screen; }
void windowFullScreenSetter(Object* window, std::int32_t, bool full_screen) {
    set<&Description::full_screen>(window, full_screen);
}
bool windowMenusVisibleGetter(Object* window, std::int32_t) {
    return core::window_state(window).description.menu_bar_visible;
}
void windowMenusVisibleSetter(Object* window, std::int32_t, bool visible) {
    set<&Description::menu_bar_visible>(window, visible);
}
bool windowCloseBoxGetter(Object* window, std::int32_t) { return core::window_state(window).description.close_button; }
void windowCloseBoxSetter(Object* window, std::int32_t, bool has) { set<&Description::close_button>(window, has); }
bool windowGrowIconGetter(Object* window, std::int32_t) { return core::window_state(window).description.resizable; }
void windowGrowIconSetter(Object* window, std::int32_t, bool has) { set<&Description::resizable>(window, has); }
bool windowZoomIconGetter(Object* window, std::int32_t) {
    return core::window_state(window).description.maximize_button;
}
void windowZoomIconSetter(Object* window, std::int32_t, bool has) { set<&Description::maximize_button>(window, has); }

std::int32_t windowFrameGetter(Object* window, std::int32_t) { return core::window_state(window).frame; }
void windowFrameSetter(Object* window, std::int32_t, std::int32_t frame) { core::window_state(window).frame = frame; }
bool windowLiveResizeGetter(Object* window, std::int32_t) { return core::window_state(window).live_resize; }
void windowLiveResizeSetter(Object* window, std::int32_t, bool live) { core::window_state(window).live_resize = live; }
bool windowHasBackColorGetter(Object* window, std::int32_t) { return core::window_state(window).has_back_color; }
void windowHasBackColorSetter(Object* window, std::int32_t, bool has) {
    core::window_state(window).has_back_color = has;
}
Color windowBackColorGetter(Object* window, std::int32_t) { return {core::window_state(window).back_color}; }
void windowBackColorSetter(Object* window, std::int32_t, Color color) {
    core::window_state(window).back_color = color.rgb;
}

void windowBalloonHelpSetter(Object* window, std::int32_t field, const String& help) {
    stringSetter(window, field, help);
}

Ref<Object> WindowMenuBarGetter(Object* window, std::int32_t) { return {core::window_state(window).menu_bar()}; }
void WindowMenuBarSetter(Object* window, std::int32_t, Object* bar) { core::window_state(window).set_menu_bar(bar); }

void enableMenuItems(std::int32_t) {
    if (Object* const window = core::frontmost_window()) core::enable_menu_items(window);
}

}  // namespace tavrik
