#include "ui/pane.h"

#include "runtime/frame.h"
#include "ui/pane_imp.h"
#include "ui/rect_control.h"
#include "ui/window.h"

#include <tavrik/wrapping.h>

namespace tavrik {
namespace {

enum class Part { kLeft, kTop, kWidth, kHeight };

void set_part(_Pane* self, std::int32_t& part, Part which, std::int32_t value) {
    const Frame frame(self);
    const std::int32_t delta = wrapping_difference(value, std::exchange(part, value));
    const auto delta_of = [&](Part asked) { return asked == which ? delta : 0; };
    self->HonorControlLocking(delta_of(Part::kLeft), delta_of(Part::kTop), delta_of(Part::kWidth),
                              delta_of(Part::kHeight));
    self->ResizeControl();
}

}  // namespace

void _Pane::set_Left(std::int32_t left) { set_part(this, mLeft, Part::kLeft, left); }
void _Pane::set_Top(std::int32_t top) { set_part(this, mTop, Part::kTop, top); }
void _Pane::set_Width(std::int32_t width) { set_part(this, mWidth, Part::kWidth, width); }
void _Pane::set_Height(std::int32_t height) { set_part(this, mHeight, Part::kHeight, height); }

void _Pane::set_Enabled(bool enabled) {
    const Frame frame(this);
    mEnabled = enabled;
    EnableDisable();
}

void _Pane::set_Visible(bool visible) {
    const Frame frame(this);
    mVisible = visible;
    AddToParentPane();
}

void _Pane::set_Cursor(Arg<MouseCursor> cursor) {
    const Frame frame(this, cursor);
    mCursor = cursor;
    if (mImp) mImp->CursorChanged();
}

void _Pane::set_Window(Arg<tavrik::Window> window) {
    const Frame frame(this, window);
    mWindow = window;
    if (!mParent && mWindow && mWindow->_mContentPane.object() != this) set_Parent(mWindow->_mContentPane);
    AddToParentPane();
}

namespace {

Ref<RectControl> rect_control_of(_Pane* self) {
    return is_a<RectControl>(self->Control()) ? check_cast<RectControl>(self->Control()) : nullptr;
}

template <class Interface>
Ref<Object> implementer_of(_Pane* self) {
    return is_a<Interface>(self->Control()) ? Ref<Object>(self->Control()) : nullptr;
}

void destroy(_Pane* self) {
    const Frame frame(self);
    self->set_Control(nullptr);
    self->set_Parent(nullptr);
}

void handle_got_focus(_Pane* self) {
    const Frame frame(self);
    if (const auto control = implementer_of<_FocusEvents>(self)) _FocusEvents::_GotFocus(control.object());
    self->Window()->_mFocusControl = check_cast<RectControl>(self->Control());
}

void handle_lost_focus(_Pane* self) {
    const Frame frame(self);
    if (const auto control = implementer_of<_FocusEvents>(self)) _FocusEvents::_LostFocus(control.object());
    self->Window()->_mFocusControl = nullptr;
}

bool accept_focus(_Pane* self, bool&) {
    const Frame frame(self);
    return false;
}

bool handle_mouse_down(_Pane* self, std::int32_t x, std::int32_t y, std::int32_t) {
    const Frame frame(self);
    if (const auto control = implementer_of<_MouseEvents>(self))
        return _MouseEvents::_MouseDown(control.object(), x, y);
    return self->IsRootControl() && self->Window()->_CallMouseDown(x, y);
}

void handle_mouse_drag(_Pane* self, std::int32_t x, std::int32_t y) {
    const Frame frame(self);
    if (const auto control = implementer_of<_MouseEvents>(self)) _MouseEvents::_MouseDrag(control.object(), x, y);
}

void handle_mouse_up(_Pane* self, std::int32_t x, std::int32_t y) {
    const Frame frame(self);
    if (const auto control = implementer_of<_MouseEvents>(self)) _MouseEvents::_MouseUp(control.object(), x, y);
}

void tell_exit(_Pane* self) {
    if (self->IsRootControl()) {
        self->Window()->_MouseExit();
    } else if (const auto control = rect_control_of(self)) {
        control->_MouseExit();
    }
    self->mMouseWasInBounds = false;
}

void tell_enter(_Pane* self) {
    if (self->IsRootControl()) {
        self->Window()->_MouseEnter();
    } else if (const auto control = rect_control_of(self)) {
        control->_MouseEnter();
    }
    self->mMouseWasInBounds = true;
}

void tell_move(_Pane* self, std::int32_t x, std::int32_t y) {
    if (self->IsRootControl()) {
        self->Window()->_MouseMove(x, y);
    } else if (const auto control = rect_control_of(self)) {
        control->_MouseMove(x, y);
    }
}

// The corner and the point are in the coordinates of the parent.
bool is_outside(const _Pane& pane, std::int32_t x, std::int32_t y) {
    const std::int32_t local_x = wrapping_difference(x, pane.mLeft);
    const std::int32_t local_y = wrapping_difference(y, pane.mTop);
    return local_x < 0 || local_y < 0 || pane.mWidth < local_x || pane.mHeight < local_y;
}

// What a pane does that leaves HandleMouseMove as it is.
Function plain_mouse_move() { return _Pane::__Lookup()->vtable[slot_of<&_Pane::HandleMouseMove>]; }

// Whether nothing comes of telling the pane: the pointer is outside, as it was, and there are no children. Of thousands
// of panes all but two or three are like that. An array with the operations of `plain` has its elements itself.
bool is_unconcerned(const _Pane& pane, std::int32_t x, std::int32_t y, const Array& plain, Function plain_move) {
    if (!is_outside(pane, x, y) || pane.mMouseWasInBounds) return false;
    const Array* const children = pane.mChildren.get();
    if (children != nullptr && (children->operations != plain.operations || children->has(0))) return false;
    return pane.vtable[slot_of<&_Pane::HandleMouseMove>] == plain_move;
}

void tell_children(ArrayOf<_Pane>& children, std::int32_t x, std::int32_t y) {
    const Function plain_move = plain_mouse_move();
    for (std::int32_t i = 0; children.has(i) || i <= children.upper_bound(); ++i) {
        const _Pane* const near = children.has(i) ? children.peek(i) : nullptr;
        if (near == nullptr || !is_unconcerned(*near, x, y, children, plain_move))
            children.at(i)->HandleMouseMove(x, y);
        RuntimeBackgroundTask();
    }
}

void handle_mouse_move(_Pane* self, std::int32_t x, std::int32_t y) {
    const Frame frame(self);
    const std::int32_t local_x = wrapping_difference(x, self->mLeft);
    const std::int32_t local_y = wrapping_difference(y, self->mTop);
    const bool outside = is_outside(*self, x, y);
    if (outside && self->mMouseWasInBounds) tell_exit(self);
    if (!outside && !self->mMouseWasInBounds) tell_enter(self);
    if (!outside) tell_move(self, local_x, local_y);

    const Ref<ArrayOf<_Pane>> children = self->mChildren;
    if (children) tell_children(*children.get(), local_x, local_y);
}

void handle_mouse_enter(_Pane* self) {
    const Frame frame(self);
    if (const auto control = rect_control_of(self)) control->_MouseEnter();
}

void handle_mouse_exit(_Pane* self) {
    const Frame frame(self);
    if (const auto control = rect_control_of(self)) control->_MouseExit();
}

bool handle_mouse_wheel(_Pane* self, std::int32_t x, std::int32_t y, std::int32_t delta_x, std::int32_t delta_y) {
    const Frame frame(self);
    if (const auto control = rect_control_of(self)) return control->_MouseWheel(x, y, delta_x, delta_y);
    return self->IsRootControl() && self->Window()->_MouseWheel(x, y, delta_x, delta_y);
}

bool handle_key_down(_Pane* self, const String& key, std::int32_t, std::int32_t) {
    const Frame frame(self, key);
    return self->IsRootControl() && self->Window()->_KeyDown(key);
}

void close(_Pane* self) {
    const Frame frame(self);
    self->set_Parent(nullptr);
    self->set_Control(nullptr);
    if (!self->mImp) return;
    self->mImp->Close();
    self->mImp = nullptr;
}

bool ignore_drag_enter(_Pane* self, Arg<DragItem> item) {
    const Frame frame(self, item);
    return false;
}

void ignore_drag_exit(_Pane* self, Arg<DragItem> item) { const Frame frame(self, item); }

bool ignore_drag_over(_Pane* self, std::int32_t, std::int32_t, Arg<DragItem> item) {
    const Frame frame(self, item);
    return false;
}

bool is_root_control(_Pane* self) {
    const Frame frame(self);
    return !self->mParent && self->mWindow;
}

void refresh(_Pane* self, bool erase) {
    const Frame frame(self);
    if (self->mImp) self->mImp->Refresh(erase);
}

void refresh_rect(_Pane* self, std::int32_t x, std::int32_t y, std::int32_t width, std::int32_t height, bool erase) {
    const Frame frame(self);
    if (self->mImp) self->mImp->RefreshRect(x, y, width, height, erase);
}

void invalidate(_Pane* self) {
    const Frame frame(self);
    if (self->mImp) self->mImp->Invalidate();
}

void invalidate_rect(_Pane* self, std::int32_t x, std::int32_t y, std::int32_t width, std::int32_t height) {
    const Frame frame(self);
    if (self->mImp) self->mImp->InvalidateRect(x, y, width, height);
}

void draw_nothing(_Pane* self, Arg<Graphics> graphics, std::int32_t, std::int32_t) {
    const Frame frame(self, graphics);
}

void enable_no_menu_items(_Pane* self, Arg<ArrayOf<MenuItem>> items) { const Frame frame(self, items); }

bool handle_no_menu_command(_Pane* self, Arg<MenuItem> item) {
    const Frame frame(self, item);
    return false;
}

void take_over(_Pane* self, _Pane* old) {
    self->set_Enabled(old->Enabled());
    self->set_Height(old->Height());
    self->Index = old->Index;
    self->set_Left(old->Left());
    self->LockBottom = old->LockBottom;
    self->LockLeft = old->LockLeft;
    self->LockRight = old->LockRight;
    self->LockTop = old->LockTop;
    self->Name = old->Name;
    self->set_PanelIndex(old->PanelIndex());
    self->set_Parent(old->Parent());
    self->set_TabPanelVisible(old->TabPanelVisible());
    self->set_Top(old->Top());
    self->set_Visible(old->Visible());
    self->set_Width(old->Width());
    self->set_Window(old->Window());
}

void construct(_Pane* self, Arg<Control> control) {
    const Frame frame(self, control);
    self->set_Control(control);
    self->CreateImp();
    if (self->mImp) self->mImp->set_Pane(self);
    if (!self->mControl) return;
    const Ref<_Pane> old = self->mControl->_mImp;
    if (old) take_over(self, old.get());
}

std::int32_t handle(_Pane* self) {
    const Frame frame(self);
    return self->mImp ? self->mImp->Handle() : 0;
}

void set_focus(_Pane* self) {
    const Frame frame(self);
    if (self->mImp) self->mImp->SetFocus();
}

void suppress_resizing(_Pane* self) {
    const Frame frame(self);
    ++self->mSuppressionLevel;
}

void unsuppress_resizing(_Pane* self) {
    const Frame frame(self);
    --self->mSuppressionLevel;
}

void resize_control(_Pane* self) {
    const Frame frame(self);
    if (self->mSuppressionLevel == 0 && self->mImp) self->mImp->ResizeControl();
}

void follow(_Pane* child, std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height) {
    if (child->LockLeft && child->LockRight) {
        child->set_Width(wrapping_sum(child->mWidth, width));
    } else {
        child->set_Left(wrapping_sum(child->mLeft, child->LockRight ? width : left));
    }
    if (child->LockTop && child->LockBottom) {
        child->set_Height(wrapping_sum(child->mHeight, height));
    } else {
        child->set_Top(wrapping_sum(child->mTop, child->LockBottom ? height : top));
    }
}

void honor_control_locking(_Pane* self, std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height) {
    const Frame frame(self);
    const Ref<ArrayOf<_Pane>> children = self->mChildren;
    if (!children) return;
    for (std::int32_t i = 0; i <= children->upper_bound(); ++i) {
        const Ref<_Pane> child = children->at(i);
        if (!child) RaiseNilObjectException();
        follow(child.get(), left, top, width, height);
        RuntimeBackgroundTask();
    }
}

void paint(_Pane* self, Arg<Graphics> graphics) {
    const Frame frame(self, graphics);
    if (self->IsRootControl()) self->Window()->_Paint(graphics);
}

Ref<Graphics> graphics(_Pane* self) {
    const Frame frame(self);
    return self->mImp ? self->mImp->Graphics() : nullptr;
}

std::int32_t child_count(_Pane* self) {
    const Frame frame(self);
    return self->mChildren->upper_bound() + 1;
}

Ref<_Pane> child(_Pane* self, std::int32_t position) {
    const Frame frame(self);
    return self->mChildren->at(position);
}

void enable_disable(_Pane* self) {
    const Frame frame(self);
    if (self->mImp) self->mImp->EnableDisable();
}

void add_to_parent_pane(_Pane* self) {
    const Frame frame(self);
    if (self->mImp) self->mImp->AddToParentPane();
}

void run_destructor(Object* self) { static_cast<_Pane*>(self)->Destructor(); }

constexpr OperationRow kOperations[] = {
    operation<&_Pane::CreateImp, no_effect>("CreateImp"),
    operation<&_Pane::Destructor, destroy>("Destructor"),
    operation<&_Pane::HandleGotFocus, handle_got_focus>("HandleGotFocus"),
    operation<&_Pane::HandleLostFocus, handle_lost_focus>("HandleLostFocus"),
    operation<&_Pane::AcceptFocus, accept_focus>("AcceptFocus"),
    operation<&_Pane::HandleMouseDown, handle_mouse_down>("HandleMouseDown"),
    operation<&_Pane::HandleMouseDrag, handle_mouse_drag>("HandleMouseDrag"),
    operation<&_Pane::HandleMouseUp, handle_mouse_up>("HandleMouseUp"),
    operation<&_Pane::HandleMouseMove, handle_mouse_move>("HandleMouseMove"),
    operation<&_Pane::HandleMouseEnter, handle_mouse_enter>("HandleMouseEnter"),
    operation<&_Pane::HandleMouseExit, handle_mouse_exit>("HandleMouseExit"),
    operation<&_Pane::HandleMouseWheel, handle_mouse_wheel>("HandleMouseWheel"),
    operation<&_Pane::HandleKeyDown, handle_key_down>("HandleKeyDown"),
    operation<&_Pane::Close, close>("Close"),
    operation<&_Pane::DragEnter, ignore_drag_enter>("DragEnter"),
    operation<&_Pane::DragExit, ignore_drag_exit>("DragExit"),
    operation<&_Pane::DragOver, ignore_drag_over>("DragOver"),
    operation<&_Pane::IsRootControl, is_root_control>("IsRootControl"),
    operation<&_Pane::Refresh, refresh>("Refresh"),
    operation<&_Pane::RefreshRect, refresh_rect>("RefreshRect"),
    operation<&_Pane::Invalidate, invalidate>("Invalidate"),
    operation<&_Pane::InvalidateRect, invalidate_rect>("InvalidateRect"),
    operation<&_Pane::DrawInto, draw_nothing>("DrawInto"),
    operation<&_Pane::HandleActivate, no_effect>("HandleActivate"),
    operation<&_Pane::HandleDeactivate, no_effect>("HandleDeactivate"),
    operation<&_Pane::EnableMenuItems, enable_no_menu_items>("EnableMenuItems"),
    operation<&_Pane::HandleMenuCommand, handle_no_menu_command>("HandleMenuCommand"),
    operation<&_Pane::Constructor, construct>("Constructor"),
    operation<&_Pane::Handle, handle>("Handle"),
    operation<&_Pane::SetFocus, set_focus>("SetFocus"),
    operation<&_Pane::SuppressResizing, suppress_resizing>("SuppressResizing"),
    operation<&_Pane::UnsuppressResizing, unsuppress_resizing>("UnsuppressResizing"),
    operation<&_Pane::ResizeControl, resize_control>("ResizeControl"),
    operation<&_Pane::HonorControlLocking, honor_control_locking>("HonorControlLocking"),
    operation<&_Pane::Paint, paint>("Paint"),
    operation<&_Pane::Graphics, graphics>("Graphics"),
    operation<&_Pane::CanAcceptFocus, accept_focus>("CanAcceptFocus"),
    operation<&_Pane::ChildCount, child_count>("ChildCount"),
    operation<&_Pane::Child, child>("Child"),
    operation<&_Pane::EnableDisable, enable_disable>("EnableDisable"),
    operation<&_Pane::AddToParentPane, add_to_parent_pane>("AddToParentPane"),
    operation<&_Pane::Open, no_effect>("Open"),
};

constexpr FieldRow kFields[] = {
    field<&_Pane::mLeft>("mLeft"),
    field<&_Pane::mTop>("mTop"),
    field<&_Pane::mWidth>("mWidth"),
    field<&_Pane::mHeight>("mHeight"),
    field<&_Pane::mVisible>("mVisible"),
    field<&_Pane::mEnabled>("mEnabled"),
    field<&_Pane::mTabPanelVisible>("mTabPanelVisible"),
    field<&_Pane::mWindow>("mWindow"),
    field<&_Pane::mParent>("mParent"),
    field<&_Pane::mChildren>("mChildren"),
    field<&_Pane::mImp>("mImp"),
    field<&_Pane::mControl>("mControl"),
    field<&_Pane::Name>("Name"),
    field<&_Pane::Index>("Index"),
    field<&_Pane::mPanelIndex>("mPanelIndex"),
    field<&_Pane::mMouseWasInBounds>("mMouseWasInBounds"),
    field<&_Pane::mSuppressionLevel>("mSuppressionLevel"),
    field<&_Pane::LockLeft>("LockLeft"),
    field<&_Pane::LockTop>("LockTop"),
    field<&_Pane::LockBottom>("LockBottom"),
    field<&_Pane::LockRight>("LockRight"),
    field<&_Pane::mCursor>("mCursor"),
};

constexpr PropertyRow kProperties[] = {
    property<&_Pane::Window, &_Pane::set_Window>("Window"),
    property<&_Pane::Enabled, &_Pane::set_Enabled>("Enabled"),
    property<&_Pane::Height, &_Pane::set_Height>("Height"),
    property<&_Pane::Left, &_Pane::set_Left>("Left"),
    property<&_Pane::Parent, &_Pane::set_Parent>("Parent"),
    property<&_Pane::TabPanelVisible, &_Pane::set_TabPanelVisible>("TabPanelVisible"),
    property<&_Pane::Top, &_Pane::set_Top>("Top"),
    property<&_Pane::Visible, &_Pane::set_Visible>("Visible"),
    property<&_Pane::Width, &_Pane::set_Width>("Width"),
    property<&_Pane::Control, &_Pane::set_Control>("Control"),
    property<&_Pane::PanelIndex, &_Pane::set_PanelIndex>("PanelIndex"),
    property<&_Pane::Cursor, &_Pane::set_Cursor>("Cursor"),
};

}  // namespace

const ClassDefinition& _Pane::definition() {
    static constexpr ClassDefinition kDefinition = define<_Pane>({
        .destructor = run_destructor,
        .operations = kOperations,
        .fields = kFields,
        .properties = kProperties,
    });
    return kDefinition;
}

}  // namespace tavrik
