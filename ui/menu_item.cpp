#include "ui/menu_item.h"

#include "data/dictionary.h"
#include "runtime/frame.h"
#include "ui/menu_bar.h"

namespace tavrik {

void enable_handled(Arg<ArrayOf<MenuItem>> items, const Field<Dictionary>& handlers) {
    for (std::int32_t i = 0; i <= items->upper_bound(); ++i) {
        const Ref<Variant> name = StringToVariant(items->at(i)->Name());
        if (handlers->HasKey(name)) items->at(i)->Enable();
        RuntimeBackgroundTask();
    }
}

namespace {

void disable_entirely(MenuItem* self) {
    const Frame frame(self);
    if (!is_a<MenuBar>(self)) self->set_Enabled(false);
    for (std::int32_t i = 0; i <= self->_mChildren->upper_bound(); ++i) {
        self->_mChildren->at(i)->_DisableEntirely();
        RuntimeBackgroundTask();
    }
}

void self_enable(MenuItem* self) {
    const Frame frame(self);
    MenuItem::Events::EnableMenu.raise(self);
}

using TextAndTag = void(const String&, Arg<Variant>);
using LookUp = Ref<MenuItem>(const String&);
using PopUpAt = Ref<MenuItem>(std::int32_t, std::int32_t);
using LookUpArray = Ref<MenuItem>(const String&, std::int32_t);

constexpr OperationRow kOperations[] = {
    operation<&MenuItem::Enable, RuntimeEnableMenu>("Enable"),
    operation<&MenuItem::Close, RuntimeCloseMenuItem>("Close"),
    operation<&MenuItem::Item, RuntimeMenuItemItem>("Item"),
    operation<&MenuItem::Count, RuntimeMenuItemCount>("Count"),
    operation<&MenuItem::Child, RuntimeMenuItemChild>("Child"),
    operation<&MenuItem::Append, RuntimeMenuItemAppend>("Append"),
    operation<&MenuItem::Insert, RuntimeMenuItemInsert>("Insert"),
    operation<pick<void(std::int32_t)>(&MenuItem::Remove), RuntimeMenuItemRemoveIndex>("Remove"),
    operation<pick<void(Arg<MenuItem>)>(&MenuItem::Remove), RuntimeMenuItemRemoveItem>("Remove"),
    operation<pick<void(const String&)>(&MenuItem::Remove), RuntimeMenuItemRemoveByName>("Remove"),
    operation<pick<LookUp>(&MenuItem::_Lookup), RuntimeMenuItemLookup>("_Lookup"),
    operation<pick<LookUpArray>(&MenuItem::_Lookup), RuntimeMenuItemLookupArray>("_Lookup"),
    operation<pick<void()>(&MenuItem::MenuItem_), RuntimeMenuItemDefaultConstructor>("MenuItem"),
    operation<pick<TextAndTag>(&MenuItem::Constructor), MenuItemConstructor>("Constructor"),
    operation<pick<Ref<MenuItem>()>(&MenuItem::PopUp), RuntimeMenuItemPopUpByCursor>("PopUp"),
    operation<pick<PopUpAt>(&MenuItem::PopUp), RuntimeMenuItemPopUp>("PopUp"),
    operation<&MenuItem::_Swap, RuntimeMenuItemSwap>("_Swap"),
    operation<&MenuItem::_DisableEntirely, disable_entirely>("_DisableEntirely"),
    operation<&MenuItem::_SelfEnable, self_enable>("_SelfEnable"),
    operation<pick<TextAndTag>(&MenuItem::MenuItem_), MenuItemConstructor>("MenuItem"),
    operation<pick<void()>(&MenuItem::Constructor), RuntimeMenuItemDefaultConstructor>("Constructor"),
};

constexpr FieldRow kFields[] = {
    field<&MenuItem::_mImp>("_mImp"),     field<&MenuItem::_mName>("_mName"),         field<&MenuItem::_mTag>("_mTag"),
    field<&MenuItem::_mIndex>("_mIndex"), field<&MenuItem::_mChildren>("_mChildren"),
};

constexpr PropertyRow kProperties[] = {
    property<&MenuItem::Name, &MenuItem::set_Name>("Name"),
    property<&MenuItem::Index, &MenuItem::set_Index>("Index"),
    property<&MenuItem::Tag, &MenuItem::set_Tag>("Tag"),
    property<&MenuItem::BalloonHelp, &MenuItem::set_BalloonHelp>("BalloonHelp"),
    property<&MenuItem::DisabledBalloonHelp, &MenuItem::set_DisabledBalloonHelp>("DisabledBalloonHelp"),
    property<&MenuItem::Text, &MenuItem::set_Text>("Text"),
    property<&MenuItem::Checked, &MenuItem::set_Checked>("Checked"),
    property<&MenuItem::Enabled, &MenuItem::set_Enabled>("Enabled"),
    property<&MenuItem::Visible, &MenuItem::set_Visible>("Visible"),
    property<&MenuItem::CommandKey, &MenuItem::set_CommandKey>("CommandKey"),
    property<&MenuItem::KeyboardShortcut, &MenuItem::set_KeyboardShortcut>("KeyboardShortcut"),
    property<&MenuItem::Icon, &MenuItem::set_Icon>("Icon"),
    property<&MenuItem::_Bold, &MenuItem::set__Bold>("_Bold"),
    property<&MenuItem::_Italic, &MenuItem::set__Italic>("_Italic"),
    property<&MenuItem::_Underline, &MenuItem::set__Underline>("_Underline"),
    property<&MenuItem::AutoEnable, &MenuItem::set_AutoEnable>("AutoEnable"),
};

constexpr EventRow kEvents[] = {
    event("Action", MenuItem::Events::Action),
    event("EnableMenu", MenuItem::Events::EnableMenu),
};

}  // namespace

const ClassDefinition& MenuItem::definition() {
    static constexpr ClassDefinition kDefinition = define<MenuItem>({
        .init = init_forwards_to<MenuItem, MenuItemInitializer>,
        .exit = exit_forwards_to<MenuItem, MenuItemFinalizer>,
        .operations = kOperations,
        .fields = kFields,
        .properties = kProperties,
        .events = kEvents,
    });
    return kDefinition;
}

}  // namespace tavrik
