#include "toolkit/core/contextual_menu.h"

#include "toolkit/core/control.h"
#include "toolkit/core/embedded_window_control.h"
#include "toolkit/core/menu_item.h"
#include "toolkit/core/reflection.h"
#include "toolkit/core/window.h"

#include <tavrik/runtime.h>
#include <tavrik/wrapping.h>

namespace tavrik::core {
namespace {

using Construct = Event<bool(Object*, std::int32_t, std::int32_t)>;
using Act = Event<bool(Object*)>;

constinit Construct control_constructs{"RectControl", "ConstructContextualMenu"};
constinit Act control_acts{"RectControl", "ContextualMenuAction"};
constinit Construct window_constructs{"Window", "ConstructContextualMenu"};
constinit Act window_acts{"Window", "ContextualMenuAction"};

struct Builder {
    Object* object;
    Construct& construct;
    Act& act;
    front::Point at;  // from its own corner
};

front::Point plus(front::Point at, const front::Rect& corner) {
    return {wrapping_sum(at.left, corner.left), wrapping_sum(at.top, corner.top)};
}
front::Point minus(front::Point at, const front::Rect& corner) {
    return {wrapping_difference(at.left, corner.left), wrapping_difference(at.top, corner.top)};
}

// A place of the window's content.
front::Point on_screen(const WindowState& window, front::Point at) {
    const HostState* const host = window.host();
    if (host == nullptr) return plus(at, window.bounds());
    return on_screen(window_state(host->window()), plus(at, host->bounds()));
}

bool show_menu_of(const Builder& builder, Object* window, front::Point place) {
    if (!builder.construct.handled(builder.object)) return false;
    const Ref<Object> kept(builder.object);
    const Ref<Object> menu = RuntimeNewObject(need_class("MenuItem"));
    if (!builder.construct(builder.object, menu.object(), builder.at.left, builder.at.top)) return false;
    if (const Ref<Object> chosen = pop_up_menu(menu.object(), place, window))
        builder.act(builder.object, chosen.object());
    return true;
}

}  // namespace

bool show_contextual_menu(Object* control, Object* window, front::Point at) {
    const Ref<Object> kept(control);
    const Ref<Object> kept_window(window);
    const WindowState& state = window_state(window);
    const front::Point place = on_screen(state, at);
    for (const ControlState* each = control == nullptr ? nullptr : &control_state(control); each != nullptr;
         each = each->parent()) {
        const Builder builder{each->self(), control_constructs, control_acts, minus(at, each->bounds())};
        if (show_menu_of(builder, window, place) || each->window() == nullptr) return true;
    }
    if (show_menu_of({window, window_constructs, window_acts, at}, window, place)) return true;
    const HostState* const host = state.host();
    return host != nullptr && show_contextual_menu(host->self(), host->window(), plus(at, host->bounds()));
}

}  // namespace tavrik::core
