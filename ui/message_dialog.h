#pragma once

#include "runtime/class.h"

#include <tavrik/fields.h>
#include <tavrik/message_dialog.h>

namespace tavrik {

struct Window;
struct _MessageDialogImp;
struct _MessageDialogButtonImp;

// A button of a message dialog. Which one was pressed is what the dialog returns.
struct MessageDialogButton : Class<MessageDialogButton> {
    static const ClassDefinition& definition();

    bool Visible() { return MDBBooleanGetter(this, 0); }
    void set_Visible(bool visible) { MDBBooleanSetter(this, 0, visible); }
    // Whether Return presses it. One button of a dialog at most.
    bool Default() { return MDBBooleanGetter(this, 1); }
    void set_Default(bool is_default) { MDBBooleanSetter(this, 1, is_default); }
    // Whether Escape presses it. One button of a dialog at most.
    bool Cancel() { return MDBBooleanGetter(this, 2); }
    void set_Cancel(bool cancels) { MDBBooleanSetter(this, 2, cancels); }
    String Caption() { return MDBCaptionGetter(this, 0); }
    void set_Caption(const String& caption) { MDBCaptionSetter(this, 0, caption); }

    Field<_MessageDialogButtonImp> _mImp;
};

struct _ActionButton : Class<_ActionButton, MessageDialogButton> {
    static const ClassDefinition& definition();
};
struct _CancelButton : Class<_CancelButton, MessageDialogButton> {
    static const ClassDefinition& definition();
};
struct _AlternateActionButton : Class<_AlternateActionButton, MessageDialogButton> {
    static const ClassDefinition& definition();
};

// A message with an explanation, an icon and up to three buttons.
struct MessageDialog : Class<MessageDialog, MessageDialogObject> {
    static const ClassDefinition& definition();

    // Over the frontmost window. Returns the button that ended it.
    Ref<MessageDialogButton> ShowModal() { return dispatch<&MessageDialog::ShowModal>(this); }
    Ref<MessageDialogButton> ShowModalWithin(Arg<Window> window) {
        return dispatch<&MessageDialog::ShowModalWithin>(this, window);
    }
    void __DependencyList() { dispatch<&MessageDialog::__DependencyList>(this); }

    String Message() { return StringToSSGetter(&mMessage, 0); }
    void set_Message(const String& message) { SSToStringSetter(&mMessage, 0, message); }
    String Explanation() { return StringToSSGetter(&mExplanation, 0); }
    void set_Explanation(const String& explanation) { SSToStringSetter(&mExplanation, 0, explanation); }
    String Title() { return StringToSSGetter(&mTitle, 0); }
    void set_Title(const String& title) { SSToStringSetter(&mTitle, 0, title); }
    // -1 none, 0 a note, 1 caution, 2 stop, 3 a question.
    std::int32_t Icon() { return intGetter(&mIcon, 0); }
    void set_Icon(std::int32_t icon) { MDIconSetter(&mIcon, 0, icon); }
    Ref<_ActionButton> ActionButton() { return static_ref<_ActionButton>(MDButtonGetter(this, 1)); }
    Ref<_CancelButton> CancelButton() { return static_ref<_CancelButton>(MDButtonGetter(this, 0)); }
    Ref<_AlternateActionButton> AlternateActionButton() {
        return static_ref<_AlternateActionButton>(MDButtonGetter(this, 2));
    }

    Field<_MessageDialogImp> _mImp;
};

}  // namespace tavrik
