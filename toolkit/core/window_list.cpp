#include "toolkit/core/window_list.h"

#include "toolkit/core/application.h"
#include "toolkit/core/embedded_window_control.h"
#include "toolkit/core/mdi_window.h"
#include "toolkit/core/pane.h"
#include "toolkit/core/program.h"
#include "toolkit/core/reflection.h"

#include <tavrik/exception.h>
#include <tavrik/runtime.h>
#include <tavrik/window.h>

#include <algorithm>
#include <string>

namespace tavrik {
namespace core {
namespace {

using Closing = WindowState::Closing;

constinit Event<void()> closed_event{"Window", "Close"};
constinit Event<bool(bool)> cancel_close{"Window", "CancelClose"};
constinit Operation<void()> close_control{"Control", "Close", "%%"};
constinit Operation<bool(bool)> unified_close{"Window", "_UnifiedClose", "%b%b"};
constinit SharedOperation<void(Object*)> remove_dirty_window{"Window", "_RemoveDirtyWindow", "%%o<Window>"};

std::vector<Ref<Object>>& windows() {
    static auto* const open = new std::vector<Ref<Object>>;
    return *open;
}

std::vector<Ref<Object>>& containers() {
    static auto* const open = new std::vector<Ref<Object>>;
    return *open;
}

std::vector<Ref<Object>>& list_of(Object* window) {
    return window_state(window).is_container() ? containers() : windows();
}

// Implicit instances, and the class that was asked for in vain last: its next window is one.
struct ImplicitWindows {
    std::string awaited;
    std::vector<Object*> instances;  // open, so held by one of the lists
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

// Whether none of the containers in the window, however deep, refuses.
bool contents_agree_to_close(Object* window, bool app_is_quitting) {
    for (const Ref<Object>& container : containers_in(window)) {
        WindowState& state = window_state(container.object());
        if (state.closing != Closing::kNo) continue;
        state.closing = Closing::kAsked;
        try {
            const bool agreed = contents_agree_to_close(container.object(), app_is_quitting) &&
                                !cancel_close(container.object(), app_is_quitting);
            state.closing = Closing::kNo;
            if (!agreed) return false;
        } catch (...) {
            state.closing = Closing::kNo;
            throw;
        }
    }
    return true;
}

// At the very end the class layer has let go of its lists, and raises when it finds them gone.
bool agrees_to_close(Object* window, AppIsQuitting quitting) {
    if (quitting != AppIsQuitting::kNoMatterWhat) {
        const bool app_is_quitting = quitting == AppIsQuitting::kYes;
        return contents_agree_to_close(window, app_is_quitting) && unified_close(window, app_is_quitting);
    }
    try {
        unified_close(window, true);
    } catch (const RaisedException& raised) {
        // The controls go before the lists are looked for: while they are there, it was the window's own code.
        if (control_names(window)) RuntimeUnhandledException(raised.exception.object());
    }
    return true;
}

// What stayed above it stays without it; a modal one that nobody could reach any more is hidden.
void part_from_owned(Object* window) {
    const std::vector<Ref<Object>> all = windows();
    for (const Ref<Object>& other : all) {
        WindowState& state = window_state(other.object());
        if (state.owner() == window) state.set_owner(nullptr);
    }
}

// The other half of a container goes with it.
void end_host(Object* container) {
    HostState* const host = window_state(container).host();
    if (host == nullptr) return window_state(container).part_from_host();
    const Ref<Object> kept(host->self());
    const bool stays = !std::exchange(host->ending, true);
    window_state(container).part_from_host();
    if (stays) close_control(kept.object());
}

void end(Object* window) {
    WindowState& state = window_state(window);
    state.closing = Closing::kClosed;
    state.opened = false;
    part_from_owned(window);
    state.drop_face();
    state.set_owner(nullptr);
    state.set_menu_bar(nullptr);
    state.backdrop = nullptr;
    close_content_pane(window);
    mdi_windows_lose(window);
    remove_dirty_window(window);
    std::erase(implicit_windows().instances, window);
    std::erase(list_of(window), Ref<Object>(window));
    end_host(window);
}

}  // namespace

const std::vector<Ref<Object>>& open_windows() { return windows(); }

const std::vector<Ref<Object>>& open_containers() { return containers(); }

bool is_open(Object* window) {
    const std::vector<Ref<Object>>& list = list_of(window);
    return std::ranges::find(list, Ref<Object>(window)) != list.end();
}

void enter_open_windows(Object* window) {
    list_of(window).emplace_back(window);
    note_if_implicit(window);
}

void move_to_front(Object* window) {
    const Ref<Object> self(window);
    std::stable_partition(windows().begin(), windows().end(), [&](const Ref<Object>& other) { return other != self; });
}

Object* frontmost_window() {
    const auto is_shown = [](const Ref<Object>& window) { return window_state(window.object()).is_on_screen(); };
    const auto found = std::find_if(windows().rbegin(), windows().rend(), is_shown);
    return found == windows().rend() ? nullptr : found->object();
}

front::WindowFace* frontmost_face() {
    Object* const window = frontmost_window();
    return window == nullptr ? nullptr : window_state(window).face();
}

bool close_window(Object* window, AppIsQuitting quitting) {
    const Ref<Object> kept(window);
    WindowState& state = window_state(window);
    if (!is_open(window)) {
        state.hide();
        return true;
    }
    // From inside its own close protocol: it is being asked, or is on its way already.
    if (state.closing != Closing::kNo) return state.closing != Closing::kAsked;

    state.closing = Closing::kAsked;
    try {
        state.closing = agrees_to_close(window, quitting) ? Closing::kAgreed : Closing::kNo;
    } catch (...) {
        state.closing = Closing::kNo;
        throw;
    }
    if (state.closing == Closing::kNo) return false;

    // It has agreed, and is gone at the end whatever its Close event does.
    Ref<Object> raised;
    try {
        closed_event(window);
    } catch (const RaisedException& exception) {
        raised = exception.exception;
    }
    end(window);
    if (quitting == AppIsQuitting::kNo && !state.is_container() && windows().empty() && quits_with_last_window())
        quit();
    if (raised) RuntimeReraiseException(raised.object());
    return true;
}

bool close_all_windows(AppIsQuitting quitting) {
    const std::vector<Ref<Object>> all = windows();
    const bool closed = std::all_of(all.rbegin(), all.rend(),
                                    [&](const Ref<Object>& window) { return close_window(window.object(), quitting); });
    // Those that nobody has embedded.
    while (quitting == AppIsQuitting::kNoMatterWhat && !containers().empty()) {
        const Ref<Object> container = containers().back();
        close_window(container.object(), quitting);
        std::erase(containers(), container);
    }
    return closed;
}

void close_with_host(Object* container) {
    constexpr bool (*kAgrees)(Object*, bool) = [](Object*, bool) { return false; };
    if (!is_open(container)) return;
    RuntimeInstallInstanceEventHandler(container, String("CancelClose"), reinterpret_cast<Function>(kAgrees));
    close_window(container, AppIsQuitting::kNoMatterWhat);
}

void give_up_window(Object* window) {
    const Ref<Object> kept(window);
    if (!is_open(window)) return;
    window_state(window).closing = Closing::kAgreed;
    agrees_to_close(window, AppIsQuitting::kNoMatterWhat);
    end(window);
}

void look_at_windows() {
    for (const Ref<Object>& window : windows()) window_state(window.object()).look_at_stored_properties();
}

}  // namespace core

using namespace core;

Ref<Object> RuntimeGetImplicitWindow(const String& class_name) {
    ImplicitWindows& implicit = implicit_windows();
    for (Object* const window : implicit.instances) {
        if (window_state(window).closing == Closing::kAgreed) continue;
        if (view(window->record->name) == class_name.view()) return window;
    }
    implicit.awaited = class_name.view();
    return nullptr;
}

void RuntimeCloseWindow(Object* window) { close_window(window, AppIsQuitting::kNo); }

}  // namespace tavrik
