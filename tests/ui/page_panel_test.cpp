#include "runtime/tavrik_module.h"
#include "tests/support/balance.h"
#include "tests/support/raised.h"
#include "tests/support/recording_front.h"
#include "toolkit/core/event_scope.h"
#include "ui/canvas.h"
#include "ui/tab_panel.h"
#include "ui/window.h"

#include <gmock/gmock.h>

namespace tavrik::test {
namespace {

using Pages = std::vector<std::int32_t>;
using Names = std::vector<std::string>;

Pages changes;  // the page in front at each Change
void note_change(Object* panel) { changes.push_back(static_cast<PagePanel*>(panel)->Value()); }

int closings = 0;
void note_close(Object*) { ++closings; }

constexpr const char* kOutOfBounds = "OutOfBoundsException";

// A panel of three pages with a canvas on each, "a", "b" and "c", in a window that is shown.
template <class Panel>
class PanelTest : public testing::Test {
protected:
    PanelTest() {
        changes.clear();
        closings = 0;
        window_->Window_();
        panel_ = add<Panel>("Pages");
        panel_->set_PanelCount(3);
        Tavrik::_InstallInstanceEventHandler(panel_, "Change"_s, reinterpret_cast<Function>(&note_change));
        for (std::int32_t page = 0; page < 3; ++page) {
            children_[page] = add<Canvas>(std::string(1, static_cast<char>('a' + page)));
            children_[page]->set_TabPanelIndex(page);
            children_[page]->set_Parent(panel_);
        }
        core::deliver([this] { window_->Show(); });
    }
    ~PanelTest() override { window_->Close(); }

    template <class C>
    Ref<C> add(std::string_view name) {
        const Ref<C> control = make<C>();
        control->Constructor();
        control->set_Name(String(name));
        window_->_AddControl(String(name), control);
        control->set_Visible(true);
        return control;
    }
    // What a person sees of the panel's controls.
    Names seen() {
        Names names;
        for (const ShownControl* const child : front_.windows.back()->content.named("Pages").inside.controls) {
            if (child->common().visible) names.push_back(child->common().name);
        }
        return names;
    }
    Pages pages() const {
        Pages indices;
        for (const Ref<Canvas>& child : children_) indices.push_back(child->PanelIndex());
        return indices;
    }
    static void end_of_event() {
        core::deliver([] {});
    }

    Balance balance_;
    RecordingFront front_;
    Ref<Window> window_ = make<Window>();
    Ref<Panel> panel_;
    Ref<Canvas> children_[3];
};

using PagePanels = PanelTest<PagePanel>;

TEST_F(PagePanels, Show_what_stands_on_the_page_in_front_or_on_all) {
    EXPECT_EQ(seen(), Names{"a"});
    panel_->set_Value(2);
    EXPECT_EQ(seen(), Names{"c"});
    children_[1]->set_PanelIndex(-1);
    EXPECT_EQ(seen(), (Names{"b", "c"}));
    EXPECT_EQ(children_[1]->TabPanelIndex(), -1);
}

TEST_F(PagePanels, Tell_once_of_another_page) {
    panel_->set_Value(2);
    panel_->set_Value(2);
    panel_->set_Value(0);
    EXPECT_EQ(changes, (Pages{2, 0}));
}

TEST_F(PagePanels, Have_no_pages_but_their_own) {
    void (*const wrong[])(PagePanel&) = {
        [](PagePanel& panel) { panel.set_Value(3); }, [](PagePanel& panel) { panel.set_Value(-1); },
        [](PagePanel& panel) { panel.Insert(4); },    [](PagePanel& panel) { panel.Insert(-1); },
        [](PagePanel& panel) { panel.Remove(3); },    [](PagePanel& panel) { panel.Remove(-1); },
    };
    for (const auto each : wrong) EXPECT_EQ(class_raised_by([&] { each(*panel_.get()); }), kOutOfBounds);
    EXPECT_EQ(panel_->PanelCount(), 3);
    EXPECT_EQ(changes, Pages{});
}

TEST_F(PagePanels, Take_what_stands_behind_a_new_page_along) {
    panel_->set_Value(1);
    panel_->Insert(1);
    EXPECT_EQ(panel_->Value(), 2) << "the same page as before";
    EXPECT_EQ(pages(), (Pages{0, 2, 3}));
    EXPECT_EQ(children_[2]->TabPanelIndex(), 3);
    panel_->Append();
    panel_->Insert(5);
    EXPECT_EQ(panel_->PanelCount(), 6);
    EXPECT_EQ(seen(), Names{"b"});
    EXPECT_EQ(changes, Pages{1});
}

TEST_F(PagePanels, Close_what_stands_on_a_removed_page_and_show_the_next_or_the_last) {
    const Ref<Canvas> inner = add<Canvas>("inner");
    inner->set_Parent(children_[1]);
    for (const Ref<Canvas>& closed : {inner, children_[1]}) {
        Tavrik::_InstallInstanceEventHandler(closed, "Close"_s, reinterpret_cast<Function>(&note_close));
    }
    panel_->set_Value(1);
    panel_->Remove(1);
    EXPECT_EQ(closings, 2);
    EXPECT_FALSE(inner->Window());
    EXPECT_EQ(seen(), Names{"c"});
    EXPECT_EQ(pages(), (Pages{0, 1, 1}));
    panel_->Remove(1);
    EXPECT_EQ(seen(), Names{"a"});
    EXPECT_EQ(changes, (Pages{1, 1, 0}));
    panel_->Insert(0);
    panel_->Remove(0);
    EXPECT_EQ(seen(), Names{"a"}) << "nothing in front has changed";
    panel_->Remove(0);
    EXPECT_EQ(seen(), Names{});
    EXPECT_EQ(panel_->PanelCount(), 0);
    EXPECT_EQ(changes, (Pages{1, 1, 0, 0}));
}

TEST_F(PagePanels, Follow_the_stored_number_of_pages_by_the_end_of_the_event) {
    panel_->set_Value(2);
    panel_->set_PanelCount(2);
    EXPECT_EQ(panel_->PanelCount(), 2);
    EXPECT_EQ(seen(), Names{"c"});
    end_of_event();
    EXPECT_EQ(seen(), Names{"b"});
    panel_->set_PanelCount(3);
    end_of_event();
    EXPECT_EQ(seen(), Names{"b"});
    panel_->set_Value(2);
    EXPECT_EQ(seen(), Names{"c"}) << "it was there all the time";
    panel_->set_PanelCount(-4);
    EXPECT_EQ(panel_->PanelCount(), 0);
    EXPECT_EQ(changes, (Pages{2, 1, 2}));
}

// In the order in which a window's construction may set them.
TEST_F(PagePanels, Made_with_their_window_take_a_page_before_they_know_of_it) {
    static const auto create_controls = [](Object* self) {
        const Ref<PagePanel> panel = make<PagePanel>();
        Tavrik::_InstallInstanceEventHandler(panel, "Change"_s, reinterpret_cast<Function>(&note_change));
        static_cast<Window*>(self)->_AddControl("Pages"_s, panel);
        panel->set_PanelCount(2);
        panel->set_Value(1);
        panel->set_Value(7);
        panel->set_PanelCount(4);
    };
    const Ref<Window> window = make<Window>();
    Tavrik::_InstallInstanceEventHandler(window, "CreateControls"_s,
                                         reinterpret_cast<Function>(+[](Object* self) { create_controls(self); }));
    window->Window_();
    EXPECT_EQ(check_cast<PagePanel>(window->Control(0))->Value(), 3);
    EXPECT_EQ(changes, Pages{});
    window->Close();
}

class TabPanels : public PanelTest<TabPanel> {
protected:
    TabPanels() { define("General\rColors && Fonts\r\n\nLast\n"_s); }

    void define(const String& captions) {
        core::deliver([&] { panel_->set_TabDefinition(captions); });
    }
    ShownTabs& tabs() { return dynamic_cast<ShownTabs&>(front_.windows.back()->content.named("Pages")); }
    const Names& captions() { return tabs().description.captions; }
};

TEST_F(TabPanels, Have_a_tab_for_each_line_of_their_definition) {
    EXPECT_EQ(captions(), (Names{"General", "Colors && Fonts", "", "Last"}));
    EXPECT_EQ(panel_->PanelCount(), 4);
    panel_->set_TabDefinition("One"_s);
    EXPECT_EQ(panel_->PanelCount(), 1) << "at once, as far as the program sees";
    EXPECT_EQ(panel_->Caption(0).view(), "One");
    define({});
    EXPECT_EQ(captions(), Names{});
}

TEST_F(TabPanels, Keep_captions_and_pages_together) {
    panel_->set_Caption(2, "Third"_s);
    panel_->Append("End"_s);
    panel_->Insert(0, "Start"_s);
    static_cast<PagePanel*>(panel_.get())->Remove(2);
    panel_->Append();
    EXPECT_EQ(captions(), (Names{"Start", "General", "Third", "Last", "End", ""}));
    EXPECT_EQ(tabs().description.chosen, 1);
    EXPECT_EQ(pages(), (Pages{1, 2, 2})) << "the second one is closed";
    panel_->set_PanelCount(2);
    end_of_event();
    EXPECT_EQ(captions(), (Names{"Start", "General"}));
    for (const std::int32_t tab : {-1, 2}) {
        EXPECT_EQ(class_raised_by([&] { panel_->Caption(tab); }), kOutOfBounds);
        EXPECT_EQ(class_raised_by([&] { panel_->set_Caption(tab, "x"_s); }), kOutOfBounds);
    }
}

TEST_F(TabPanels, Follow_the_person_while_they_are_enabled) {
    tabs().choices.tab_chosen(1);
    EXPECT_EQ(panel_->Value(), 1);
    EXPECT_EQ(seen(), Names{"b"});
    panel_->set_Enabled(false);
    const int told = tabs().times_told;
    tabs().choices.tab_chosen(2);
    EXPECT_EQ(panel_->Value(), 1);
    EXPECT_GT(tabs().times_told, told) << "the front has shown the other one by now";
    EXPECT_EQ(changes, Pages{1});
}

TEST_F(TabPanels, Are_shown_as_their_properties_say_by_the_end_of_the_event) {
    panel_->set_TextFont("Serif"_s);
    panel_->set_TextSize(14);
    panel_->set_Bold(true);
    panel_->set_Italic(true);
    panel_->set_Underline(true);
    EXPECT_EQ(tabs().description.style, (front::TextStyle{"Serif", 14, true, true, true}));
    const front::TabSide sides[] = {front::TabSide::kTop, front::TabSide::kBottom, front::TabSide::kRight,
                                    front::TabSide::kLeft, front::TabSide::kTop};
    for (std::int32_t facing = 0; facing < 5; ++facing) {
        panel_->set_Facing(facing);
        panel_->set_SmallTabs(facing == 1);
        end_of_event();
        EXPECT_EQ(tabs().description.side, sides[facing]);
        EXPECT_EQ(tabs().description.small, facing == 1);
    }
    const int told = tabs().times_told;
    end_of_event();
    EXPECT_EQ(tabs().times_told, told);
}

TEST_F(TabPanels, Know_the_tab_at_a_place_while_they_are_on_a_screen) {
    EXPECT_EQ(panel_->_TabClickedOn(25, 3), 2);
    const Ref<TabPanel> nowhere = make<TabPanel>();
    EXPECT_EQ(nowhere->_TabClickedOn(25, 3), -1);
}

TEST_F(PagePanels, Have_canvases_that_follow_their_stored_looks_too) {
    auto& shown = dynamic_cast<ShownCanvas&>(front_.windows.back()->content.named("Pages").inside.named("a"));
    children_[0]->set_AcceptFocus(true);
    children_[0]->set_EraseBackground(false);
    EXPECT_FALSE(shown.description.accepts_focus);
    end_of_event();
    EXPECT_TRUE(shown.description.accepts_focus);
    EXPECT_FALSE(shown.description.erases_background);
}

}  // namespace
}  // namespace tavrik::test
