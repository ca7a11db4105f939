#pragma once

#include "runtime/class.h"

#include <tavrik/menu_item.h>

namespace tavrik {

struct Dictionary;
struct Picture;
struct _MenuItemImp2;

// An entry of a menu, or a menu with entries.
struct MenuItem : Class<MenuItem> {
    static const ClassDefinition& definition();

    void Enable() { dispatch<&MenuItem::Enable>(this); }
    void Close() { dispatch<&MenuItem::Close>(this); }
    Ref<MenuItem> Item(std::int32_t position) { return dispatch<&MenuItem::Item>(this, position); }
    std::int32_t Count() { return dispatch<&MenuItem::Count>(this); }
    // The entry of that name among this item's own, or nil.
    Ref<MenuItem> Child(const String& name) { return dispatch<&MenuItem::Child>(this, name); }
    void Append(Arg<MenuItem> item) { dispatch<&MenuItem::Append>(this, item); }
    void Insert(std::int32_t position, Arg<MenuItem> item) { dispatch<&MenuItem::Insert>(this, position, item); }
    void Remove(std::int32_t position) { dispatch<pick<void(std::int32_t)>(&MenuItem::Remove)>(this, position); }
    void Remove(Arg<MenuItem> item) { dispatch<pick<void(Arg<MenuItem>)>(&MenuItem::Remove)>(this, item); }
    void Remove(const String& name) { dispatch<pick<void(const String&)>(&MenuItem::Remove)>(this, name); }
    // The item of that name anywhere below, or nil.
    Ref<MenuItem> _Lookup(const String& name) {
        return dispatch<pick<Ref<MenuItem>(const String&)>(&MenuItem::_Lookup)>(this, name);
    }
    Ref<MenuItem> _Lookup(const String& name, std::int32_t index) {
        return dispatch<pick<Ref<MenuItem>(const String&, std::int32_t)>(&MenuItem::_Lookup)>(this, name, index);
    }
    void MenuItem_() { dispatch<pick<void()>(&MenuItem::MenuItem_)>(this); }
    void Constructor(const String& text, Arg<Variant> tag) {
        dispatch<pick<void(const String&, Arg<Variant>)>(&MenuItem::Constructor)>(this, text, tag);
    }
    // Shows the entries at the pointer, or at a place of the screen. Returns the chosen one, which has done what it
    // does by then, or nil.
    Ref<MenuItem> PopUp() { return dispatch<pick<Ref<MenuItem>()>(&MenuItem::PopUp)>(this); }
    Ref<MenuItem> PopUp(std::int32_t left, std::int32_t top) {
        return dispatch<pick<Ref<MenuItem>(std::int32_t, std::int32_t)>(&MenuItem::PopUp)>(this, left, top);
    }
    // Puts an item in the place of the one of that name.
    void _Swap(const String& name, Arg<MenuItem> item) { dispatch<&MenuItem::_Swap>(this, name, item); }
    // Disables everything below, and this item too unless it is a bar.
    void _DisableEntirely() { dispatch<&MenuItem::_DisableEntirely>(this); }
    void _SelfEnable() { dispatch<&MenuItem::_SelfEnable>(this); }
    void MenuItem_(const String& text, Arg<Variant> tag) {
        dispatch<pick<void(const String&, Arg<Variant>)>(&MenuItem::MenuItem_)>(this, text, tag);
    }
    void Constructor() { dispatch<pick<void()>(&MenuItem::Constructor)>(this); }

    String Name() { return RuntimeMenuItemNameGetter(this, 0); }
    void set_Name(const String& name) { RuntimeMenuItemNameSetter(this, 0, name); }
    std::int32_t Index() { return RuntimeMenuItemIndexGetter(this, 0); }
    void set_Index(std::int32_t index) { RuntimeMenuItemIndexSetter(this, 0, index); }
    Ref<Variant> Tag() { return static_ref<Variant>(RuntimeMenuItemTagGetter(this, 0)); }
    void set_Tag(Arg<Variant> tag) { RuntimeMenuItemTagSetter(this, 0, tag.object()); }
    String BalloonHelp() { return RuntimeMenuItemBalloonHelpGetter(this, 0); }
    void set_BalloonHelp(const String& help) { RuntimeMenuItemBalloonHelpSetter(this, 0, help); }
    // Shown while the item is disabled.
    String DisabledBalloonHelp() { return RuntimeMenuItemDisabledHelpGetter(this, 0); }
    void set_DisabledBalloonHelp(const String& help) { RuntimeMenuItemDisabledHelpSetter(this, 0, help); }
    String Text() { return RuntimeMenuItemTextGetter(this, 0); }
    void set_Text(const String& text) { RuntimeMenuItemTextSetter(this, 0, text); }
    bool Checked() { return RuntimeMenuItemCheckedGetter(this, 0); }
    void set_Checked(bool checked) { RuntimeMenuItemCheckedSetter(this, 0, checked); }
    bool Enabled() { return RuntimeMenuItemEnabledGetter(this, 0); }
    void set_Enabled(bool enabled) { RuntimeMenuItemEnabledSetter(this, 0, enabled); }
    bool Visible() { return RuntimeMenuItemVisibleGetter(this, 0); }
    void set_Visible(bool visible) { RuntimeMenuItemVisibleSetter(this, 0, visible); }
    // Two names for one value.
    String CommandKey() { return RuntimeMenuItemCommandKeyGetter(this, 0); }
    void set_CommandKey(const String& keys) { RuntimeMenuItemCommandKeySetter(this, 0, keys); }
    String KeyboardShortcut() { return RuntimeMenuItemCommandKeyGetter(this, 0); }
    void set_KeyboardShortcut(const String& keys) { RuntimeMenuItemCommandKeySetter(this, 0, keys); }
    Ref<Picture> Icon() { return static_ref<Picture>(RuntimeMenuItemEnabledIconGetter(this, 0)); }
    void set_Icon(Arg<Picture> icon) { RuntimeMenuItemEnabledIconSetter(this, 0, icon.object()); }
    bool _Bold() { return RuntimeMenuItemBoldGetter(this, 0); }
    void set__Bold(bool bold) { RuntimeMenuItemBoldSetter(this, 0, bold); }
    bool _Italic() { return RuntimeMenuItemItalicsGetter(this, 0); }
    void set__Italic(bool italic) { RuntimeMenuItemItalicsSetter(this, 0, italic); }
    bool _Underline() { return RuntimeMenuItemUnderlineGetter(this, 0); }
    void set__Underline(bool underline) { RuntimeMenuItemUnderlineSetter(this, 0, underline); }
    // Whether the item is enabled just when something would happen on choosing it.
    bool AutoEnable() { return RuntimeMenuItemAutoEnableGetter(this, 0); }
    void set_AutoEnable(bool automatic) { RuntimeMenuItemAutoEnableSetter(this, 0, automatic); }

    struct Events {
        static inline constinit Event<bool()> Action;
        static inline constinit Event<void()> EnableMenu;
    };

    Field<_MenuItemImp2> _mImp;
    StringField _mName;
    Field<Variant> _mTag;
    std::int32_t _mIndex;
    Field<ArrayOf<MenuItem>> _mChildren;
};

// Enables each of the items that has a handler under its name.
void enable_handled(Arg<ArrayOf<MenuItem>> items, const Field<Dictionary>& handlers);

}  // namespace tavrik
