#include "tests/support/raised.h"
#include "tests/toolkit/core/shown_window.h"
#include "toolkit/core/window_list.h"
#include "ui/canvas.h"
#include "ui/menu_item.h"
#include "ui/mouse_cursor.h"
#include "ui/pane.h"
#include "ui/push_button.h"

#include <tavrik/mouse_cursor.h>

#include <gmock/gmock.h>

#include <span>

namespace tavrik::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Int = std::int32_t;

template <class Kind>
Ref<Kind> add(Window* window, std::string_view name) {
    const auto control = make<Kind>();
    window->_AddControl(String(name), control);
    return control;
}

class Controls : public WindowsTest {
protected:
    ShownControl& shown(std::string_view name, std::size_t window = 0) { return face(window).content.named(name); }
    std::vector<std::string> heard_now() { return std::exchange(heard().events, {}); }

    const Ref<Window> window_ = open();
};

// ---- What the person does

struct Cause {
    const char* event;
    void (*listen)(const Ref<Object>& control);
    void (*cause)(Canvas* canvas, ShownWindow& window);
};

front::ControlListener& canvas_in(ShownWindow& window) { return window.content.named("Canvas").listener; }

constexpr Cause kCauses[] = {
    {"Open", listen_to<"Open">, [](Canvas* canvas, ShownWindow&) { canvas->_CallOpenEvent(); }},
    {"Close", listen_to<"Close">, [](Canvas* canvas, ShownWindow&) { canvas->Close(); }},
    {"MouseEnter", listen_to<"MouseEnter">,
     [](Canvas*, ShownWindow& told) {
         told.listener.mouse_moved({5, 5});
     }},
    {"MouseMove", listen_to<"MouseMove", void(Int, Int)>,
     [](Canvas*, ShownWindow& told) {
         told.listener.mouse_moved({6, 5});
     }},
    {"MouseExit", listen_to<"MouseExit">,
     [](Canvas* canvas, ShownWindow& told) {
         canvas->_mImp->mMouseWasInBounds = true;
         told.listener.mouse_left();
     }},
    {"MouseDown", listen_to<"MouseDown", bool(Int, Int)>,
     [](Canvas*, ShownWindow& told) {
         canvas_in(told).mouse_down({1, 1}, front::MouseButton::kPrimary);
     }},
    {"MouseDrag", listen_to<"MouseDrag", void(Int, Int)>,
     [](Canvas*, ShownWindow& told) {
         canvas_in(told).mouse_dragged({2, 2});
     }},
    {"MouseUp", listen_to<"MouseUp", void(Int, Int)>,
     [](Canvas*, ShownWindow& told) {
         canvas_in(told).mouse_up({3, 3});
     }},
    {"MouseWheel", listen_to<"MouseWheel", bool(Int, Int, Int, Int)>,
     [](Canvas*, ShownWindow& told) {
         canvas_in(told).mouse_wheel({1, 1}, 0, 3);
     }},
    {"KeyDown", listen_to<"KeyDown", bool(const String&)>,
     [](Canvas*, ShownWindow& told) { canvas_in(told).key_down({.text = "a"}); }},
    {"GotFocus", listen_to<"GotFocus">, [](Canvas*, ShownWindow& told) { canvas_in(told).focus_changed(true); }},
    {"LostFocus", listen_to<"LostFocus">, [](Canvas*, ShownWindow& told) { canvas_in(told).focus_changed(false); }},
    {"ConstructContextualMenu", listen_to<"ConstructContextualMenu", bool(Object*, Int, Int)>,
     [](Canvas*, ShownWindow& told) {
         canvas_in(told).menu_requested({1, 1});
     }},
    {"Paint", listen_to<"Paint", void(Object*)>, [](Canvas* canvas, ShownWindow&) { canvas->_Paint(nullptr); }},
};

TEST_F(Controls, Raise_each_event_once_and_each_may_close_the_window) {
    for (const bool closes : {false, true}) {
        for (const Cause& cause : kCauses) {
            SCOPED_TRACE(cause.event);
            Window* const window = open().get();
            Canvas* const canvas = add<Canvas>(window, "Canvas").get();
            canvas->_Move(0, 0, 20, 20);
            cause.listen(canvas);
            if (closes) heard().deed = [window](Object*) { RuntimeCloseWindow(window); };
            cause.cause(canvas, face(1));
            heard().deed = nullptr;
            EXPECT_THAT(heard_now(), ElementsAre(cause.event));
            if (!closes) core::close_window(window, core::AppIsQuitting::kYes);
            EXPECT_EQ(RuntimeLiveObjects(Window::__Lookup()), 1);
            EXPECT_EQ(RuntimeLiveObjects(Canvas::__Lookup()), 0);
            EXPECT_THAT(front_.messages, IsEmpty());
            heard() = {};
        }
    }
}

TEST_F(Controls, Offer_keys_to_the_control_and_then_to_its_window) {
    const Ref<Canvas> canvas = add<Canvas>(window_.get(), "Canvas");
    listen_to<"KeyDown", bool(const String&)>(window_);
    EXPECT_FALSE(shown("Canvas").listener.key_down({.text = "a"}));
    EXPECT_THAT(heard_now(), ElementsAre("KeyDown"));
    constexpr auto takes = +[](Object*, const String&) { return true; };
    RuntimeInstallInstanceEventHandler(canvas.object(), "KeyDown"_s, reinterpret_cast<Function>(takes));
    EXPECT_TRUE(shown("Canvas").listener.key_down({.text = "a"}));
    EXPECT_THAT(heard_now(), IsEmpty());
}

TEST_F(Controls, Have_the_focus_that_the_front_reports) {
    const Ref<Canvas> canvas = add<Canvas>(window_.get(), "Canvas");
    canvas->SetFocus();
    EXPECT_EQ(window_->Focus(), canvas);
    shown("Canvas").listener.focus_changed(false);
    EXPECT_FALSE(window_->Focus());
}

// ---- Contextual menus

bool add_entries(Object*, Object* menu, Int x, Int y) {
    heard().events.push_back("at " + std::to_string(x) + ' ' + std::to_string(y));
    const auto entry = make<MenuItem>();
    entry->set_Text("Copy"_s);
    static_cast<MenuItem*>(menu)->Append(entry);
    return true;
}

bool note_choice(Object*, Object* item) {
    heard().events.emplace_back(static_cast<MenuItem*>(item)->Text().view());
    return true;
}

TEST_F(Controls, Ask_what_they_lie_in_for_a_contextual_menu_that_they_have_not) {
    const Ref<Canvas> outer = add<Canvas>(window_.get(), "Outer");
    outer->_Move(10, 10, 50, 50);
    const Ref<Canvas> inner = add<Canvas>(window_.get(), "Inner");
    inner->_Move(20, 25, 10, 10);
    inner->set_Parent(outer);
    RuntimeInstallInstanceEventHandler(outer.object(), "ConstructContextualMenu"_s,
                                       reinterpret_cast<Function>(&add_entries));
    RuntimeInstallInstanceEventHandler(outer.object(), "ContextualMenuAction"_s,
                                       reinterpret_cast<Function>(&note_choice));
    std::optional<front::Point> popped_up_at;
    front_.when_popped_up = [&](const front::MenuDescription& menu, std::optional<front::Point> at) {
        popped_up_at = at;
        return std::optional(menu.children.at(0).id);
    };
    face().listener.moved(100, 200);
    EXPECT_TRUE(shown("Outer").inside.named("Inner").listener.menu_requested({1, 2}));
    EXPECT_THAT(heard_now(), ElementsAre("at 11 17", "Copy"));
    EXPECT_EQ(popped_up_at, (front::Point{121, 227}));
    EXPECT_FALSE(face().listener.menu_requested({1, 2})) << "the window has none";
}

// ---- State and faces

TEST_F(Controls, Keep_what_each_property_is_set_to_and_tell_it) {
    const Ref<PushButton> button = add<PushButton>(window_.get(), "Button");
    int checked = 0;
    const ClassRecord& record = *PushButton::__Lookup();
    const auto both_ways = [&]<class Value, class Argument>(const PropertyRecord& property, Value value, Argument) {
        reinterpret_cast<void (*)(Object*, Int, Argument)>(property.setter)(button.object(), property.parameter, value);
        EXPECT_EQ(reinterpret_cast<Value (*)(Object*, Int)>(property.getter)(button.object(), property.parameter),
                  value)
            << view(property.name);
        ++checked;
    };
    for (const PropertyRecord& property :
         std::span(record.properties, static_cast<std::size_t>(record.property_count))) {
        if (property.getter == nullptr || property.setter == nullptr || view(property.name).starts_with("_")) continue;
        const std::string_view type = view(property.type_code);
        const bool was_on =
            type == "b" && reinterpret_cast<bool (*)(Object*, Int)>(property.getter)(button.object(), 0);
        if (type == "b") both_ways(property, !was_on, true);
        if (type == "i4") both_ways(property, Int{17}, Int{});
        if (type != "s") continue;
        reinterpret_cast<void (*)(Object*, Int, const String&)>(property.setter)(button.object(), property.parameter,
                                                                                 "Tiefe"_s);
        EXPECT_EQ(reinterpret_cast<String (*)(Object*, Int)>(property.getter)(button.object(), property.parameter),
                  "Tiefe"_s);
        ++checked;
    }
    EXPECT_EQ(checked, 27);
    button->set_MouseCursor(static_ref<MouseCursor>(RuntimeStandardCursor(2)));
    const auto& told = dynamic_cast<ShownButton&>(shown("Tiefe")).description;
    EXPECT_EQ(told.bounds, (front::Rect{17, 17, 17, 17}));
    EXPECT_TRUE(!told.visible && !told.enabled && !told.looks_inactive_with_window && told.is_default &&
                told.is_cancel);
    EXPECT_EQ(told.caption + told.help + told.style.font, "TiefeTiefeTiefe");
    EXPECT_EQ(told.cursor, front::Cursor{front::CursorShape::kCross});
}

TEST_F(Controls, Lie_in_their_parents_and_keep_their_place_on_the_screen) {
    const Ref<Window> window = open([](const Ref<Window>& it) {
        const Ref<Canvas> first = add<Canvas>(it.get(), "First");
        first->_Move(30, 40, 5, 5);
        first->set_InitialParent("Later"_s);
        add<Canvas>(it.get(), "Later")->_Move(10, 10, 100, 100);
        listen_to<"CreateControls">(it);
    });
    const auto later = check_cast<Canvas>(window->_GetControl("Later"_s));
    const auto first = check_cast<Canvas>(window->_GetControl("First"_s));
    EXPECT_EQ(first->Parent(), later);
    EXPECT_EQ(shown("Later", 1).inside.named("First").common().bounds, (front::Rect{20, 30, 5, 5}));

    later->set_Left(15);
    EXPECT_EQ(first->Left(), 35);
    first->set_Parent(nullptr);
    EXPECT_EQ(shown("First", 1).common().bounds, (front::Rect{35, 40, 5, 5}));

    later->set_Parent(first);
    EXPECT_EQ(class_raised_by([&] { first->set_Parent(later); }), "InvalidParentException");
    EXPECT_EQ(class_raised_by([&] { first->set_Parent(first); }), "InvalidParentException");
    const Ref<Canvas> elsewhere = add<Canvas>(window_.get(), "Elsewhere");
    EXPECT_EQ(class_raised_by([&] { first->set_Parent(elsewhere); }), "InvalidParentException");
}

TEST_F(Controls, Keep_to_their_locks_when_the_window_is_resized) {
    face().listener.resized(200, 100, front::ResizePhase::kDone);
    const Ref<Canvas> canvas = add<Canvas>(window_.get(), "Canvas");
    canvas->_Move(10, 10, 100, 50);
    canvas->set_LockLeft(true);
    canvas->set_LockRight(true);
    canvas->set_LockBottom(true);
    const Ref<PushButton> button = add<PushButton>(window_.get(), "Button");
    button->_Move(50, 20, 30, 20);
    button->set_LockRight(true);
    button->set_Parent(canvas);

    face().listener.resized(220, 107, front::ResizePhase::kUnderWay);
    EXPECT_EQ(shown("Canvas").common().bounds, (front::Rect{10, 17, 120, 50}));
    EXPECT_EQ(shown("Canvas").inside.named("Button").common().bounds, (front::Rect{60, 10, 30, 20}));
    EXPECT_EQ(canvas->_mImp->Width(), 120);
    window_->set_Width(200);
    EXPECT_EQ(canvas->Width(), 100);
    EXPECT_EQ(button->Left(), 50);
}

TEST_F(Controls, Press_only_while_all_that_they_lie_in_is_enabled) {
    const Ref<Canvas> canvas = add<Canvas>(window_.get(), "Canvas");
    const Ref<PushButton> button = add<PushButton>(window_.get(), "Button");
    button->set_Parent(canvas);
    listen_to<"Action">(button);
    canvas->set_Enabled(false);
    button->Push();
    EXPECT_THAT(heard_now(), IsEmpty());
    canvas->set_Enabled(true);
    dynamic_cast<ShownButton&>(shown("Canvas").inside.named("Button")).presses.pressed();
    EXPECT_THAT(heard_now(), ElementsAre("Action"));
}

TEST_F(Controls, Leave_their_window_when_they_close) {
    const Ref<Canvas> canvas = add<Canvas>(window_.get(), "Canvas");
    canvas->Close();
    EXPECT_EQ(window_->ControlCount(), 0);
    EXPECT_FALSE(window_->_GetControl("Canvas"_s) || canvas->Window() || canvas->_mWindow || canvas->_mImp);
    EXPECT_THAT(face().content.controls, IsEmpty());
    canvas->SetFocus();
    canvas->Refresh(true);
    EXPECT_EQ(canvas->Handle(), 0);
}

}  // namespace
}  // namespace tavrik::test
