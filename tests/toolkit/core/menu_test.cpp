#include "data/application.h"
#include "tests/support/balance.h"
#include "tests/support/raised.h"
#include "tests/support/recording_front.h"
#include "toolkit/core/event_scope.h"
#include "toolkit/core/menu_item.h"
#include "ui/apple_menu_item.h"
#include "ui/menu_bar.h"
#include "ui/prefs_menu_item.h"
#include "ui/push_button.h"
#include "ui/quit_menu_item.h"
#include "ui/window.h"

#include <tavrik/runtime.h>

#include <optional>

namespace tavrik::test {

// Whoever an item comes by takes a note, and keeps it if told to.
std::vector<std::string> stations;
std::string keeper;
Object* actor = nullptr;

bool passes(const char* station) {
    stations.emplace_back(station);
    return keeper == station;
}

struct RoadWindow : Class<RoadWindow, Window> {
    static const ClassDefinition& definition();
};
struct RoadApplication : Class<RoadApplication, Application> {
    static const ClassDefinition& definition();
};

namespace {

bool window_command(RoadWindow*, Arg<MenuItem>) { return passes("window's command"); }
bool application_command(RoadApplication*, Arg<MenuItem>) { return passes("application's command"); }

constexpr OperationRow kWindowOperations[] = {
    overrides<RoadWindow, &Window::_HandleMenuCommand, window_command>("_HandleMenuCommand")};
constexpr OperationRow kApplicationOperations[] = {
    overrides<RoadApplication, &Application::_HandleMenuCommand, application_command>("_HandleMenuCommand")};

template <class Handler>
Function function(Handler handler) {
    return reinterpret_cast<Function>(handler);
}

bool on_action(Object* item) {
    actor = item;
    return passes("action");
}
bool on_focus(Object*) { return passes("focus"); }
bool on_window(Object*) { return passes("window"); }
bool on_application(Object*) { return passes("application"); }
void disable(Object* item) { RuntimeMenuItemEnabledSetter(item, 0, false); }
void fill(Object* menu) {
    if (RuntimeMenuItemCount(menu) == 0) RuntimeMenuItemAppend(menu, make<MenuItem>().object());
}

}  // namespace

const ClassDefinition& RoadWindow::definition() {
    static constexpr ClassDefinition kDefinition = define<RoadWindow>({.operations = kWindowOperations});
    return kDefinition;
}
const ClassDefinition& RoadApplication::definition() {
    static constexpr ClassDefinition kDefinition = define<RoadApplication>({.operations = kApplicationOperations});
    return kDefinition;
}

namespace {

using Names = std::vector<std::string>;

// A window with the menu "Edit" and the entries "Cut" and "Copy" in it.
class Menus : public testing::Test {
protected:
    Menus() {
        stations.clear();
        keeper.clear();
        RuntimeRegisterAppObject(app_.object());
        bar_->Append(edit_);
        for (const auto& item : {cut_, copy_}) edit_->Append(item);
        open(window_);
        window_->set_MenuBar(bar_);
    }
    ~Menus() override {
        for (const Ref<RoadWindow>& window : {window_, other_}) window->Close();
        RuntimeRegisterAppObject(nullptr);
    }

    template <class Item = MenuItem>
    static Ref<Item> item(std::string_view name) {
        Ref<Item> made = make<Item>();
        made->Constructor(String(name), nullptr);
        made->set_Name(String(name));
        return made;
    }
    static void open(const Ref<RoadWindow>& window) {
        window->Window_();
        window->Show();
    }
    static void install(const Ref<MenuItem>& item, const char* event, Function handler) {
        RuntimeInstallInstanceEventHandler(item.object(), String(std::string_view(event)), handler);
    }
    static front::MenuId id(const Ref<MenuItem>& item) { return reinterpret_cast<std::uintptr_t>(item.object()); }
    static Names names(const Ref<MenuItem>& menu) {
        Names names;
        for (std::int32_t i = 0; i < menu->Count(); ++i) names.emplace_back(menu->Item(i)->Name().view());
        return names;
    }
    static front::MenuDescription shown(const Ref<MenuItem>& item, const Ref<MenuBar>& bar) {
        for (const front::MenuDescription& menu : core::describe_menus(bar.object())) {
            for (const front::MenuDescription& entry : menu.children) {
                if (entry.id == id(item)) return entry;
            }
        }
        return {};
    }
    void choose(const Ref<MenuItem>& item) { core::choose_menu_item(window_.object(), id(item)); }
    void give_focus() { window_->_mFocusControl = button_; }
    // As one menu after the other tells.
    std::vector<Names> menus_told() {
        std::vector<Names> told;
        for (const front::MenuDescription& menu : front_.menus.back()) {
            told.emplace_back();
            for (const front::MenuDescription& entry : menu.children) told.back().push_back(entry.text);
        }
        return told;
    }

    Balance balance_;
    RecordingFront front_;
    Ref<RoadApplication> app_ = make<RoadApplication>();
    Ref<RoadWindow> window_ = make<RoadWindow>(), other_ = make<RoadWindow>();
    Ref<PushButton> button_ = make<PushButton>();
    Ref<MenuBar> bar_ = make<MenuBar>();
    Ref<MenuItem> edit_ = item("Edit"), cut_ = item("Cut"), copy_ = item("Copy");
};

TEST_F(Menus, A_chosen_item_travels_until_somebody_keeps_it) {
    install(cut_, "Action", function(on_action));
    give_focus();
    ControlAddMenuHandler(button_.object(), "Cut"_s, function(on_focus));
    window_->_AddMenuHandler("Cut"_s, function(on_window));
    app_->_AddMenuHandler("Cut"_s, function(on_application));

    const Names road{"action", "focus", "window", "application", "window's command", "application's command"};
    for (std::size_t i = 0; i < road.size(); ++i) {
        stations.clear();
        keeper = road[i];
        choose(cut_);
        EXPECT_EQ(stations, Names(road.begin(), road.begin() + static_cast<std::ptrdiff_t>(i) + 1)) << keeper;
    }
    stations.clear();
    choose(copy_);
    EXPECT_EQ(stations, (Names{"window's command", "application's command"})) << "handlers go by the name";
}

TEST_F(Menus, What_is_disabled_or_stands_in_a_disabled_menu_is_not_chosen) {
    for (const Ref<MenuItem>& item : {cut_, edit_}) {
        item->set_Enabled(false);
        choose(cut_);
        EXPECT_EQ(stations, Names{});
        item->Enable();
    }
    choose(cut_);
    EXPECT_FALSE(stations.empty());
}

TEST_F(Menus, Items_are_enabled_by_whoever_would_do_something) {
    struct Case {
        const char* what;
        std::function<void()> arrange;
        bool automatic, otherwise;  // whether the item ends enabled, with AutoEnable and, disabled before, without
    };
    const Case cases[] = {
        {"nobody", [] {}, false, false},
        {"its own action", [&] { install(cut_, "Action", function(on_action)); }, true, false},
        {"its own action, and it disables itself", [&] { install(cut_, "EnableMenu", function(disable)); }, false,
         false},
        {"the application", [&] { app_->_AddMenuHandler("Cut"_s, function(on_application)); }, true, true},
        {"the window", [&] { window_->_AddMenuHandler("Cut"_s, function(on_window)); }, true, true},
        {"the focus", [&] { ControlAddMenuHandler(button_.object(), "Cut"_s, function(on_focus)); }, true, true},
    };
    give_focus();
    for (const Case& each : cases) {
        SCOPED_TRACE(each.what);
        each.arrange();
        cut_->set_AutoEnable(true);
        core::enable_menu_items(window_.object());
        EXPECT_EQ(cut_->Enabled(), each.automatic);
        cut_->set_AutoEnable(false);
        cut_->set_Enabled(false);
        core::enable_menu_items(window_.object());
        EXPECT_EQ(cut_->Enabled(), each.otherwise);
        EXPECT_TRUE(copy_->Enabled()) << "the others are left alone";
    }
}

TEST_F(Menus, A_menu_may_be_filled_as_it_opens) {
    const Ref<MenuItem> recent = item("Recent");
    recent->set_AutoEnable(true);
    bar_->Append(recent);
    install(recent, "EnableMenu", function(fill));
    front_.window->menus_opening();
    EXPECT_EQ(recent->Count(), 1);
    EXPECT_TRUE(recent->Enabled());
    EXPECT_EQ(menus_told(), (std::vector<Names>{{"Cut", "Copy"}, {""}}));
}

TEST_F(Menus, Changes_are_told_once_by_the_end_of_the_event_or_when_the_front_is_pumped) {
    std::vector<std::function<void()>> posted;
    front_.when_posted = [&](auto call) { posted.push_back(std::move(call)); };
    const auto change_much = [&] {
        for (int i = 0; i < 1000; ++i) edit_->Append(item(std::to_string(i)));
    };
    front_.menus.clear();
    core::deliver(change_much);
    ASSERT_EQ(front_.menus.size(), 1U);
    EXPECT_EQ(front_.menus[0][0].children.size(), 1002U);

    change_much();
    EXPECT_EQ(front_.menus.size(), 1U);
    for (const auto& call : posted) call();
    ASSERT_EQ(front_.menus.size(), 2U);
    EXPECT_EQ(front_.menus[1][0].children.size(), 2002U);
}

TEST_F(Menus, A_window_without_a_bar_shows_that_of_the_application_if_it_stands_by_itself) {
    const Ref<MenuBar> common = make<MenuBar>();
    common->Append(item("Common"));
    app_->set_MenuBar(common);
    EXPECT_EQ(core::menu_bar_of(window_.object()), bar_.object());
    window_->set_MenuBar(nullptr);
    EXPECT_EQ(core::menu_bar_of(window_.object()), common.object());
    EXPECT_EQ(front_.menus.back()[0].text, "Common");
    common->Item(0)->set_Text("Changed"_s);
    EXPECT_EQ(front_.menus.back()[0].text, "Changed");
    window_->set_Frame(1);
    EXPECT_EQ(core::menu_bar_of(window_.object()), nullptr);
    app_->set_MenuBar(nullptr);
}

TEST_F(Menus, An_item_is_told_as_it_is) {
    cut_->set_BalloonHelp("cuts"_s);
    EXPECT_EQ(shown(cut_, bar_).help, "cuts");
    cut_->set_Enabled(false);
    EXPECT_EQ(shown(cut_, bar_).help, "cuts");
    cut_->set_DisabledBalloonHelp("nothing to cut"_s);
    EXPECT_EQ(shown(cut_, bar_).help, "nothing to cut");

    cut_->set_Checked(true);
    cut_->set_CommandKey("Cmd+X"_s);
    cut_->set__Italic(true);
    const front::MenuDescription told = shown(cut_, bar_);
    EXPECT_TRUE(told.checked && told.italic && !told.bold && !told.underline && !told.enabled);
    EXPECT_EQ(told.shortcut, "Cmd+X");
    EXPECT_EQ(cut_->KeyboardShortcut().view(), "Cmd+X");
    RuntimeMenuItemEnabledIconSetter(cut_.object(), 0, button_.object());
    EXPECT_EQ(RuntimeMenuItemEnabledIconGetter(cut_.object(), 0), button_);

    const std::pair<Ref<MenuItem>, front::MenuRole> roles[] = {
        {item<QuitMenuItem>("Quit"), front::MenuRole::kQuit},
        {item<PrefsMenuItem>("Preferences"), front::MenuRole::kPreferences},
        {item<AppleMenuItem>("About"), front::MenuRole::kAbout},
        {item("Paste"), front::MenuRole::kPlain}};
    for (const auto& [entry, role] : roles) {
        edit_->Append(entry);
        EXPECT_EQ(shown(entry, bar_).role, role);
    }
}

TEST_F(Menus, An_item_takes_the_place_of_the_one_that_it_is_swapped_with) {
    const Ref<MenuItem> paste = item("Paste");
    bar_->_Swap("Cut"_s, paste);
    EXPECT_EQ(names(edit_), (Names{"Paste", "Copy"}));
    cut_->Close();
    edit_->_Swap("Paste"_s, copy_);
    EXPECT_EQ(names(edit_), Names{"Copy"}) << "it leaves the place that it had";
    edit_->_Swap("Undo"_s, paste);
    edit_->_Swap("Copy"_s, copy_);
    EXPECT_EQ(names(edit_), Names{"Copy"});
    EXPECT_EQ(class_raised_by([&] { edit_->_Swap("Copy"_s, nullptr); }), "NilObjectException");
    EXPECT_EQ(class_raised_by([&] { bar_->_Swap("Copy"_s, edit_); }), "IllegalCastException");
    EXPECT_EQ(names(edit_), Names{"Copy"});
}

TEST_F(Menus, An_item_moves_to_a_place_that_there_is_or_stays) {
    edit_->Insert(1, cut_);
    EXPECT_EQ(names(edit_), (Names{"Copy", "Cut"}));
    for (const std::int32_t place : {-1, 2}) {
        EXPECT_EQ(class_raised_by([&] { edit_->Insert(place, copy_); }), "OutOfBoundsException");
    }
    EXPECT_EQ(class_raised_by([&] { cut_->Insert(1, copy_); }), "OutOfBoundsException");
    EXPECT_EQ(names(edit_), (Names{"Copy", "Cut"}));
    cut_->Append(copy_);
    EXPECT_EQ(names(edit_), Names{"Cut"});
}

TEST_F(Menus, Items_of_an_array_are_found_by_their_index) {
    for (std::int32_t i = 0; i < 3; ++i) {
        const Ref<MenuItem> recent = item("Recent");
        recent->set_Index(i);
        edit_->Append(recent);
    }
    EXPECT_EQ(bar_->_Lookup("Recent"_s, 2), edit_->Item(4));
    EXPECT_EQ(bar_->_Lookup("Recent"_s), edit_->Item(2));
    EXPECT_FALSE(bar_->_Lookup("Recent"_s, 3));
}

TEST_F(Menus, Preferences_are_enabled_once_something_is_done_about_them) {
    const Ref<PrefsMenuItem> prefs = item<PrefsMenuItem>("Preferences");
    prefs->set_AutoEnable(true);
    edit_->Append(prefs);
    core::enable_menu_items(window_.object());
    EXPECT_FALSE(prefs->Enabled());
    EXPECT_FALSE(prefs->Event_Action());
    install(prefs, "Action", function(on_action));
    core::enable_menu_items(window_.object());
    EXPECT_TRUE(prefs->Enabled());
    keeper = "action";
    EXPECT_TRUE(prefs->Event_Action());
    EXPECT_EQ(stations, Names{"action"});
}

class Clones : public Menus {
protected:
    Clones() {
        open(other_);
        other_->set_MenuBar(second_);
        second_->_InstallClone(edit_);
    }
    Ref<MenuItem> clone() { return second_->Item(0); }

    Ref<MenuBar> second_ = make<MenuBar>();
};

TEST_F(Clones, Show_what_the_original_shows_now_and_later) {
    EXPECT_NE(clone(), edit_);
    EXPECT_EQ(RuntimeClassOf(clone().object()), RuntimeClassOf(edit_.object()));
    EXPECT_EQ(second_->_Lookup("Cut"_s), cut_);
    const std::vector<std::function<void()>> changes{
        [&] { edit_->set_Text("&Edit"_s); },       [&] { clone()->set_Enabled(false); },
        [&] { cut_->set_Checked(true); },          [&] { edit_->Append(item("Paste")); },
        [&] { clone()->Insert(0, item("Undo")); }, [&] { edit_->Remove(1); },
    };
    for (const auto& change : changes) {
        front_.menus.clear();
        change();
        ASSERT_GE(front_.menus.size(), 2U) << "both windows are told";
        const front::MenuDescription& first = front_.menus[front_.menus.size() - 2][0];
        const front::MenuDescription& second = front_.menus.back()[0];
        EXPECT_EQ(first.text, second.text);
        EXPECT_EQ(first.enabled, second.enabled);
        ASSERT_EQ(first.children.size(), second.children.size());
        for (std::size_t i = 0; i < first.children.size(); ++i) {
            EXPECT_EQ(first.children[i].text, second.children[i].text);
            EXPECT_EQ(first.children[i].checked, second.children[i].checked);
        }
    }
    EXPECT_EQ(names(clone()), (Names{"Undo", "Copy", "Paste"}));
}

TEST_F(Clones, Act_as_the_original) {
    second_->_InstallClone(cut_);
    const Ref<MenuItem> cut = second_->Item(1);
    install(cut_, "Action", function(on_action));
    cut_->set_AutoEnable(true);
    core::enable_menu_items(other_.object());
    EXPECT_TRUE(cut->Enabled());
    for (const Ref<MenuItem>& chosen : {cut, cut_}) {
        actor = nullptr;
        core::choose_menu_item(other_.object(), id(chosen));
        EXPECT_EQ(actor, cut_.object());
    }
}

TEST_F(Clones, Stay_when_the_original_moves_and_go_when_it_is_closed) {
    second_->_InstallClone(clone());
    bar_->Remove(edit_);
    EXPECT_EQ(names(second_), (Names{"Edit", "Edit"}));
    second_->Remove(0);
    EXPECT_EQ(names(second_), Names{"Edit"});
    edit_->Close();
    EXPECT_EQ(names(second_), Names{});
    EXPECT_EQ(names(edit_), (Names{"Cut", "Copy"}));
}

TEST_F(Clones, Never_stand_below_themselves) {
    EXPECT_EQ(class_raised_by([&] { edit_->Append(second_); }), "IllegalCastException");
    EXPECT_EQ(class_raised_by([&] { clone()->Append(bar_); }), "IllegalCastException");
    EXPECT_EQ(class_raised_by([&] { second_->_InstallClone(nullptr); }), "NilObjectException");
    const Ref<MenuBar> inner = make<MenuBar>();
    edit_->Append(inner);
    EXPECT_EQ(class_raised_by([&] { inner->_InstallClone(edit_); }), "IllegalCastException");
}

class PopUps : public Menus {
protected:
    void choose_by_person(std::optional<front::MenuId> chosen) {
        front_.when_popped_up = [this, chosen](const front::MenuDescription& menu, std::optional<front::Point> at) {
            texts_.clear();
            for (const front::MenuDescription& entry : menu.children) texts_.push_back(entry.text);
            place_ = at;
            return chosen;
        };
    }

    Names texts_;
    std::optional<front::Point> place_;
};

TEST_F(PopUps, Return_the_chosen_entry_which_has_done_what_it_does) {
    install(cut_, "Action", function(on_action));
    choose_by_person(id(cut_));
    keeper = "action";
    EXPECT_EQ(edit_->PopUp(), cut_);
    EXPECT_EQ(stations, Names{"action"});
    EXPECT_EQ(texts_, (Names{"Cut", "Copy"}));
    EXPECT_FALSE(place_) << "at the pointer";
    EXPECT_EQ(edit_->PopUp(30, 40), cut_);
    EXPECT_EQ(place_, (front::Point{30, 40}));
}

TEST_F(PopUps, Return_nil_when_nothing_was_chosen_or_can_be) {
    choose_by_person(std::nullopt);
    EXPECT_FALSE(edit_->PopUp());
    EXPECT_EQ(texts_.size(), 2U);
    core::deliver([&] { edit_->PopUp()->Close(); });
    EXPECT_TRUE(front_.messages.empty()) << "the person knows";

    choose_by_person(id(cut_));
    cut_->set_Enabled(false);
    EXPECT_FALSE(edit_->PopUp());
    texts_ = {"not asked"};
    edit_->_DisableEntirely();
    for (const Ref<MenuItem>& item : {cut_, copy_}) item->set_Visible(false);
    EXPECT_FALSE(edit_->PopUp());
    EXPECT_EQ(texts_, Names{"not asked"});
    EXPECT_EQ(stations, Names{});
}

TEST_F(PopUps, Live_until_they_are_answered) {
    Ref<MenuItem> menu = item("Context");
    menu->Append(item("Entry"));
    front_.when_popped_up = [&](const front::MenuDescription& shown, auto) {
        menu = nullptr;
        return shown.children[0].id;
    };
    EXPECT_EQ(menu.get()->PopUp()->Name().view(), "Entry");
}

}  // namespace
}  // namespace tavrik::test
