#pragma once

#include "runtime/class.h"

#include <tavrik/fields.h>
#include <tavrik/folder_item_dialog.h>

namespace tavrik {

struct FolderItem;
struct Window;
struct _FolderItemDialogImp;

// What all file dialogs have in common. Only its subclasses can be shown: they know what to choose for.
struct FolderItemDialog : Class<FolderItemDialog, FolderItemDialogObject> {
    static const ClassDefinition& definition();

    // The chosen file, or nil if the person cancelled.
    Ref<FolderItem> ShowModal() { return dispatch<&FolderItemDialog::ShowModal>(this); }
    // Modal to that window alone.
    Ref<FolderItem> ShowModalWithin(Arg<Window> window) {
        return dispatch<&FolderItemDialog::ShowModalWithin>(this, window);
    }
    void __DependencyList() { dispatch<&FolderItemDialog::__DependencyList>(this); }

    // On the screen, in pixels; 0 and 0 leave the place to the platform.
    std::int32_t Top() { return intGetter(&mTop, 0); }
    void set_Top(std::int32_t top) { intSetter(&mTop, 0, top); }
    std::int32_t Left() { return intGetter(&mLeft, 0); }
    void set_Left(std::int32_t left) { intSetter(&mLeft, 0, left); }
    // Passed over if it is no folder.
    Ref<FolderItem> InitialDirectory() { return static_ref<FolderItem>(objGetter(&mInitialDirectory, 0)); }
    void set_InitialDirectory(Arg<FolderItem> folder) { objSetter(&mInitialDirectory, 0, folder.object()); }
    // What the last showing returned.
    Ref<FolderItem> Result() { return static_ref<FolderItem>(objGetter(&mResult, 0)); }
    // Names of file types, as FileType yields them.
    String Filter() { return stringGetter(&mFilter, 0); }
    void set_Filter(const String& filter) { stringSetter(&mFilter, 0, filter); }
    // Texts are the platform's own while they are empty.
    String Title() { return stringGetter(&mTitle, 0); }
    void set_Title(const String& title) { stringSetter(&mTitle, 0, title); }
    String ActionButtonCaption() { return stringGetter(&mActionButtonCaption, 0); }
    void set_ActionButtonCaption(const String& caption) { stringSetter(&mActionButtonCaption, 0, caption); }
    String CancelButtonCaption() { return stringGetter(&mCancelButtonCaption, 0); }
    void set_CancelButtonCaption(const String& caption) { stringSetter(&mCancelButtonCaption, 0, caption); }
    String SuggestedFileName() { return stringGetter(&mSuggestedFileName, 0); }
    void set_SuggestedFileName(const String& name) { stringSetter(&mSuggestedFileName, 0, name); }
    String PromptText() { return stringGetter(&mPromptText, 0); }
    void set_PromptText(const String& prompt) { stringSetter(&mPromptText, 0, prompt); }

    Field<_FolderItemDialogImp> _mImp;
};

}  // namespace tavrik
