#include "tests/toolkit/core/shown_window.h"

#include "toolkit/core/window_list.h"

namespace tavrik::test {

Heard& heard() {
    static Heard the_heard;
    return the_heard;
}

WindowsTest::~WindowsTest() {
    heard() = {};
    core::close_all_windows(core::AppIsQuitting::kYes);
    Window::_UpdateDirtyWindows();
}

Ref<Window> WindowsTest::open(std::function<void(const Ref<Window>&)> prepare) {
    Ref<Window> window = make<Window>();
    window->set_Visible(true);
    if (prepare) prepare(window);
    window->Window_();
    return window;
}

}  // namespace tavrik::test
