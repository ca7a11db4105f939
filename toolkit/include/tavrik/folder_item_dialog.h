#pragma once

#include <tavrik/object.h>
#include <tavrik/string.h>

#include <cstdint>

namespace tavrik {

// What the class layer declares for FolderItemDialog begins with this room. The object owns a count of each string and
// item in it.
struct FolderItemDialogObject : Object {
    std::int32_t mTop;
    std::int32_t mLeft;
    StringRecord* mTitle;
    StringRecord* mActionButtonCaption;
    StringRecord* mCancelButtonCaption;
    StringRecord* mSuggestedFileName;
    StringRecord* mPromptText;
    StringRecord* mFilter;
    Object* mInitialDirectory;
    Object* mResult;
};

TAVRIK_API void FolderItemDialogInitializer(Object* dialog);
TAVRIK_API void FolderItemDialogFinalizer(Object* dialog);
TAVRIK_API void OpenDialogInitializer(Object* dialog);

// Shows the dialog, modal to the whole program, and returns the chosen file, or nil on cancel; Result is the same from
// then on. Everything written to streams is in the files before it opens. A dialog that is no OpenDialog raises
// UnsupportedFormatException.
TAVRIK_API Ref<Object> FolderItemDialogShowModal(Object* dialog);
// The same, modal to a window alone. Without one on the screen it is FolderItemDialogShowModal.
TAVRIK_API Ref<Object> FolderItemDialogShowWithin(Object* dialog, Object* window);

}  // namespace tavrik
