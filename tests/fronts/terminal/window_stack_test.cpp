#include "toolkit/fronts/terminal/window_stack.h"

#include "tests/fronts/terminal/console.h"
#include "toolkit/fronts/terminal/terminal_window.h"

#include <gtest/gtest.h>

namespace tavrik::front::terminal {
namespace {

TEST(TerminalWindows, Come_in_front_by_modality_and_then_by_what_is_not_minimized) {
    const auto stack = std::make_shared<WindowStack>();
    FakeWindow listener;
    TerminalWindow dialog(listener, stack);
    TerminalWindow first(listener, stack);
    TerminalWindow second(listener, stack);
    first.apply({.visible = true});
    second.apply({.visible = true});
    EXPECT_EQ(stack->frontmost(), &second);
    second.apply({.size_state = WindowSize::kMinimized, .visible = true});
    EXPECT_EQ(stack->frontmost(), &first);
    dialog.apply({.modality = Modality::kProgram, .visible = true});
    second.apply({.visible = true});
    EXPECT_EQ(stack->frontmost(), &dialog);
    dialog.apply({.modality = Modality::kProgram});
    EXPECT_EQ(stack->frontmost(), &second) << "what comes back comes in front";
    first.apply({});
    second.apply({.size_state = WindowSize::kMinimized, .visible = true});
    EXPECT_EQ(stack->frontmost(), &second) << "there is no other";
    second.apply({});
    EXPECT_EQ(stack->frontmost(), nullptr);
}

}  // namespace
}  // namespace tavrik::front::terminal
