#include "toolkit/core/pane.h"

#include "tests/support/raised.h"
#include "tests/toolkit/core/shown_window.h"
#include "toolkit/core/control.h"
#include "ui/canvas.h"
#include "ui/pane.h"
#include "ui/push_button.h"

#include <tavrik/wrapping.h>

#include <gmock/gmock.h>

#include <random>

namespace tavrik::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Int = std::int32_t;

// A pane of no native kind, with a rectangle.
Ref<_Pane> pane_at(Int left, Int top, Int width, Int height) {
    const auto pane = make<_Pane>();
    pane->mLeft = left;
    pane->mTop = top;
    pane->mWidth = width;
    pane->mHeight = height;
    return pane;
}

void put_into(const Ref<_Pane>& child, const Ref<_Pane>& parent) { parent->mChildren->append(child); }

class Panes : public WindowsTest {
protected:
    template <class Kind>
    Ref<Kind> add(const Ref<Window>& window, const char* name) {
        const auto control = make<Kind>();
        window->_AddControl(String(std::string_view(name)), control);
        return control;
    }

    std::vector<std::string> heard_now() { return std::exchange(heard().events, {}); }

    const Ref<Window> window_ = open();
};

TEST_F(Panes, Count_both_ends_of_their_rectangle_and_tell_enter_move_and_exit) {
    const Ref<Canvas> canvas = add<Canvas>(window_, "Canvas");
    canvas->_Move(10, 10, 5, 5);
    listen_to<"MouseEnter">(canvas);
    listen_to<"MouseMove", void(Int, Int)>(canvas);
    listen_to<"MouseExit">(canvas);
    front::WindowListener& person = face().listener;

    person.mouse_moved({16, 15});
    EXPECT_THAT(heard_now(), IsEmpty());
    person.mouse_moved({15, 15});
    EXPECT_THAT(heard_now(), ElementsAre("MouseEnter", "MouseMove"));
    person.mouse_moved({10, 10});
    EXPECT_THAT(heard_now(), ElementsAre("MouseMove"));
    person.mouse_left();
    person.mouse_left();
    EXPECT_THAT(heard_now(), ElementsAre("MouseExit"));
}

TEST_F(Panes, Tell_nothing_of_the_pointer_over_what_is_hidden) {
    const Ref<Canvas> outer = add<Canvas>(window_, "Outer");
    const Ref<Canvas> inner = add<Canvas>(window_, "Inner");
    outer->_Move(0, 0, 50, 50);
    inner->_Move(0, 0, 50, 50);
    inner->set_Parent(outer);
    listen_to<"MouseMove", void(Int, Int)>(inner);
    listen_to<"MouseExit">(inner);
    face().listener.mouse_moved({5, 5});
    outer->set_Visible(false);
    face().listener.mouse_moved({6, 6});
    face().listener.mouse_moved({7, 7});
    EXPECT_THAT(heard_now(), ElementsAre("MouseMove", "MouseExit"));
    outer->set_Visible(true);
    face().listener.mouse_moved({8, 8});
    EXPECT_THAT(heard_now(), ElementsAre("MouseMove"));
}

TEST_F(Panes, Send_what_no_control_wants_to_the_window_if_they_are_its_root) {
    listen_to<"MouseDown", bool(Int, Int)>(window_);
    listen_to<"MouseWheel", bool(Int, Int, Int, Int)>(window_);
    listen_to<"KeyDown", bool(const String&)>(window_);
    const Ref<Canvas> canvas = add<Canvas>(window_, "Canvas");
    listen_to<"KeyDown", bool(const String&)>(canvas);
    const Ref<_Pane> root = window_->_mContentPane;
    const Ref<_Pane> inner = canvas->_mImp;

    root->HandleMouseDown(1, 2, 0);
    root->HandleMouseWheel(1, 2, 3, 4);
    root->HandleKeyDown("a"_s, 0, 0);
    EXPECT_THAT(heard_now(), ElementsAre("MouseDown", "MouseWheel", "KeyDown"));
    inner->HandleMouseDown(1, 2, 0);
    inner->HandleMouseWheel(1, 2, 3, 4);
    EXPECT_FALSE(inner->HandleKeyDown("a"_s, 0, 0)) << "a pane that isn't the root has no keys";
    EXPECT_THAT(heard_now(), IsEmpty());

    root->set_Control(canvas);
    root->HandleMouseDown(1, 2, 0);
    EXPECT_THAT(heard_now(), IsEmpty()) << "the control of a root goes before its window";
    root->set_Control(nullptr);
}

TEST_F(Panes, Work_without_a_native_side_a_window_or_a_control) {
    const auto pane = make<_Pane>();
    bool accepts = true;
    EXPECT_FALSE(pane->IsRootControl() || pane->AcceptFocus(accepts) || pane->CanAcceptFocus(accepts));
    EXPECT_TRUE(accepts);
    EXPECT_FALSE(pane->HandleMouseDown(0, 0, 0) || pane->HandleMouseWheel(0, 0, 0, 0) ||
                 pane->HandleKeyDown("a"_s, 0, 0));
    EXPECT_EQ(pane->Handle(), 0);
    EXPECT_FALSE(pane->Graphics());
    EXPECT_EQ(pane->ChildCount(), 0);
    pane->Refresh(true);
    pane->InvalidateRect(0, 0, 1, 1);
    pane->SetFocus();
    pane->Close();
    EXPECT_EQ(class_raised_by([&] { pane->HandleGotFocus(); }), "NilObjectException");
    EXPECT_EQ(class_raised_by([&] { pane->Child(0); }), "OutOfBoundsException");
    pane->mChildren->append(nullptr);
    EXPECT_EQ(class_raised_by([&] { pane->HandleMouseMove(0, 0); }), "NilObjectException");
}

TEST_F(Panes, Have_the_tree_and_the_rectangles_of_the_controls) {
    const Ref<Canvas> outer = add<Canvas>(window_, "Outer");
    const Ref<Canvas> inner = add<Canvas>(window_, "Inner");
    outer->_Move(10, 20, 100, 100);
    inner->_Move(15, 30, 50, 50);
    inner->set_Parent(outer);
    const Ref<_Pane> outer_pane = outer->_mImp, inner_pane = inner->_mImp;

    EXPECT_EQ(inner_pane->Parent(), outer_pane);
    EXPECT_EQ(outer_pane->Parent(), Ref<_Pane>(window_->_mContentPane));
    EXPECT_EQ(outer_pane->Child(0), inner_pane);
    EXPECT_EQ(inner_pane->Left(), 5);
    EXPECT_EQ(inner_pane->Top(), 10);

    inner_pane->set_Left(7);
    inner_pane->set_Enabled(false);
    inner_pane->set_Visible(false);
    EXPECT_EQ(inner->Left(), 17);
    EXPECT_FALSE(inner->Enabled() || inner->Visible());

    const auto second = make<_Pane>();
    second->Constructor(inner);
    EXPECT_EQ(second->Left(), 7);
    EXPECT_FALSE(second->Enabled());

    outer->Close();
    EXPECT_FALSE(inner->Parent());
    EXPECT_EQ(window_->_mContentPane->ChildCount(), 0);
}

TEST_F(Panes, Resize_the_native_side_only_while_nothing_suppresses_it) {
    const Ref<Canvas> canvas = add<Canvas>(window_, "Canvas");
    const Ref<_Pane> pane = canvas->_mImp;
    for (const int level : {1, -1}) {
        level > 0 ? pane->SuppressResizing() : pane->UnsuppressResizing();
        pane->set_Width(canvas->Width() + 5);
        EXPECT_NE(canvas->Width(), pane->Width());
        level > 0 ? pane->UnsuppressResizing() : pane->SuppressResizing();
        pane->ResizeControl();
        EXPECT_EQ(canvas->Width(), pane->Width());
    }
}

// ---- Locks

struct Locks {
    bool left, top, right, bottom;
};

front::Rect rect_of(const Ref<_Pane>& pane) { return {pane->mLeft, pane->mTop, pane->mWidth, pane->mHeight}; }

// The rule, written down another way: one axis at a time, by case.
void follow(Int& start, Int& length, bool near, bool far, Int start_change, Int length_change) {
    if (near && far) {
        length += length_change;
    } else {
        start += far ? length_change : start_change;
    }
}

struct Model {
    Ref<_Pane> pane;
    front::Rect rect;
    Locks locks;
    std::vector<Model> children;

    void change(const front::Rect& by) {
        rect = {rect.left + by.left, rect.top + by.top, rect.width + by.width, rect.height + by.height};
        for (Model& child : children) {
            front::Rect next = child.rect;
            follow(next.left, next.width, child.locks.left, child.locks.right, by.left, by.width);
            follow(next.top, next.height, child.locks.top, child.locks.bottom, by.top, by.height);
            child.change({next.left - child.rect.left, next.top - child.rect.top, next.width - child.rect.width,
                          next.height - child.rect.height});
        }
    }
    void expect_equal() const {
        EXPECT_EQ(rect_of(pane), rect);
        for (const Model& child : children) child.expect_equal();
    }
};

Model grow(std::mt19937& random, int depth) {
    const auto number = [&](int most) { return static_cast<Int>(random() % static_cast<unsigned>(most)); };
    const auto yes = [&] { return random() % 2 == 0; };
    const front::Rect rect{number(200), number(200), number(300), number(300)};
    Model model{pane_at(rect.left, rect.top, rect.width, rect.height), rect, {yes(), yes(), yes(), yes()}, {}};
    model.pane->LockLeft = model.locks.left;
    model.pane->LockTop = model.locks.top;
    model.pane->LockRight = model.locks.right;
    model.pane->LockBottom = model.locks.bottom;
    for (int i = depth == 0 ? 0 : number(4); i > 0; --i) {
        model.children.push_back(grow(random, depth - 1));
        put_into(model.children.back().pane, model.pane);
    }
    return model;
}

TEST_F(Panes, Follow_their_parent_by_their_locks_to_any_depth) {
    std::mt19937 random(7);
    for (int tree = 0; tree < 40; ++tree) {
        SCOPED_TRACE(tree);
        Model root = grow(random, 4);
        for (int step = 0; step < 10; ++step) {
            const auto by = static_cast<Int>(random() % 100) - 50;
            switch (random() % 4) {
                case 0:
                    root.pane->set_Left(root.rect.left + by);
                    root.change({by, 0, 0, 0});
                    break;
                case 1:
                    root.pane->set_Top(root.rect.top + by);
                    root.change({0, by, 0, 0});
                    break;
                case 2:
                    root.pane->set_Width(root.rect.width + by);
                    root.change({0, 0, by, 0});
                    break;
                default:
                    root.pane->set_Height(root.rect.height + by);
                    root.change({0, 0, 0, by});
            }
            root.expect_equal();
        }
    }
}

}  // namespace
}  // namespace tavrik::test
