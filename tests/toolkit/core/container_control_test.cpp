#include "ui/container_control.h"

#include "tests/support/balance.h"
#include "tests/support/raised.h"
#include "tests/support/recording_front.h"
#include "toolkit/core/control.h"
#include "toolkit/core/window_list.h"
#include "ui/embedded_window_control.h"
#include "ui/menu_item.h"
#include "ui/pane.h"
#include "ui/push_button.h"

#include <gmock/gmock.h>

#include <map>

namespace tavrik::test {
namespace {

using core::AppIsQuitting;
using front::Rect;
using testing::ElementsAre;
using testing::IsEmpty;
using Int = std::int32_t;
using Names = std::vector<std::string>;

// What has been heard, and by which object.
struct Heard {
    Names events;
    std::map<const Object*, std::string> names;
    std::map<std::string, bool> answers;
    std::map<std::string, std::function<void(Object*)>> deeds;
};
Heard heard;

std::string written(Int number) { return ' ' + std::to_string(number); }
std::string written(bool value) { return value ? " yes" : " no"; }
std::string written(const String& text) { return ' ' + std::string(text.view()); }
std::string written(Object*) { return " object"; }

template <LiteralText Name, class R, class... A>
R hear(Object* self, A... arguments) {
    const std::string event = heard.names[self] + '.' + std::string(Name.view());
    heard.events.push_back((event + ... + written(arguments)));
    if (const auto deed = heard.deeds.find(event); deed != heard.deeds.end()) deed->second(self);
    if constexpr (!std::is_void_v<R>) return heard.answers[event];
}

template <LiteralText Name, class F>
struct Listener;
template <LiteralText Name, class R, class... A>
struct Listener<Name, R(A...)> {
    static constexpr auto kFunction = &hear<Name, R, A...>;
};

template <LiteralText Name, class F = void()>
void listen(const Ref<Object>& object) {
    RuntimeInstallInstanceEventHandler(object.object(), String(Name.view()),
                                       reinterpret_cast<Function>(Listener<Name, F>::kFunction));
}

void listen_to_input(const Ref<Object>& object) {
    listen<"MouseDown", bool(Int, Int)>(object);
    listen<"MouseDrag", void(Int, Int)>(object);
    listen<"MouseUp", void(Int, Int)>(object);
    listen<"MouseWheel", bool(Int, Int, Int, Int)>(object);
    listen<"KeyDown", bool(const String&)>(object);
    listen<"MouseEnter">(object);
    listen<"MouseMove", void(Int, Int)>(object);
    listen<"MouseExit">(object);
}

void listen_to_life(const Ref<Object>& object) {
    listen<"Open">(object);
    listen<"CancelClose", bool(bool)>(object);
    listen<"Close">(object);
}

class Containers : public testing::Test {
protected:
    ~Containers() override {
        heard.answers.clear();
        heard.deeds.clear();
        core::close_all_windows(AppIsQuitting::kNoMatterWhat);
        Window::_UpdateDirtyWindows();
        heard = {};
    }

    Ref<Window> open_window() {
        const Ref<Window> made = make<Window>();
        heard.names[made.object()] = "window";
        made->_Move(100, 100, 300, 200);
        made->set_Visible(true);
        made->Window_();
        return made;
    }
    // With an inner button that keeps to the right edge, at 10, 5.
    Ref<ContainerControl> make_container(const char* name = "container") {
        const Ref<ContainerControl> made = make<ContainerControl>();
        heard.names[made.object()] = name;
        made->_Move(0, 0, 80, 40);
        made->Window_();
        const Ref<PushButton> button = add_button(made, {10, 5, 40, 20});
        button->set_LockLeft(true);
        button->set_LockRight(true);
        return made;
    }
    static Ref<PushButton> add_button(const Ref<Window>& window, const Rect& at) {
        const Ref<PushButton> button = make<PushButton>();
        window->_AddControl("Inner"_s, button);
        button->set_Name("Inner"_s);
        button->set_Index(std::numeric_limits<Int>::min());
        button->_Move(at.left, at.top, at.width, at.height);
        return button;
    }
    static Ref<PushButton> button_in(const Ref<Window>& window) {
        return check_cast<PushButton>(window->_GetControl("Inner"_s));
    }
    static Ref<EmbeddedWindowControl> host_of(const Ref<ContainerControl>& container) {
        return check_cast<EmbeddedWindowControl>(container->_Control());
    }
    ShownCanvas& shown(const ShownControls& outer) const {
        return dynamic_cast<ShownCanvas&>(outer.named("ContainerControl"));
    }
    ShownCanvas& shown_host() const { return shown(front_.windows.back()->content); }

    Balance balance_;
    RecordingFront front_;
    const Ref<Window> window_ = open_window();
};

using ContainerPlaces = Containers;

TEST_F(ContainerPlaces, Its_controls_are_shown_in_its_host_and_count_from_its_corner) {
    const Ref<ContainerControl> container = make_container();
    EXPECT_TRUE(container->_Control() == nullptr && container->Window() == nullptr);
    container->EmbedWithin(window_, 20, 30, 100, 60);
    EXPECT_EQ(class_of(container->_Control()), "EmbeddedWindowControl");
    EXPECT_TRUE(container->Window() == window_);
    EXPECT_EQ(shown_host().description.bounds, (Rect{20, 30, 100, 60}));
    EXPECT_EQ(shown_host().inside.named("Inner").common().bounds, (Rect{10, 5, 60, 20}));
    EXPECT_EQ(button_in(container)->Left(), 10);

    front_.windows.back()->where_pointer_is = {25, 37};
    EXPECT_EQ(container->MouseX(), 5);
    EXPECT_EQ(button_in(container)->MouseY(), 2);
    EXPECT_EQ(container->Handle(), 77);
}

TEST_F(ContainerPlaces, It_lies_in_a_window_in_a_control_or_on_a_page) {
    const Ref<PushButton> outer = add_button(window_, {50, 50, 200, 100});
    const Ref<ContainerControl> in_control = make_container();
    in_control->EmbedWithin(Arg<RectControl>(outer), 60, 70, 20, 10);
    EXPECT_TRUE(in_control->Parent() == outer);
    EXPECT_EQ(in_control->Left(), 60);
    EXPECT_EQ(shown(front_.windows.back()->content.named("Inner").inside).description.bounds, (Rect{10, 20, 20, 10}));

    const Ref<ContainerControl> on_page = make_container();
    EmbedWithinPanel(on_page.object(), outer.object(), 3, 1, 2, 3, 4);
    EXPECT_EQ(on_page->TabPanelIndex(), 3);
    EXPECT_EQ(on_page->_Control()->PanelIndex(), 3);
    EXPECT_TRUE(on_page->Parent() == outer);
}

TEST_F(ContainerPlaces, A_bad_place_raises_and_says_why) {
    const Ref<ContainerControl> container = make_container();
    const Ref<ContainerControl> inner = make_container();
    const Ref<ContainerControl> ended = make_container();
    inner->EmbedWithin(Arg<Window>(container), 0, 0, 9, 9);
    ended->Close();
    const Ref<Window> closed = open_window();
    closed->Close();
    const Ref<PushButton> loose = make<PushButton>();
    const auto embed = [](const Ref<ContainerControl>& what, Object* window) {
        return [what, window] { EmbedWithin(what.object(), window, 0, 0, 9, 9); };
    };
    const auto in_control = [&](Object* control) {
        return [=] { EmbedWithinControl(container.object(), control, 0, 0, 9, 9); };
    };
    const std::pair<std::function<void()>, const char*> cases[] = {
        {embed(container, nullptr), "a container needs a window to be embedded in"},
        {embed(container, container.object()), "a container can't be embedded in itself or in what lies in it"},
        {embed(container, inner.object()), "a container can't be embedded in itself or in what lies in it"},
        {in_control(button_in(inner).object()), "a container can't be embedded in itself or in what lies in it"},
        {embed(container, closed.object()), "a container can't be embedded in a window that is closed"},
        {embed(inner, window_.object()), "a container can be embedded only once"},
        {embed(ended, window_.object()), "a container that is closed can't be embedded"},
        {in_control(nullptr), "a container needs a control to be embedded in"},
        {in_control(loose.object()), "a container can't be embedded in a control that is in no window"},
    };
    for (const auto& [attempt, why] : cases) {
        const Ref<Object> raised = raised_by(attempt);
        EXPECT_EQ(class_of(raised), "InvalidParentException") << why;
        EXPECT_EQ(message_of(raised), why);
    }
    EXPECT_EQ(window_->ControlCount(), 0);
}

TEST_F(ContainerPlaces, Containers_at_every_level_keep_to_their_locks) {
    const Ref<ContainerControl> outer = make_container("outer");
    const Ref<ContainerControl> inner = make_container("inner");
    for (const auto& each : {outer, inner}) {
        each->set_LockLeft(true);
        each->set_LockRight(true);
        each->set_LockBottom(true);
        listen<"Resized">(each);
        listen<"Resizing">(each);
    }
    outer->EmbedWithin(window_, 10, 10, 200, 100);
    inner->EmbedWithin(Arg<Window>(outer), 5, 50, 100, 40);
    heard.events.clear();
    front_.windows.back()->listener.resized(350, 220, front::ResizePhase::kDone);
    EXPECT_EQ(shown_host().description.bounds, (Rect{10, 30, 250, 100}));
    EXPECT_EQ(shown(shown_host().inside).description.bounds, (Rect{5, 50, 150, 40}));
    EXPECT_EQ(button_in(inner)->Width(), 40 + 150 - 80);
    EXPECT_EQ(inner->Width(), 150);
    EXPECT_THAT(heard.events, ElementsAre("inner.Resized", "outer.Resized"));

    heard.events.clear();
    front_.windows.back()->listener.resized(355, 220, front::ResizePhase::kUnderWay);
    front_.windows.back()->listener.resized(355, 220, front::ResizePhase::kDone);
    EXPECT_THAT(heard.events, ElementsAre("inner.Resizing", "outer.Resizing", "outer.Resized", "inner.Resized"));

    heard.deeds["inner.Resized"] = [&](Object*) { outer->_Control()->Close(); };
    front_.windows.back()->listener.resized(360, 220, front::ResizePhase::kDone);
    EXPECT_THAT(front_.windows.back()->content.controls, IsEmpty());
}

TEST_F(Containers, What_is_set_before_it_is_embedded_reaches_the_host) {
    const Ref<PushButton> outer = add_button(window_, {0, 0, 300, 200});
    const Ref<ContainerControl> container = make_container();
    container->set_LockBottom(true);
    container->set_AcceptFocus(true);
    container->set_AcceptTabs(true);
    container->set_UseFocusRing(false);
    container->set_EraseBackground(false);
    container->set_AutoDeactivate(false);
    container->set_Enabled(false);
    container->set_TabIndex(4);
    container->set_TabPanelIndex(0);
    container->set_HelpTag("help"_s);
    container->set_Parent(outer);
    container->set_BackColor({0x123456});
    container->set_HasBackColor(true);
    container->set_Visible(false);
    EXPECT_TRUE(container->Parent() == outer);
    container->EmbedWithin(window_, 1, 2, 30, 40);

    const Ref<EmbeddedWindowControl> host = host_of(container);
    EXPECT_TRUE(host->LockBottom() && host->AcceptFocus() && host->AcceptTabs());
    EXPECT_FALSE(host->LockTop() || host->UseFocusRing() || host->EraseBackground() || host->AutoDeactivate());
    EXPECT_TRUE(host->Parent() == outer);
    const front::CanvasDescription& canvas = shown(front_.windows.back()->content.named("Inner").inside).description;
    EXPECT_EQ(canvas.tab_index, 4);
    EXPECT_EQ(canvas.help, "help");
    EXPECT_EQ(canvas.background, 0x123456U);
    EXPECT_TRUE(canvas.accepts_focus);
    EXPECT_FALSE(canvas.visible || canvas.enabled || canvas.focus_ring);

    container->set_Visible(true);
    container->set_AcceptFocus(false);
    container->set_DisabledBalloonHelp("off"_s);
    container->set_HelpTag(""_s);
    EXPECT_TRUE(canvas.visible && !canvas.accepts_focus);
    EXPECT_EQ(canvas.help, "off");
    host->set_Visible(false);
    host->set_Left(9);
    EXPECT_FALSE(container->Visible());
    EXPECT_EQ(container->Left(), 9);
}

TEST_F(Containers, A_container_that_is_disabled_disables_what_lies_in_it) {
    const Ref<ContainerControl> container = make_container();
    container->EmbedWithin(window_, 0, 0, 90, 90);
    const Ref<PushButton> button = button_in(container);
    heard.names[button.object()] = "button";
    listen<"Action">(button);
    front_.windows.back()->listener.activated(true);
    EXPECT_TRUE(button->Active());
    container->set_Enabled(false);
    EXPECT_FALSE(button->Active());
    button->Push();
    EXPECT_THAT(heard.events, IsEmpty());
    container->set_Enabled(true);
    button->Push();
    EXPECT_THAT(heard.events, ElementsAre("button.Action"));
}

TEST_F(Containers, What_the_host_hears_the_container_hears) {
    const Ref<ContainerControl> container = make_container();
    listen_to_input(container);
    listen<"GotFocus">(container);
    listen<"LostFocus">(container);
    listen<"Paint", void(Object*)>(container);
    listen<"DropObject", void(Object*, Int)>(container);
    listen<"EnableMenuItems">(container);
    listen_to_life(container);
    container->EmbedWithin(window_, 20, 30, 90, 90);
    front::ControlListener& person = shown_host().listener;
    heard.answers["container.MouseDown"] = true;
    EXPECT_TRUE(person.mouse_down({1, 2}, front::MouseButton::kPrimary));
    person.mouse_dragged({3, 4});
    person.mouse_up({5, 6});
    EXPECT_FALSE(person.mouse_wheel({1, 2}, 3, 4));
    EXPECT_FALSE(person.key_down({"k"}));
    person.focus_changed(true);
    person.focus_changed(false);
    const Ref<EmbeddedWindowControl> host = host_of(container);
    host->_Paint(nullptr);
    RectControl::Events::DropObject.raise(host.get(), nullptr, 5);
    Canvas::Events::EnableMenuItems.raise(host.get());
    host->_MouseEnter();
    host->_MouseMove(7, 8);
    host->_MouseExit();
    EXPECT_THAT(
        heard.events,
        ElementsAre("container.Open", "container.MouseDown 1 2", "container.MouseDrag 3 4", "container.MouseUp 5 6",
                    "container.MouseWheel 1 2 3 4", "container.KeyDown k", "container.GotFocus", "container.LostFocus",
                    "container.Paint object", "container.DropObject object 0", "container.EnableMenuItems",
                    "container.MouseEnter", "container.MouseMove 7 8", "container.MouseExit"));
}

TEST_F(Containers, A_handler_of_the_host_itself_takes_the_place_of_the_container) {
    const Ref<ContainerControl> container = make_container();
    container->EmbedWithin(window_, 20, 30, 90, 90);
    listen_to_input(container);
    heard.names[container->_Control().object()] = "host";
    listen<"MouseDown", bool(Int, Int)>(container->_Control());
    shown_host().listener.mouse_down({1, 2}, front::MouseButton::kPrimary);
    EXPECT_THAT(heard.events, ElementsAre("host.MouseDown 1 2"));
}

TEST_F(Containers, The_pointer_enters_and_leaves_what_lies_in_it) {
    const Ref<ContainerControl> container = make_container();
    container->EmbedWithin(window_, 20, 30, 90, 90);
    const Ref<PushButton> button = button_in(container);
    heard.names[button.object()] = "button";
    for (const Ref<Object>& each : {Ref<Object>(container), Ref<Object>(button)}) {
        listen<"MouseEnter">(each);
        listen<"MouseMove", void(Int, Int)>(each);
        listen<"MouseExit">(each);
    }
    front_.windows.back()->listener.mouse_moved({22, 31});
    EXPECT_THAT(std::exchange(heard.events, {}), ElementsAre("container.MouseEnter", "container.MouseMove 2 1"));
    front_.windows.back()->listener.mouse_moved({35, 45});
    EXPECT_THAT(std::exchange(heard.events, {}),
                ElementsAre("container.MouseMove 15 15", "button.MouseEnter", "button.MouseMove 5 10"));
    front_.windows.back()->listener.mouse_left();
    EXPECT_THAT(heard.events, ElementsAre("container.MouseExit", "button.MouseExit"));
}

TEST_F(Containers, Keys_that_nobody_takes_go_outwards_and_the_focus_is_told_to_every_window) {
    const Ref<ContainerControl> outer = make_container("outer");
    const Ref<ContainerControl> inner = make_container("inner");
    outer->EmbedWithin(window_, 0, 0, 90, 90);
    inner->EmbedWithin(Arg<Window>(outer), 0, 0, 80, 80);
    for (const Ref<Object>& each : {Ref<Object>(window_), Ref<Object>(outer), Ref<Object>(inner)})
        listen<"KeyDown", bool(const String&)>(each);
    front::ControlListener& person = shown(shown_host().inside).inside.named("Inner").listener;
    EXPECT_FALSE(person.key_down({"x"}));
    EXPECT_THAT(std::exchange(heard.events, {}), ElementsAre("inner.KeyDown x", "outer.KeyDown x", "window.KeyDown x"));
    heard.answers["outer.KeyDown"] = true;
    EXPECT_TRUE(person.key_down({"y"}));
    EXPECT_THAT(heard.events, ElementsAre("inner.KeyDown y", "outer.KeyDown y"));

    person.focus_changed(true);
    EXPECT_TRUE(inner->Focus() == button_in(inner));
    EXPECT_TRUE(outer->Focus() == inner->_Control());
    EXPECT_TRUE(window_->Focus() == outer->_Control());
    person.focus_changed(false);
    EXPECT_TRUE(!inner->Focus() && !outer->Focus() && !window_->Focus());
}

bool paste(Object*) {
    heard.events.emplace_back("pasted");
    return true;
}

TEST_F(Containers, A_menu_item_is_answered_by_the_innermost_window_with_the_focus) {
    const Ref<ContainerControl> outer = make_container();
    const Ref<ContainerControl> inner = make_container();
    outer->EmbedWithin(window_, 0, 0, 90, 90);
    inner->EmbedWithin(Arg<Window>(outer), 0, 0, 80, 80);
    inner->_AddMenuHandler("EditPaste"_s, reinterpret_cast<Function>(paste));
    const Ref<MenuItem> item = make<MenuItem>();
    item->set_Name("EditPaste"_s);
    item->set_Enabled(false);
    const auto items = ArrayOf<MenuItem>::make();
    items->append(item);
    const Ref<_Pane> pane = host_of(outer)->_mImp;
    pane->EnableMenuItems(items);
    EXPECT_FALSE(item->Enabled() || pane->HandleMenuCommand(item));
    shown(shown_host().inside).inside.named("Inner").listener.focus_changed(true);
    pane->EnableMenuItems(items);
    EXPECT_TRUE(item->Enabled() && pane->HandleMenuCommand(item));
    EXPECT_THAT(heard.events, ElementsAre("pasted"));
}

using ContainerLife = Containers;

TEST_F(ContainerLife, It_opens_once_with_the_window_around_it_after_its_controls) {
    const Ref<ContainerControl> container = make_container();
    const Ref<PushButton> button = button_in(container);
    heard.names[button.object()] = "button";
    listen<"Open">(button);
    listen<"Open">(container);
    static ContainerControl* waiting = nullptr;
    waiting = container.get();
    const Ref<Window> other = make<Window>();
    heard.names[other.object()] = "other";
    heard.deeds["other.CreateControls"] = [](Object* self) {
        waiting->EmbedWithin(Arg<Window>(static_cast<Window*>(self)), 0, 0, 9, 9);
    };
    listen<"CreateControls">(other);
    listen<"Open">(other);
    other->Window_();
    EXPECT_THAT(heard.events, ElementsAre("other.CreateControls", "button.Open", "container.Open", "other.Open"));
    ewcOpen(container->_Control().object());
    EXPECT_EQ(heard.events.size(), 4U);
}

TEST_F(ContainerLife, The_window_around_asks_it_and_takes_it_along) {
    const Ref<ContainerControl> outer = make_container("outer");
    const Ref<ContainerControl> inner = make_container("inner");
    outer->EmbedWithin(window_, 0, 0, 90, 90);
    inner->EmbedWithin(Arg<Window>(outer), 0, 0, 80, 80);
    heard.names[button_in(inner).object()] = "button";
    listen<"Close">(button_in(inner));
    for (const Ref<Object>& each : {Ref<Object>(window_), Ref<Object>(outer), Ref<Object>(inner)}) listen_to_life(each);
    heard.answers["inner.CancelClose"] = true;
    window_->Close();
    EXPECT_THAT(std::exchange(heard.events, {}), ElementsAre("inner.CancelClose no"));
    EXPECT_TRUE(core::is_open(window_.object()) && core::is_open(inner.object()));

    heard.answers.clear();
    window_->Close();
    EXPECT_THAT(heard.events, ElementsAre("inner.CancelClose no", "outer.CancelClose no", "window.CancelClose no",
                                          "button.Close", "inner.Close", "outer.Close", "window.Close"));
    EXPECT_TRUE(core::open_containers().empty());
    EXPECT_EQ(front_.quits, 1);
}

TEST_F(ContainerLife, Closing_either_half_ends_both) {
    for (const bool by_host : {true, false}) {
        const Ref<ContainerControl> container = make_container();
        container->EmbedWithin(window_, 0, 0, 90, 90);
        listen_to_life(container);
        heard.events.clear();
        const Ref<RectControl> host = container->_Control();
        by_host ? host->Close() : container->Close();
        EXPECT_EQ(heard.events,
                  by_host ? (Names{"container.Close"}) : (Names{"container.CancelClose no", "container.Close"}));
        EXPECT_EQ(window_->ControlCount(), 0);
        EXPECT_TRUE(!host->Window() && !container->Window() && !container->_Control());
        EXPECT_THAT(front_.windows.back()->content.controls, IsEmpty());
        EXPECT_FALSE(core::is_open(container.object()));
        EXPECT_FALSE(ewcMouseDown(host.object(), 1, 2));
    }
    EXPECT_EQ(front_.quits, 0);
}

TEST_F(ContainerLife, A_host_whose_close_event_goes_elsewhere_ends_its_container_too) {
    const Ref<ContainerControl> container = make_container();
    container->EmbedWithin(window_, 0, 0, 90, 90);
    heard.names[container->_Control().object()] = "host";
    listen<"Close">(container->_Control());
    container->_Control()->Close();
    EXPECT_FALSE(core::is_open(container.object()));
}

TEST_F(ContainerLife, It_is_no_window_of_its_own_and_waits_to_be_embedded_until_the_end) {
    const Ref<ContainerControl> container = make_container();
    container->Show();
    container->ShowModalWithin(window_);
    container->Maximize();
    EXPECT_EQ(front_.windows.back()->description.content.left, 100);
    EXPECT_EQ(core::frontmost_window(), window_.object());
    EXPECT_EQ(container->Width(), 80);
    window_->Close();
    EXPECT_EQ(front_.quits, 1);
    EXPECT_TRUE(core::is_open(container.object()));
    core::close_all_windows(AppIsQuitting::kNoMatterWhat);
    EXPECT_FALSE(core::is_open(container.object()));
}

TEST_F(ContainerLife, The_implicit_instance_of_a_container_is_found_until_it_is_closed) {
    EXPECT_FALSE(RuntimeGetImplicitWindow("ContainerControl"_s));
    const Ref<ContainerControl> container = make_container();
    EXPECT_TRUE(RuntimeGetImplicitWindow("ContainerControl"_s) == container);
    container->EmbedWithin(window_, 0, 0, 90, 90);
    EXPECT_TRUE(RuntimeGetImplicitWindow("ContainerControl"_s) == container);
    window_->Close();
    EXPECT_FALSE(RuntimeGetImplicitWindow("ContainerControl"_s));
}

}  // namespace
}  // namespace tavrik::test
