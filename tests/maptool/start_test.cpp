#include "maptool/start.h"

#include "maptool/app.h"
#include "maptool/initialize.h"
#include "maptool/menu_bar1.h"
#include "maptool/window1.h"
#include "runtime/tavrik_module.h"
#include "tests/maptool/run_tool.h"

namespace tavrik {
namespace {

class Start : public ToolTest {};

TEST_F(Start, The_window_is_on_the_screen_with_the_applications_menu_bar) {
    run_tool([](ScriptedFront& front) {
        ASSERT_TRUE(front.window);
        EXPECT_TRUE(front.window->description.visible);
        const Ref<MenuBar1::MenuBar1> bar = MenuBar1::MenuBar1_();
        EXPECT_EQ(check_cast<App>(Tavrik::_GetAppObject())->MenuBar(), bar);
        EXPECT_EQ(Window1::Window1_()->MenuBar(), bar);
    });
}

TEST_F(Start, Quit_in_the_menu_and_the_end_of_the_one_window_end_the_loop_with_status_0) {
    for (const bool by_menu : {true, false}) {
        EXPECT_EQ(run_tool([&](ScriptedFront& front) {
                      by_menu ? front.window->choose(0, 0) : front.window->listener.close_requested();
                      EXPECT_EQ(front.times_quit, 1);
                      EXPECT_FALSE(front.window);
                  }),
                  0);
    }
}

TEST_F(Start, A_window_that_cannot_be_made_is_told_and_nothing_is_dispatched) {
    auto front = std::make_unique<ScriptedFront>([](ScriptedFront&) { FAIL() << "dispatched"; });
    std::vector<std::string> told;
    front->before_window = [] { RuntimeRaise("ServiceNotAvailableException", "no window today"); };
    front->when_message = [&told, the = front.get()] { told = the->messages; };
    EXPECT_EQ(run_tool(std::move(front)), 1);
    EXPECT_EQ(told, std::vector<std::string>{"no window today"});
}

TEST_F(Start, A_loop_that_ends_without_having_quit_leaves_no_window_behind) {
    EXPECT_EQ(run_tool(std::make_unique<ScriptedFront>([](ScriptedFront& front) { EXPECT_TRUE(front.window); })), 0);
}

TEST_F(Start, Initializing_and_finalizing_may_come_twice) {
    initialize();
    const std::int32_t newest = RuntimeClassNumber(RuntimeGetClassList());
    initialize();
    EXPECT_EQ(RuntimeClassNumber(RuntimeGetClassList()), newest);
    finalize();
    finalize();
}

}  // namespace
}  // namespace tavrik
