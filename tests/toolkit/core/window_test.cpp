#include "data/dictionary.h"
#include "tests/support/raised.h"
#include "tests/toolkit/core/shown_window.h"
#include "toolkit/core/event_scope.h"
#include "toolkit/core/program.h"
#include "toolkit/core/window_list.h"
#include "ui/mdi_window.h"
#include "ui/menu_bar.h"
#include "ui/mouse_cursor.h"
#include "ui/push_button.h"
#include "ui/window_support.h"

#include <tavrik/variant.h>

#include <gmock/gmock.h>

#include <deque>
#include <utility>

namespace tavrik::test {
namespace {

using Names = std::vector<std::string>;
using front::ResizePhase;
using front::WindowSize;
using testing::ElementsAre;

class Windows : public WindowsTest {};

struct Cause {
    const char* name;
    void (*listen)(const Ref<Object>& window);
    void (*cause)(Window* window, front::WindowListener& listener) = nullptr;  // nullptr: the construction
};

using Listener = front::WindowListener;
using Int = std::int32_t;
constexpr Cause kCauses[] = {
    {"Layout", listen_to<"Layout">},
    {"CreateControls", listen_to<"CreateControls">},
    {"AddMenuHandlers", listen_to<"AddMenuHandlers", void(Object*)>},
    {"SetupBindings", listen_to<"SetupBindings">},
    {"Open", listen_to<"Open">},
    {"Close", listen_to<"Close">, [](Window*, Listener& told) { told.close_requested(); }},
    {"CancelClose", listen_to<"CancelClose", bool(bool)>, [](Window*, Listener& told) { told.close_requested(); }},
    {"EnableMenuItems", listen_to<"EnableMenuItems">,
     [](Window* window, Listener&) { window->_EnableMenuItems(ArrayOf<MenuItem>::make()); }},
    {"Resized", listen_to<"Resized">, [](Window*, Listener& told) { told.resized(50, 60, ResizePhase::kDone); }},
    {"Resizing", listen_to<"Resizing">, [](Window*, Listener& told) { told.resized(9, 9, ResizePhase::kUnderWay); }},
    {"Moved", listen_to<"Moved">, [](Window*, Listener& told) { told.moved(70, 80); }},
    {"Activate", listen_to<"Activate">, [](Window*, Listener& told) { told.activated(true); }},
    {"Deactivate", listen_to<"Deactivate">, [](Window*, Listener& told) { told.activated(false); }},
    {"Minimize", listen_to<"Minimize">,
     [](Window*, Listener& told) { told.size_state_changed(WindowSize::kMinimized); }},
    {"Maximize", listen_to<"Maximize">,
     [](Window*, Listener& told) { told.size_state_changed(WindowSize::kMaximized); }},
    {"Restore", listen_to<"Restore">,
     [](Window*, Listener& told) {
         told.size_state_changed(WindowSize::kMaximized);
         told.size_state_changed(WindowSize::kNormal);
     }},
    {"KeyDown", listen_to<"KeyDown", bool(const String&)>, [](Window* window, Listener&) { window->_KeyDown("a"_s); }},
    {"MouseMove", listen_to<"MouseMove", void(Int, Int)>, [](Window* window, Listener&) { window->_MouseMove(1, 2); }},
    {"MouseEnter", listen_to<"MouseEnter">, [](Window* window, Listener&) { window->_MouseEnter(); }},
    {"MouseExit", listen_to<"MouseExit">, [](Window* window, Listener&) { window->_MouseExit(); }},
    {"Paint", listen_to<"Paint", void(Object*)>, [](Window* window, Listener&) { window->_Paint(nullptr); }},
    {"MouseDown", listen_to<"MouseDown", bool(Int, Int)>,
     [](Window* window, Listener&) { window->_CallMouseDown(1, 2); }},
    {"MouseWheel", listen_to<"MouseWheel", bool(Int, Int, Int, Int)>,
     [](Window* window, Listener&) { window->_MouseWheel(1, 2, 3, 4); }},
};

class WindowEvents : public WindowsTest {
protected:
    // Only the toolkit holds the window by then.
    void raise(const Cause& cause, std::function<void(Object*)> deed) {
        heard() = {{}, std::move(deed)};
        if (cause.cause == nullptr) {
            open(cause.listen);
            return;
        }
        Window* const window = open().get();
        cause.listen(window);
        cause.cause(window, face(1).listener);
    }

    const Ref<Window> main_window_ = open();
};

TEST_F(WindowEvents, Are_each_raised_once) {
    for (const Cause& cause : kCauses) {
        raise(cause, nullptr);
        EXPECT_THAT(heard().events, ElementsAre(cause.name));
        heard() = {};
        if (Object* const last = core::open_windows().back().object(); last != main_window_.object())
            core::close_window(last, core::AppIsQuitting::kYes);
    }
}

TEST_F(WindowEvents, May_each_close_and_release_the_window) {
    for (const Cause& cause : kCauses) {
        raise(cause, [](Object* self) { RuntimeCloseWindow(self); });
        EXPECT_THAT(heard().events, ElementsAre(cause.name));
        EXPECT_EQ(RuntimeLiveObjects(Window::__Lookup()), 1) << cause.name;
        EXPECT_EQ(front_.windows.size(), 1U) << cause.name;
        EXPECT_THAT(front_.messages, testing::IsEmpty()) << cause.name;
    }
}

// ---- Properties

template <class Value, class Argument = Value>
void expect_both_ways(Window* window, const PropertyRecord& property, std::initializer_list<Value> values) {
    for (const Value& value : values) {
        reinterpret_cast<void (*)(Object*, Int, Argument)>(property.setter)(window, property.parameter, value);
        EXPECT_EQ(reinterpret_cast<Value (*)(Object*, Int)>(property.getter)(window, property.parameter), value)
            << view(property.name);
    }
}

Ref<Object> value_of_type(std::string_view type) {
    if (type == "o<MouseCursor>") return RuntimeStandardCursor(4);
    if (type == "o<MenuBar>") return make<MenuBar>();
    if (type == "o<Picture>") return make<tavrik::Pair>();
    return nullptr;
}

TEST_F(Windows, Keep_what_each_property_is_set_to_shown_or_not) {
    const Ref<Window> main_window = open();
    int checked = 0;
    const ClassRecord& record = *Window::__Lookup();
    for (const bool shown : {false, true}) {
        for (const PropertyRecord& property :
             std::span(record.properties, static_cast<std::size_t>(record.property_count))) {
            const std::string_view type = view(property.type_code);
            if (property.getter == nullptr || property.setter == nullptr || view(property.name).starts_with("_"))
                continue;
            const Ref<Window> window = shown ? open() : make<Window>();
            if (type == "b") expect_both_ways<bool>(window.get(), property, {true, false, true});
            if (type == "i4") expect_both_ways<Int>(window.get(), property, {3, 1});
            if (type == "c") expect_both_ways<Color>(window.get(), property, {{0x123456}, {0}});
            if (type == "s") expect_both_ways<String, const String&>(window.get(), property, {"Tiefe [*]"_s, ""_s});
            if (const Ref<Object> value = value_of_type(type)) {
                const auto set = reinterpret_cast<void (*)(Object*, Int, Object*)>(property.setter);
                const auto get = reinterpret_cast<Ref<Object> (*)(Object*, Int)>(property.getter);
                set(window.object(), property.parameter, value.object());
                EXPECT_EQ(get(window.object(), property.parameter), value);
                set(window.object(), property.parameter, nullptr);
                EXPECT_FALSE(get(window.object(), property.parameter));
                ++checked;
            }
            checked += type == "b" || type == "i4" || type == "c" || type == "s";
            if (shown) window->Close();
        }
    }
    EXPECT_EQ(checked, 2 * 31) << "all that can be written but Graphics, DockItem and Focus";
}

TEST_F(Windows, Tell_the_front_what_their_properties_are) {
    const Ref<Window> window = open();
    window->set_Frame(3);
    window->set_LiveResize(false);
    window->set_BackColor(rgb(1, 2, 3));
    EXPECT_EQ(face().description.background, std::nullopt);
    window->set_HasBackColor(true);
    window->set_BalloonHelp("Help"_s);
    window->set_MouseCursor(static_ref<MouseCursor>(RuntimeStandardCursor(2)));
    core::deliver([&] { window->set_MinimizeButton(true); });
    const front::WindowDescription& shown = face().description;
    EXPECT_EQ(shown.frame, front::WindowFrame::kFloating);
    EXPECT_EQ(shown.background, 0x010203U);
    EXPECT_EQ(shown.help, "Help");
    EXPECT_EQ(shown.cursor, front::Cursor{front::CursorShape::kCross});
    EXPECT_TRUE(shown.minimize_button) << "a stored property is seen at the end of the event";
    EXPECT_FALSE(shown.live_resize);
    window->set_Frame(10);
    EXPECT_EQ(window->Frame(), 0);
}

TEST_F(Windows, Answer_for_what_only_a_screen_or_a_missing_class_has) {
    const Ref<Window> window = open();
    EXPECT_EQ(window->MouseX() + window->MouseY() + window->Handle() + window->WinHWND() + window->MacWindowPtr(), 0);
    EXPECT_EQ(window->Operator_Convert().handle, nullptr);
    EXPECT_FALSE(window->Graphics() || window->DockItem());
    EXPECT_EQ(class_raised_by([&] { window->DrawInto(nullptr, 0, 0, false); }), "ServiceNotAvailableException");
    EXPECT_EQ(message_of(raised_by([&] { window->NewDragItem(0, 0, 1, 1); })), "this program has no DragItem");
}

// ---- Sizes

TEST_F(Windows, Hold_their_size_within_the_limits_and_tell_each_change_once) {
    const Ref<Window> window = open();
    listen_to<"Resized">(window);
    listen_to<"Moved">(window);
    window->_Move(10, 20, 300, 200);
    EXPECT_THAT(heard().events, ElementsAre("Moved", "Resized"));
    window->set_MaxWidth(250);
    window->set_MinHeight(220);
    EXPECT_EQ(face().description.content, (front::Rect{10, 20, 250, 220}));
    window->set_Width(5000);
    window->set_Height(-1);
    window->set_MinWidth(400);
    EXPECT_EQ(window->Width(), 400) << "the least width wins";
    EXPECT_EQ(window->Height(), 220);
    EXPECT_THAT(heard().events, ElementsAre("Moved", "Resized", "Resized", "Resized", "Resized"));
    face().listener.moved(1, 2);
    EXPECT_EQ(window->Left(), 1);
    EXPECT_EQ(heard().events.back(), "Moved");
}

TEST_F(Windows, Follow_a_drag_only_with_live_resize) {
    const Ref<Window> window = open();
    listen_to<"Resizing">(window);
    listen_to<"Resized">(window);
    face().listener.resized(100, 50, ResizePhase::kUnderWay);
    EXPECT_EQ(window->Width(), 100);
    face().listener.resized(110, 50, ResizePhase::kDone);
    window->set_LiveResize(false);
    face().listener.resized(300, 50, ResizePhase::kUnderWay);
    EXPECT_EQ(window->Width(), 110);
    face().listener.resized(310, 50, ResizePhase::kDone);
    EXPECT_EQ(window->Width(), 310);
    EXPECT_THAT(heard().events, ElementsAre("Resizing", "Resized", "Resized"));
}

TEST_F(Windows, Come_back_from_filling_the_screen_to_what_they_were) {
    const Ref<Window> window = open();
    listen_to<"Maximize">(window);
    listen_to<"Restore">(window);
    listen_to<"Minimize">(window);
    window->_Move(10, 20, 300, 200);
    window->Maximize();
    window->Maximize();
    face().listener.size_state_changed(WindowSize::kMaximized);
    face().listener.resized(1024, 768, ResizePhase::kDone);
    EXPECT_EQ(window->Width(), 1024);
    EXPECT_EQ(face().description.content.width, 300);
    window->Restore();
    EXPECT_EQ(window->Width(), 300);
    // A person's maximizing, whose size comes first.
    face().listener.resized(1024, 768, ResizePhase::kUnderWay);
    face().listener.size_state_changed(WindowSize::kMaximized);
    face().listener.resized(1024, 768, ResizePhase::kDone);
    EXPECT_EQ(window->Width(), 1024);
    face().listener.size_state_changed(WindowSize::kNormal);
    EXPECT_EQ(window->Width(), 300);
    window->set_FullScreen(true);
    face().listener.resized(1024, 768, ResizePhase::kDone);
    window->Minimize();
    window->set_FullScreen(false);
    EXPECT_EQ(window->Height(), 200);
    EXPECT_THAT(heard().events, ElementsAre("Maximize", "Restore", "Maximize", "Restore", "Minimize"));
}

// ---- Modal windows

TEST_F(Windows, That_are_modal_keep_their_caller_waiting_until_they_are_closed_or_hidden) {
    const Ref<Window> main_window = open();
    const Ref<Window> dialog = open([](const Ref<Window>& window) { window->set_Visible(false); });
    int turns = 0;
    front_.when_pumped = [&](bool) {
        EXPECT_EQ(face(1).description.modality, front::Modality::kProgram);
        if (++turns == 3) dialog->Hide();
    };
    dialog->ShowModal();
    EXPECT_EQ(turns, 3);
    EXPECT_EQ(face(1).description.modality, front::Modality::kNone);

    front_.when_pumped = [&](bool) {
        EXPECT_EQ(face(1).description.modality, front::Modality::kWindow);
        EXPECT_EQ(face(1).owner, &face(0));
        face(1).listener.close_requested();
    };
    dialog->ShowModalWithin(main_window);
    EXPECT_EQ(front_.windows.size(), 1U);
    dialog->ShowModal();  // closed for good
}

TEST_F(Windows, That_are_modal_within_each_other_end_from_the_inside) {
    const Ref<Window> main_window = open();
    const auto hidden = [](const Ref<Window>& window) { window->set_Visible(false); };
    const Ref<Window> outer = open(hidden);
    const Ref<Window> inner = open(hidden);
    Names log;
    front_.when_pumped = [&](bool) {
        front_.when_pumped = [&](bool) {
            outer->Close();
            log.emplace_back("outer closed");
            front_.when_pumped = [&](bool) { inner->Close(); };
        };
        inner->ShowModal();
        log.emplace_back("inner ended");
    };
    outer->ShowModal();
    EXPECT_THAT(log, ElementsAre("outer closed", "inner ended"));
}

TEST_F(Windows, That_are_modal_end_with_the_program_and_with_the_front) {
    const Ref<Window> main_window = open();
    const Ref<Window> dialog = open();
    dialog->ShowModal();  // the front has quit
    front_.when_pumped = [](bool) { core::quit(); };
    dialog->ShowModal();
    EXPECT_TRUE(core::open_windows().empty());
}

TEST_F(Windows, Shown_within_another_stay_above_it_until_it_closes) {
    const Ref<Window> main_window = open();
    main_window->_Move(100, 100, 300, 200);
    const Ref<Window> drawer = open([](const Ref<Window>& window) { window->set_Visible(false); });
    drawer->_Move(0, 0, 50, 60);
    drawer->ShowWithin(main_window, 2);
    EXPECT_EQ(face(1).owner, &face(0));
    EXPECT_EQ(face(1).description.content, (front::Rect{400, 100, 50, 60}));
    main_window->ShowWithin(drawer, 0);
    EXPECT_EQ(face(0).owner, nullptr) << "not each above the other";
    main_window->Close();
    EXPECT_EQ(face(0).owner, nullptr);
    EXPECT_TRUE(drawer->Visible());
}

// ---- The close protocol and the lists

TEST_F(Windows, Close_by_their_protocol) {
    const Ref<Window> main_window = open();
    const Ref<Window> window = open();
    RuntimeInstallInstanceEventHandler(window.object(), "CancelClose"_s,
                                       reinterpret_cast<Function>(+[](Object*, bool) { return true; }));
    window->Close();
    EXPECT_TRUE(window->_mControls && core::is_open(window.object()));
    RuntimeInstallInstanceEventHandler(window.object(), "CancelClose"_s, nullptr);
    RuntimeInstallInstanceEventHandler(window.object(), "Close"_s, reinterpret_cast<Function>(+[](Object*) {
                                           raise<RuntimeException>("from Close");
                                       }));
    EXPECT_EQ(message_of(raised_by([&] { window->Close(); })), "from Close");
    EXPECT_FALSE(window->_mControls || core::is_open(window.object()));
    window->Close();
    window->Show();
    EXPECT_EQ(front_.windows.size(), 1U) << "what is closed stays so";
    EXPECT_EQ(class_raised_by([&] { window->_RemoveControl(nullptr); }), "NilObjectException");
}

TEST_F(Windows, Are_no_implicit_instance_from_their_close_event_on) {
    EXPECT_FALSE(RuntimeGetImplicitWindow("Window"_s));
    const Ref<Window> window = open();
    const Ref<Window> other = open();
    EXPECT_EQ(RuntimeGetImplicitWindow("Window"_s), window);
    RuntimeInstallInstanceEventHandler(window.object(), "Close"_s, reinterpret_cast<Function>(+[](Object*) {
                                           EXPECT_FALSE(RuntimeGetImplicitWindow("Window"_s));
                                       }));
    window->Close();
    EXPECT_FALSE(RuntimeGetImplicitWindow("Window"_s));
    open();  // the one that is awaited now
}

TEST_F(Windows, Whose_construction_fails_are_gone) {
    const Ref<Window> main_window = open();
    const auto fail = [](Object*) { raise<RuntimeException>("no"); };
    const Ref<Window> window = make<Window>();
    RuntimeInstallInstanceEventHandler(window.object(), "SetupBindings"_s, reinterpret_cast<Function>(+fail));
    EXPECT_EQ(message_of(raised_by([&] { window->Window_(); })), "no");
    EXPECT_EQ(core::open_windows().size(), 1U);
}

TEST_F(Windows, Opened_and_closed_a_thousand_times_leave_nothing) {
    const Ref<Window> main_window = open();
    for (int i = 0; i < 1000; ++i) {
        const Ref<Window> window = open();
        const Ref<PushButton> button = make<PushButton>();
        button->Constructor();
        window->_AddControl("Button"_s, button);
        window->Close();
    }
    EXPECT_EQ(front_.windows.size(), 1U);
    EXPECT_EQ(RuntimeLiveObjects(Window::__Lookup()), 1);
    EXPECT_EQ(RuntimeLiveObjects(PushButton::__Lookup()), 0);
}

// ---- Controls

Ref<PushButton> add_button(const Ref<Window>& window, const String& name, Int index) {
    const Ref<PushButton> button = make<PushButton>();
    button->Constructor();
    window->_AddControl(name, button);
    EXPECT_EQ(window->_GetControl(name), button) << "the newest has the plain name";
    button->set_Name(name);
    button->set_Index(index);
    return button;
}

TEST_F(Windows, Find_the_elements_of_a_control_array_by_name_and_index) {
    const Ref<Window> window = open();
    const Ref<PushButton> first = add_button(window, "Key"_s, 0);
    const Ref<PushButton> second = add_button(window, "Key"_s, 1);
    const Ref<PushButton> twin = add_button(window, "Key"_s, 1);
    const Ref<PushButton> third = add_button(window, "Key"_s, 2);
    EXPECT_EQ(window->_GetControlArray("Key"_s, 0), first);
    EXPECT_EQ(window->_GetControlArray("Key"_s, 1), second);
    EXPECT_EQ(window->_GetControlArray("Key"_s, 2), third);
    EXPECT_FALSE(window->_GetControlArray("Key"_s, 3) || window->_GetControlArray("Kez"_s, 0));
    EXPECT_EQ(window->_GetControl("Key(0)"_s), first);
    EXPECT_EQ(window->_GetControl("Key(1) 2"_s), twin) << "none is lost";
    EXPECT_EQ(window->_mControls->Count(), 4);
}

TEST_F(Windows, Forget_a_control_that_closes_by_itself) {
    const Ref<Window> window = open();
    const Ref<PushButton> button = add_button(window, "Key"_s, 0);
    window->_mControls->set_Value(StringToVariant("Alias"_s), button);
    button->Close();
    EXPECT_EQ(window->ControlCount(), 0);
    EXPECT_EQ(window->_mControls->Count(), 0) << "under all its names";
    EXPECT_EQ(class_raised_by([&] { window->Control(0); }), "OutOfBoundsException");
}

// ---- The dirty set

int updates = 0;

// As a subclass has it.
const Function* vtable_with_update(void (*update)(Object*)) {
    const ClassRecord& record = *Window::__Lookup();
    static std::deque<std::vector<Function>> tables;  // longer than any object with one
    std::vector<Function>& table = tables.emplace_back(record.vtable, record.vtable + record.vtable_size);
    table[static_cast<std::size_t>(slot_of<&Window::_Update>)] = reinterpret_cast<Function>(update);
    return table.data();
}

TEST_F(Windows, In_the_dirty_set_are_updated_once_at_the_end_of_the_event) {
    const Ref<Window> window = open();
    const Ref<Window> closed = open();
    window->vtable = closed->vtable = vtable_with_update([](Object*) { ++updates; });
    updates = 0;
    Window::_RemoveDirtyWindow(window);
    EXPECT_EQ(_WindowSupport::mDirtyWindows, nullptr);
    core::deliver([&] {
        window->Refresh(true);
        window->RefreshRect(1, 2, 3, 4, false);
        closed->Refresh(true);
        closed->Close();
        EXPECT_EQ(updates, 0);
    });
    EXPECT_EQ(updates, 1);
    EXPECT_EQ(_WindowSupport::mDirtyWindows, nullptr);
}

TEST_F(Windows, Whose_update_fails_fail_once) {
    const Ref<Window> window = open();
    window->vtable = vtable_with_update([](Object*) { raise<RuntimeException>("no update"); });
    core::deliver([&] { window->Refresh(true); });
    core::deliver([] {});
    EXPECT_THAT(front_.messages, ElementsAre("no update"));
}

// ---- The area of all windows

TEST_F(Windows, Are_all_reached_through_the_area_that_they_are_on) {
    Ref<MDIWindow> frame = make<MDIWindow>();
    listen_to<"Open">(frame);
    listen_to<"Maximize">(frame);
    listen_to<"Restore">(frame);
    const Ref<Window> document = open();
    const Ref<Window> palette = open([](const Ref<Window>& window) { window->set_Frame(3); });
    frame->Maximize();
    frame->Maximize();
    EXPECT_EQ(face(0).description.size_state, WindowSize::kMaximized);
    EXPECT_EQ(face(1).description.size_state, WindowSize::kNormal);
    frame->Restore();
    EXPECT_THAT(heard().events, ElementsAre("Open", "Maximize", "Restore"));

    EXPECT_EQ(frame->Title().view(), core::program_name());
    frame->set_Title("Maps"_s);
    document->set_Title("valley"_s);
    EXPECT_EQ(face(0).description.title, "valley");
    EXPECT_EQ(face(1).description.title, "Maps");
    EXPECT_EQ(palette->Title().view(), "");

    frame->set_Visible(false);
    EXPECT_FALSE(document->Visible() || palette->Visible());
    palette->Close();
    frame->set_Visible(true);
    EXPECT_TRUE(document->Visible());
    frame->set_MinWidth(70000);
    EXPECT_EQ(frame->MinWidth(), 70000 - 65536) << "16 bits";
    frame->set_Width(1);
    EXPECT_EQ(frame->Width(), 1024);
}

}  // namespace
}  // namespace tavrik::test
