#include "tests/fronts/terminal/console.h"

namespace tavrik::front::terminal {
namespace {

struct FakeTabs final : test::QuietControl, TabsListener {
    void tab_chosen(int tab) override { when_chosen(tab); }

    std::function<void(int)> when_chosen;
};

TEST(TerminalTabs, Each_has_a_number_before_what_lies_on_the_page_and_using_it_chooses_it) {
    Program program;
    FakeTabs listener;
    TabsDescription told{{.tab_index = -1}, {"&General", "Advanced"}};
    const auto tabs = program.window->make_tabs(listener, listener);
    const auto inside = tabs->make_button(program.load_listener, program.load_listener);
    listener.when_chosen = [&](int tab) {
        program.reports.push_back("tab " + std::to_string(tab));
        told.chosen = tab;
        tabs->apply(told);
        inside->apply({{.visible = tab == 0}, "Inside"});
    };
    listener.when_chosen(0);
    EXPECT_EQ(program.run("1\n3\nadvanced\n"),
              "maptool\nFile: Quit\n1. General: shown\n2. Advanced\n3. Inside\n4. Load\n5. Null (off)\n"
              "maptool\nFile: Quit\n1. General\n2. Advanced: shown\n3. Load\n4. Null (off)\n");
    EXPECT_EQ(program.reports, (Reports{"tab 0", "load", "tab 1", "quit requested"}));
}

TEST(TerminalTabs, Disabled_ones_are_shown_and_not_chosen) {
    Program program;
    FakeTabs listener;
    listener.when_chosen = [&](int) { program.reports.push_back("tab"); };
    const auto tabs = program.window->make_tabs(listener, listener);
    tabs->apply({{.enabled = false}, {"General", "Advanced"}});
    EXPECT_EQ(program.run("4\n"),
              std::string(kScreen) + "3. General: shown (off)\n4. Advanced (off)\nAdvanced can't be used now.\n");
    EXPECT_EQ(program.reports, Reports{"quit requested"});
}

}  // namespace
}  // namespace tavrik::front::terminal
