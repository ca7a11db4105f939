#include "toolkit/core/contextual_menu.h"

#include "toolkit/core/control.h"
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
    front::Point on_screen;
};

bool show_menu_of(const Builder& builder, Object* window) {
    if (!builder.construct.handled(builder.object)) return false;
    const Ref<Object> kept(builder.object);
    const Ref<Object> menu = RuntimeNewObject(need_class("MenuItem"));
    if (!builder.construct(builder.object, menu.object(), builder.at.left, builder.at.top)) return false;
    if (const Ref<Object> chosen = pop_up_menu(menu.object(), builder.on_screen, window))
        builder.act(builder.object, chosen.object());
    return true;
}

}  // namespace

bool show_contextual_menu(Object* control, Object* window, front::Point at) {
    const Ref<Object> kept(control);
    const Ref<Object> kept_window(window);
    const front::Rect content = window_state(window).bounds();
    const front::Point on_screen{wrapping_sum(content.left, at.left), wrapping_sum(content.top, at.top)};
    const ControlState* each = control == nullptr ? nullptr : &control_state(control);
    for (; each != nullptr; each = each->parent()) {
        const front::Point inside{wrapping_difference(at.left, each->bounds().left),
                                  wrapping_difference(at.top, each->bounds().top)};
        if (show_menu_of({each->self(), control_constructs, control_acts, inside, on_screen}, window)) return true;
        if (each->window() == nullptr) return true;
    }
    return show_menu_of({window, window_constructs, window_acts, at, on_screen}, window);
}

}  // namespace tavrik::core
