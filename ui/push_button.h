#pragma once

#include "ui/rect_control.h"

#include <tavrik/push_button.h>

namespace tavrik {

// What hears of the presses of an actionSource: one operation, which gets the source.
struct actionNotificationReceiver : Interface<actionNotificationReceiver> {};

// addActionNotificationReceiver, removeActionNotificationReceiver.
struct actionSource : Interface<actionSource> {};

// A button that raises Action when it has been pressed.
struct PushButton : Class<PushButton, RectControl> {
    static const ClassDefinition& definition();

    void Event_CreatePane() { dispatch<&PushButton::Event_CreatePane>(this); }
    // The receiver hears of each press, before Action is raised; it is held until it is removed.
    void addActionNotificationReceiver(Arg<actionNotificationReceiver> receiver) {
        dispatch<&PushButton::addActionNotificationReceiver>(this, receiver);
    }
    void removeActionNotificationReceiver(Arg<actionNotificationReceiver> receiver) {
        dispatch<&PushButton::removeActionNotificationReceiver>(this, receiver);
    }
    // As if the person had pressed it.
    void Push() { dispatch<&PushButton::Push>(this); }
    bool _MouseDown(std::int32_t x, std::int32_t y) { return dispatch<&PushButton::_MouseDown>(this, x, y); }
    void _MouseDrag(std::int32_t x, std::int32_t y) { dispatch<&PushButton::_MouseDrag>(this, x, y); }
    void _MouseUp(std::int32_t x, std::int32_t y) { dispatch<&PushButton::_MouseUp>(this, x, y); }
    void _CallAction() { dispatch<&PushButton::_CallAction>(this); }
    void _GotFocus() { dispatch<&PushButton::_GotFocus>(this); }
    void _LostFocus() { dispatch<&PushButton::_LostFocus>(this); }

    String Caption() { return pushButtonTitleGetter(this, 0); }
    void set_Caption(const String& caption) { pushButtonTitleSetter(this, 0, caption); }
    // The button that the Return key presses, and the one that Escape presses.
    bool Default() { return pushButtonDefaultGetter(this, 0); }
    void set_Default(bool is_default) { pushButtonDefaultSetter(this, 0, is_default); }
    bool Cancel() { return pushButtonCancelGetter(this, 0); }
    void set_Cancel(bool is_cancel) { pushButtonCancelSetter(this, 0, is_cancel); }
    // "System" is the font of the desktop, and 0 its size in points.
    String TextFont() { return pushButtonTextFontGetter(this, 0); }
    void set_TextFont(const String& font) { pushButtonTextFontSetter(this, 0, font); }
    std::int32_t TextSize() { return pushButtonTextSizeGetter(this, 0); }
    void set_TextSize(std::int32_t size) { pushButtonTextSizeSetter(this, 0, size); }
    bool Bold() { return pushButtonBoldGetter(this, 0); }
    void set_Bold(bool bold) { pushButtonBoldSetter(this, 0, bold); }
    bool Italic() { return pushButtonItalicGetter(this, 0); }
    void set_Italic(bool italic) { pushButtonItalicSetter(this, 0, italic); }
    bool Underline() { return pushButtonUnderlineGetter(this, 0); }
    void set_Underline(bool underline) { pushButtonUnderlineSetter(this, 0, underline); }

    struct Events {
        static inline constinit Event<void()> Action;
        static inline constinit Event<bool(std::int32_t, std::int32_t)> MouseDown;
        static inline constinit Event<void(std::int32_t, std::int32_t)> MouseUp;
        static inline constinit Event<void()> GotFocus, LostFocus;
    };
};

}  // namespace tavrik
