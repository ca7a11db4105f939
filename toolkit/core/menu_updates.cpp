// Menus on their way to the faces.
#include "toolkit/core/application.h"
#include "toolkit/core/menu_item.h"
#include "toolkit/core/menu_tree.h"
#include "toolkit/core/program.h"
#include "toolkit/core/scheduler.h"
#include "toolkit/core/window.h"
#include "toolkit/core/window_list.h"

#include <tavrik/runtime.h>
#include <tavrik/window.h>

#include <utility>

namespace tavrik::core {
namespace {

bool waiting = false;

// A dialog, a floating window or a sheet belongs to another window, and a plain one has no room for a bar.
bool stands_by_itself(Object* window) {
    constexpr std::int32_t kDocument = 0;
    constexpr std::int32_t kMetal = 9;
    const std::int32_t frame = windowFrameGetter(window, 0);
    return frame == kDocument || frame == kMetal;
}

}  // namespace

Object* menu_bar_of(Object* window) {
    if (Object* const own = window_state(window).menu_bar()) return own;
    if (!stands_by_itself(window)) return nullptr;
    const Ref<Object> app = getAppObject();
    return app ? application_menu_bar(app.object()) : nullptr;
}

std::vector<front::MenuDescription> describe_menus(Object* bar) {
    return bar == nullptr ? std::vector<front::MenuDescription>{} : describe(bar).children;
}

void all_menus_changed() {
    for (const Ref<Object>& window : open_windows()) window_state(window.object()).menus_changed();
}

void apply_menus_soon() {
    if (std::exchange(waiting, true)) return;
    on_main_stack([] { front().post(apply_waiting_menus); });
}

void apply_waiting_menus() {
    if (!std::exchange(waiting, false)) return;
    const std::vector<Ref<Object>> windows = open_windows();
    for (const Ref<Object>& window : windows) window_state(window.object()).apply_menus();
}

}  // namespace tavrik::core
