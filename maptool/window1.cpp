#include "maptool/window1.h"

#include "maptool/menu_bar1.h"
#include "maptool/window1_actions.h"
#include "maptool/window1_properties.h"
#include "runtime/delegate.h"
#include "runtime/frame.h"
#include "runtime/tavrik_module.h"
#include "ui/push_button.h"
#include "ui/quit_menu_item.h"

namespace tavrik::Window1 {

Ref<Window1> Window1_() {
    Ref<Window> window = Tavrik::_GetImplicitWindow("Window1.Window1"_s);
    if (!window) {
        window = make<Window1>();
        window->Window_();
    }
    return check_cast<Window1>(window);
}

Ref<PushButton> Window1::PushButton1(const String& name) {
    return static_ref<PushButton>(RuntimeWindowControlByName(this, name));
}
Ref<PushButton> Window1::NullBSP(const String& name) {
    return static_ref<PushButton>(RuntimeWindowControlByName(this, name));
}
Ref<PushButton> Window1::Undo(const String& name) {
    return static_ref<PushButton>(RuntimeWindowControlByName(this, name));
}

namespace {

void lay_out(Window1* self) {
    const Frame frame(self);
    self->set_MenuBar(MenuBar1::MenuBar1_());
    Tavrik::_SetProperties(self, window_properties());
}

void create_controls(Window1* self) {
    const Frame frame(self);
    self->_CreateControls0();
}

Ref<PushButton> button_named(Window1* self, const String& name) {
    return check_cast<PushButton>(RuntimeWindowControlByName(self, name));
}

// Only the bare function stays installed: it is entered with the button, and finds the window from it.
void bind_action(Window1* self, Arg<PushButton> button, std::int32_t slot) {
    const Ref<Delegate> handler =
        RuntimeCreateDelegate(reinterpret_cast<Function>(&Delegate_IM_Invoke), self->vtable[slot], self,
                              literal<"(  )", kEncodingAscii>.string());
    Tavrik::_InstallInstanceEventHandler(button, "Action"_s, handler ? handler->function : nullptr);
}

void create_button(Window1* self, const String& name, const String& packed, std::int32_t action_slot) {
    const Frame frame(self, name, packed);
    {
        const Ref<PushButton> button = static_ref<PushButton>(self->__New(PushButton::__Lookup()));
        button->Constructor();
        self->_AddControl(name, button);
    }
    Tavrik::_SetProperties(button_named(self, name), packed);
    bind_action(self, button_named(self, name), action_slot);
}

void create_all_controls(Window1* self) {
    const Frame frame(self);
    create_button(self, "PushButton1"_s, load_map_properties(), slot_of<&Window1::PushButton1_Action>);
    create_button(self, "NullBSP"_s, null_bsp_properties(), slot_of<&Window1::NullBSP_Action>);
    create_button(self, "Undo"_s, undo_null_properties(), slot_of<&Window1::Undo_Action>);
}

template <class Item, LiteralText Name>
Ref<Item> menu_item(Window1* self) {
    const Frame frame(self);
    return check_cast<Item>(self->MenuBar()->_Lookup(literal<Name>.string()));
}

// The menus do without handlers of this window.
void add_menu_handlers(Window1* self, Arg<Window> window) {
    const Frame frame(self, window);
    check_cast<Window1>(window);
}

constexpr OperationRow kOperations[] = {
    operation<&Window1::Layout, lay_out>("Layout"),
    operation<&Window1::CreateControls, create_controls>("CreateControls"),
    operation<&Window1::_CreateControls0, create_all_controls>("_CreateControls0"),
    method<&Window1::PushButton1, RuntimeWindowControlByName>("PushButton1"),
    method<&Window1::NullBSP, RuntimeWindowControlByName>("NullBSP"),
    method<&Window1::Undo, RuntimeWindowControlByName>("Undo"),
    operation<&Window1::PushButton1_Action, load_map>("PushButton1_Action"),
    operation<&Window1::NullBSP_Action, null_bsp>("NullBSP_Action"),
    operation<&Window1::Undo_Action, undo_null>("Undo_Action"),
    operation<&Window1::EditMenu, menu_item<MenuItem, "EditMenu">>("EditMenu"),
    operation<&Window1::EditSelectAll, menu_item<MenuItem, "EditSelectAll">>("EditSelectAll"),
    operation<&Window1::UntitledMenu0, menu_item<MenuItem, "UntitledMenu0">>("UntitledMenu0"),
    operation<&Window1::EditClear, menu_item<MenuItem, "EditClear">>("EditClear"),
    operation<&Window1::EditPaste, menu_item<MenuItem, "EditPaste">>("EditPaste"),
    operation<&Window1::EditCopy, menu_item<MenuItem, "EditCopy">>("EditCopy"),
    operation<&Window1::EditCut, menu_item<MenuItem, "EditCut">>("EditCut"),
    operation<&Window1::UntitledMenu1, menu_item<MenuItem, "UntitledMenu1">>("UntitledMenu1"),
    operation<&Window1::EditUndo, menu_item<MenuItem, "EditUndo">>("EditUndo"),
    operation<&Window1::FileMenu, menu_item<MenuItem, "FileMenu">>("FileMenu"),
    operation<&Window1::FileQuit, menu_item<QuitMenuItem, "FileQuit">>("FileQuit"),
    operation<&Window1::AddMenuHandlers, add_menu_handlers>("AddMenuHandlers"),
};

constexpr FieldRow kFields[] = {
    field<&Window1::f>("f"),
    field<&Window1::br>("br"),
};

constexpr HandlerRow kHandlers[] = {
    handles<&Window1::Layout>("Layout", Window::Events::Layout),
    handles<&Window1::CreateControls>("CreateControls", Window::Events::CreateControls),
    handles<&Window1::AddMenuHandlers>("AddMenuHandlers", Window::Events::AddMenuHandlers),
};

}  // namespace

const ClassDefinition& Window1::definition() {
    static constexpr ClassDefinition kDefinition = define<Window1>({
        .layer = Layer::kApplication,
        .operations = kOperations,
        .fields = kFields,
        .handlers = kHandlers,
    });
    return kDefinition;
}

}  // namespace tavrik::Window1
