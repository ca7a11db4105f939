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

TEST_F(Start, The_window_is_on_the_screen_before_anything_is_dispatched) {
    run_tool([](ScriptedFront& front) {
        ASSERT_EQ(front.windows.size(), 1U);
        EXPECT_TRUE(front.window().description.visible);
        EXPECT_EQ(front.window().buttons.size(), 3U);
        EXPECT_EQ(front.window().menus.size(), 2U);
        EXPECT_EQ(front.messages, std::vector<std::string>{});
        EXPECT_TRUE(front.choices.empty());
    });
}

TEST_F(Start, The_application_and_the_window_share_the_menu_bar) {
    run_tool([](ScriptedFront&) {
        const Ref<App> app = check_cast<App>(Tavrik::_GetAppObject());
        const Ref<MenuBar1::MenuBar1> bar = MenuBar1::MenuBar1_();
        EXPECT_EQ(app->MenuBar(), bar);
        EXPECT_EQ(Window1::Window1_()->MenuBar(), bar);
    });
}

TEST_F(Start, Quit_in_the_menu_ends_the_loop_with_status_0) {
    EXPECT_EQ(run_tool([](ScriptedFront& front) {
                  front.window().choose("&File", "&Quit");
                  EXPECT_EQ(front.times_quit, 1);
                  EXPECT_TRUE(front.windows.empty());
              }),
              0);
}

TEST_F(Start, Closing_the_one_window_quits) {
    EXPECT_EQ(run_tool([](ScriptedFront& front) {
                  front.window().ask_to_close();
                  EXPECT_EQ(front.times_quit, 1);
                  EXPECT_TRUE(front.windows.empty());
              }),
              0);
}

TEST_F(Start, A_window_that_cannot_be_made_is_told_and_nothing_is_dispatched) {
    bool was_dispatched = false;
    auto front = std::make_unique<ScriptedFront>([&](ScriptedFront&) { was_dispatched = true; });
    std::vector<std::string> told;
    front->before_window = [] { RuntimeRaise("ServiceNotAvailableException", "no window today"); };
    front->when_message = [&told, the = front.get()] { told = the->messages; };
    EXPECT_EQ(run_tool(std::move(front)), 1);
    EXPECT_EQ(told, std::vector<std::string>{"no window today"});
    EXPECT_FALSE(was_dispatched);
}

TEST_F(Start, A_loop_that_ends_without_having_quit_leaves_no_window_behind) {
    bool was_told = false;
    auto front = std::make_unique<ScriptedFront>([](ScriptedFront& the) { EXPECT_EQ(the.windows.size(), 1U); });
    front->when_message = [&] { was_told = true; };
    EXPECT_EQ(run_tool(std::move(front)), 0);
    EXPECT_FALSE(was_told);
}

TEST_F(Start, Initializing_twice_builds_no_class_twice) {
    initialize();
    const std::int32_t newest = RuntimeClassNumber(RuntimeGetClassList());
    initialize();
    EXPECT_EQ(RuntimeClassNumber(RuntimeGetClassList()), newest);
    finalize();
}

TEST_F(Start, Finalizing_what_was_never_started_releases_nothing) {
    finalize();
    finalize();
}

}  // namespace
}  // namespace tavrik
