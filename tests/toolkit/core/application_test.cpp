#include "data/application.h"

#include "data/dictionary.h"
#include "data/folder_item.h"
#include "data/pollable.h"
#include "maptool/app.h"
#include "tests/support/balance.h"
#include "tests/support/raised.h"
#include "tests/support/recording_front.h"
#include "tests/support/sketch.h"
#include "tests/support/temporary_folder.h"
#include "toolkit/core/event_scope.h"
#include "toolkit/core/executable.h"
#include "toolkit/core/reflection.h"
#include "toolkit/core/wake_up.h"
#include "ui/menu_item.h"

#include <tavrik/runtime.h>

#include <gmock/gmock.h>

#include <array>
#include <fstream>

namespace tavrik::test {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using Log = std::vector<std::string>;

Log the_log;

template <LiteralText Name>
void note(Object*) {
    the_log.emplace_back(Name.view());
}
void note_document(Object*, Object* item) {
    the_log.emplace_back(check_cast<FolderItem>(Ref<Object>(item))->Name().view());
}

template <class F>
void handle(Object* object, const char* event, F* handler) {
    RuntimeInstallInstanceEventHandler(object, String(std::string_view(event)), reinterpret_cast<Function>(handler));
}

class Applications : public testing::Test {
protected:
    Applications() {
        the_log.clear();
        handle(app_.object(), "Open", note<"Open">);
        handle(app_.object(), "NewDocument", note<"NewDocument">);
        handle(app_.object(), "OpenDocument", note_document);
        handle(app_.object(), "Activate", note<"Activate">);
        handle(app_.object(), "Deactivate", note<"Deactivate">);
        RuntimeRegisterAppObject(app_.object());
        front_.when_run = [] { the_log.emplace_back("run"); };
    }
    ~Applications() override { RuntimeRegisterAppObject(nullptr); }

    static void hand_over(const std::vector<std::string>& paths) { core::desktop().open_documents(paths); }

    Balance balance_;
    RecordingFront front_;
    Ref<App> app_ = make<App>();
};

TEST_F(Applications, Without_a_document_begin_with_a_new_one) {
    RuntimeRun();
    EXPECT_THAT(the_log, ElementsAre("Open", "NewDocument", "run"));
}

TEST_F(Applications, Open_the_documents_that_the_desktop_hands_over_before_and_while_they_run) {
    hand_over({"/maps/first.map", "/maps/second.map"});
    front_.when_run = [] { hand_over({"/maps/third.map"}); };
    RuntimeRun();
    EXPECT_THAT(the_log, ElementsAre("Open", "first.map", "second.map", "third.map"));
}

TEST_F(Applications, Open_the_second_document_also_if_the_first_one_fails) {
    handle(
        app_.object(), "OpenDocument", +[](Object*, Object* item) {
            note_document(nullptr, item);
            raise<UnsupportedFormatException>("no map");
        });
    hand_over({"/maps/first.map", "/maps/second.map"});
    RuntimeRun();
    EXPECT_THAT(the_log, ElementsAre("Open", "first.map", "second.map", "run"));
    EXPECT_THAT(front_.messages, ElementsAre("no map", "no map"));
}

TEST_F(Applications, That_quit_in_Open_begin_nothing) {
    handle(
        app_.object(), "Open", +[](Object*) { core::quit(); });
    RuntimeRun();
    EXPECT_THAT(the_log, ElementsAre());
}

TEST_F(Applications, Are_told_once_when_the_whole_program_comes_to_the_front_and_leaves_it) {
    for (const bool active : {true, true, false, false, true}) core::desktop().activated(active);
    EXPECT_THAT(the_log, ElementsAre("Activate", "Deactivate", "Activate"));
}

TEST_F(Applications, May_refuse_to_quit_and_close_when_they_do_not) {
    static bool refuses;
    handle(
        app_.object(), "CancelClose", +[](Object*, bool quits) {
            the_log.emplace_back(quits ? "CancelClose" : "?");
            return refuses;
        });
    handle(app_.object(), "Close", note<"Close">);
    for (const bool refused : {true, false}) {
        refuses = refused;
        core::desktop().quit_requested();
    }
    EXPECT_THAT(the_log, ElementsAre("CancelClose", "CancelClose", "Close"));
    EXPECT_EQ(front_.quits, 1);
}

TEST_F(Applications, Enable_only_the_items_that_they_handle) {
    const auto items = ArrayOf<MenuItem>::make();
    handle(app_.object(), "EnableMenuItems", note<"EnableMenuItems">);
    app_->_mMenuHandlers = nullptr;
    app_->_EnableMenuItems(items);
    EXPECT_THAT(the_log, ElementsAre("EnableMenuItems"));

    for (const char* const name : {"Handled", "Other", "Kept"}) {
        const Ref<MenuItem> item = make<MenuItem>();
        item->set_Name(String(std::string_view(name)));
        item->set_Enabled(std::string_view(name) == "Kept");
        items->append(item);
    }
    EXPECT_EQ(class_raised_by([&] { app_->_EnableMenuItems(items); }), "NilObjectException");
    app_->_mMenuHandlers = make<Dictionary>();
    app_->_AddMenuHandler("Handled"_s, nullptr);
    app_->_EnableMenuItems(items);
    EXPECT_TRUE(items->at(0)->Enabled());
    EXPECT_FALSE(items->at(1)->Enabled());
    EXPECT_TRUE(items->at(2)->Enabled());
    EXPECT_EQ(class_raised_by([&] { app_->_EnableMenuItems(nullptr); }), "NilObjectException");
    EXPECT_FALSE(app_->_HandleMenuCommand(nullptr));
}

// Gets and sets through the record, as a late-bound caller does.
template <class Value>
struct Access {
    explicit Access(const char* name) : record(core::find_property(App::__Lookup(), name)) {}
    Value get(Object* object) const {
        return reinterpret_cast<Value (*)(Object*, std::int32_t)>(record->getter)(object, record->parameter);
    }
    template <class Argument>
    void set(Object* object, Argument value) const {
        reinterpret_cast<void (*)(Object*, std::int32_t, Argument)>(record->setter)(object, record->parameter, value);
    }
    const PropertyRecord* record;
};

TEST_F(Applications, Keep_what_their_properties_are_given) {
    const Ref<Object> given = make<Dictionary>();
    for (const char* const name : {"MDIWindow", "MenuBar"}) {
        const Access<Ref<Object>> property(name);
        property.set(app_.object(), given.object());
        EXPECT_EQ(property.get(app_.object()), given) << name;
        property.set(app_.object(), static_cast<Object*>(nullptr));
        EXPECT_FALSE(property.get(app_.object())) << name;
    }
    for (const char* const name : {"BalloonHelpVisible", "AutoQuit"}) {
        const Access<bool> property(name);
        for (const bool value : {false, true}) {
            property.set(app_.object(), value);
            EXPECT_EQ(property.get(app_.object()), value) << name;
        }
    }
}

TEST_F(Applications, Ignore_what_some_properties_are_given) {
    const Ref<Object> given = make<Dictionary>();
    for (const char* const name : {"ResourceFork", "DockItem", "ExecutableFile", "CurrentThread"}) {
        const Access<Ref<Object>> property(name);
        property.set(app_.object(), given.object());
        EXPECT_NE(property.get(app_.object()), given) << name;
    }
}

TEST_F(Applications, Raise_the_events_of_their_operations) {
    app_->NewDocument();
    const Ref<FolderItem> item = make<FolderItem>();
    item->Constructor("/maps/valley.map"_s, kPathAbsolute);
    app_->OpenDocument(item);
    EXPECT_THAT(the_log, ElementsAre("NewDocument", "valley.map"));
    EXPECT_EQ(class_raised_by([] { ApplicationNewDocument(nullptr); }), "NilObjectException");
}

TEST(Documents, Are_the_files_among_the_arguments) {
    const TemporaryFolder folder;
    const std::string plain = folder.new_file("a b.map", "");
    const std::string odd = folder.new_file("\xE9%.map", "");
    const std::string arguments[] = {
        "--valley", plain,         folder.file("missing.map"), "file://" + folder.file("a%20b.map"),
        "",         folder.path(), "http://maps/a.map",        odd};
    EXPECT_THAT(core::documents_among(arguments), ElementsAre(plain, plain, odd));
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(folder.path());
    EXPECT_THAT(core::documents_among(std::array{std::string("./a b.map")}), ElementsAre(plain));
    std::filesystem::current_path(before);
}

// Time passes only while somebody waits in the front.
struct WaitingClock final : core::Clock {
    core::Time now() override { return time; }
    void wait_until(core::Time until) override { time = until; }
    core::Time time{1h};
};

class EventLoops : public Applications {
protected:
    EventLoops() {
        core::scheduler().use_clock(&clock_);
        front_.when_pumped = [this](bool wait) {
            turns_ += wait ? 'w' : '.';
            if (wait) {
                clock_.time += front_.wake_ups.back();
                core::desktop().woken();
            }
            if (turns_.size() == event_in_turn_) core::desktop().activated(true);
        };
    }
    ~EventLoops() override { core::scheduler().use_clock(nullptr); }

    WaitingClock clock_;
    std::string turns_;
    std::size_t event_in_turn_ = 0;
};

TEST_F(EventLoops, Wait_for_the_first_event_and_no_longer_than_told) {
    struct Case {
        std::int32_t milliseconds;
        std::size_t event_in_turn;
        const char* turns;
        std::chrono::milliseconds waited;
    };
    const Case cases[] = {
        {0, 0, ".", 0ms}, {30, 0, ".w", 30ms}, {30, 1, "..", 0ms}, {30, 2, ".w", 30ms}, {-1, 0, "", 0ms},
    };
    for (const auto& [milliseconds, event_in_turn, turns, waited] : cases) {
        SCOPED_TRACE(turns);
        core::desktop().activated(false);
        turns_.clear();
        event_in_turn_ = event_in_turn;
        const core::Time begin = clock_.time;
        app_->DoEvents(milliseconds);
        EXPECT_EQ(turns_, turns);
        EXPECT_EQ(clock_.time - begin, waited);
    }
}

TEST_F(EventLoops, Nest_and_do_nothing_once_the_program_has_quit) {
    handle(
        app_.object(), "Activate", +[](Object* app) {
            static_cast<Application*>(app)->DoEvents(10);
            core::quit();
            static_cast<Application*>(app)->DoEvents(10);
            static_cast<Application*>(app)->_DoSingleEvent(true);
        });
    event_in_turn_ = 1;
    app_->DoEvents(1000);
    EXPECT_EQ(turns_, "..w");
}

TEST_F(EventLoops, Make_one_turn_for_a_single_event) {
    app_->_DoSingleEvent(false);
    EXPECT_EQ(turns_, ".");
}

// A class with a `_Poll` that logs, and does what a test tells it to do.
std::function<void(Object*)> when_polled;
ClassRecord* polled_class() {
    constexpr auto poll = +[](Object* self) {
        the_log.emplace_back("poll");
        if (when_polled) when_polled(self);
    };
    static ClassRecord* const record = make_class(
        "PolledLamp", {.methods = {{.name = "_Poll", .type = "%%", .function = reinterpret_cast<Function>(poll)}}});
    return record;
}

class PolledObjects : public EventLoops {
protected:
    ~PolledObjects() override { when_polled = nullptr; }

    Ref<Object> add(ClassRecord* record = polled_class()) {
        const Ref<Object> object = RuntimeNewObject(record);
        app_->_AddPollableObject(Arg<_Pollable>::unchecked(object.object()));
        return object;
    }
    void remove(Object* object) { app_->_RemovePollableObject(Arg<_Pollable>::unchecked(object)); }
    std::size_t polls_in(std::int32_t milliseconds) {
        the_log.clear();
        app_->DoEvents(milliseconds);
        return static_cast<std::size_t>(std::ranges::count(the_log, "poll"));
    }
};

TEST_F(PolledObjects, Are_asked_every_10_ms_while_an_event_is_awaited) {
    const Ref<Object> first = add();
    app_->_AddPollableObject(Arg<_Pollable>::unchecked(first.object()));
    EXPECT_EQ(polls_in(100), 10u);
    const Ref<Object> second = add();
    EXPECT_EQ(polls_in(50), 10u);
    remove(first.object());
    remove(second.object());
    EXPECT_EQ(polls_in(50), 0u);
    EXPECT_EQ(class_raised_by([&] { ApplicationAddPollableObject(app_.object(), nullptr); }), "NilObjectException");
}

TEST_F(PolledObjects, Are_held_and_may_go_while_they_are_asked) {
    add();
    add();
    when_polled = [this](Object* self) {
        remove(self);
        raise<RuntimeException>("tired");
    };
    EXPECT_EQ(polls_in(50), 2u);
    EXPECT_THAT(front_.messages, ElementsAre("tired", "tired"));
}

TEST_F(PolledObjects, That_ask_back_are_not_asked_again_meanwhile) {
    const Ref<Object> lamp = add();
    when_polled = [this](Object*) { app_->DoEvents(20); };
    EXPECT_EQ(polls_in(25), 1u);
    remove(lamp.object());
}

TEST_F(PolledObjects, Without_a_method_for_it_wake_nobody) {
    const Ref<Object> dictionary = add(Dictionary::__Lookup());
    EXPECT_THAT(front_.wake_ups, ElementsAre());
    remove(dictionary.object());
}

TEST_F(Applications, Tell_the_version_that_the_program_has_given) {
    EXPECT_EQ(app_->MajorVersion(), 0);
    EXPECT_EQ(app_->ShortVersion().view(), "");
    RuntimeSetVersion({1, 2, 3, 4, 5, 6, "1.2", "1.2.3", "maps"});
    EXPECT_THAT((std::array{app_->MajorVersion(), app_->MinorVersion(), app_->BugVersion(), app_->StageCode(),
                            app_->NonReleaseVersion(), app_->RegionCode()}),
                ElementsAre(1, 2, 3, 4, 5, 6));
    EXPECT_EQ(app_->ShortVersion().view(), "1.2");
    EXPECT_EQ(app_->LongVersion().view(), "1.2.3");
    EXPECT_EQ(app_->PackageInfo().view(), "maps");
    RuntimeSetVersion({});
}

TEST_F(Applications, Know_their_file) {
    const Ref<FolderItem> file = app_->ExecutableFile();
    EXPECT_TRUE(file->Exists());
    EXPECT_EQ(file->Name().view(), core::program_name());
    EXPECT_EQ(file->Name().view(), "core_tests");
}

TEST_F(Applications, Look_for_resources_from_the_registered_object) {
    const auto load_picture = [&] { app_->_LoadPictureFromBundle("hill"_s); };
    const auto load_sound = [&] { app_->_LoadBundleSound("bell"_s); };
    EXPECT_EQ(class_raised_by(load_picture), "ServiceNotAvailableException");
    EXPECT_EQ(class_raised_by(load_sound), "ServiceNotAvailableException");
    RuntimeRegisterAppObject(nullptr);
    EXPECT_EQ(class_raised_by(load_picture), "NilObjectException");
    EXPECT_EQ(class_raised_by(load_sound), "NilObjectException");
}

TEST_F(Applications, Have_no_tray_nor_dock) {
    EXPECT_EQ(class_raised_by([&] { app_->AddTrayItem(nullptr); }), "ServiceNotAvailableException");
    EXPECT_FALSE(app_->DockItem());
    EXPECT_FALSE(app_->ResourceFork());
}

TEST_F(Applications, Show_help_until_told_otherwise_in_fronts_to_come_too) {
    EXPECT_TRUE(app_->BalloonHelpVisible());
    app_->set_BalloonHelpVisible(false);
    EXPECT_FALSE(front_.help_visible);
    EXPECT_FALSE(app_->BalloonHelpVisible());
    const RecordingFront another;
    EXPECT_FALSE(another.help_visible);
}

TEST_F(Applications, Know_when_the_event_began) {
#if defined(__linux__)
    double uptime_s = 0;
    std::ifstream("/proc/uptime") >> uptime_s;
    EXPECT_NEAR(app_->_CurrentEventTime(), uptime_s * 60, 60);
#endif
    core::deliver([&] {
        const std::int32_t began = app_->_CurrentEventTime();
        const auto later = std::chrono::steady_clock::now() + 20ms;
        while (std::chrono::steady_clock::now() < later) continue;
        EXPECT_EQ(app_->_CurrentEventTime(), began);
        core::deliver([&] { EXPECT_GT(app_->_CurrentEventTime(), began); });
    });
}

}  // namespace
}  // namespace tavrik::test
