#include "data/dictionary.h"
#include "data/pair.h"
#include "runtime/frame.h"
#include "ui/window.h"
#include "ui/window_support.h"

namespace tavrik {
namespace {

Ref<Dictionary> dirty_windows() { return Ref<Dictionary>::hold(_WindowSupport::mDirtyWindows); }

void set_dirty_windows(const Ref<Dictionary>& windows) {
    RuntimeLockUnlockObjects(windows.object(), std::exchange(_WindowSupport::mDirtyWindows, windows.object()));
}

}  // namespace

void Window::_AddDirtyWindow(Arg<Window> window) {
    const tavrik::Frame frame(window);
    if (!dirty_windows()) {
        const Ref<Dictionary> windows = make<Dictionary>();
        windows->Constructor(ArrayOf<Pair>::make());
        set_dirty_windows(windows);
    }
    dirty_windows()->set_Value(window, BooleanToVariant(true));
}

void Window::_RemoveDirtyWindow(Arg<Window> window) {
    const tavrik::Frame frame(window);
    const Ref<Dictionary> windows = dirty_windows();
    if (windows && windows->HasKey(window)) windows->Remove(window);
}

void Window::_UpdateDirtyWindows() {
    const tavrik::Frame frame;
    if (!dirty_windows()) return;
    const Ref<ArrayOf<Variant>> windows = dirty_windows()->Keys();
    for (std::int32_t i = 0; i <= windows->upper_bound(); ++i) {
        check_cast<Window>(windows->at(i))->_Update();
        RuntimeBackgroundTask();
    }
    set_dirty_windows(nullptr);
}

}  // namespace tavrik
