#pragma once

#include <tavrik/object.h>
#include <tavrik/string.h>

#include <cstdint>

namespace tavrik {

// What the class layer declares for MessageDialog begins with this room. The object owns a count of each string in it.
struct MessageDialogObject : Object {
    std::int32_t mIcon;
    StringRecord* mTitle;
    StringRecord* mMessage;
    StringRecord* mExplanation;
};

// Makes the three buttons, which live as long as the dialog: "OK", which is seen and the default, and "Cancel" and
// another one, which aren't seen.
TAVRIK_API void MessageDialogInitializer(Object* dialog);
TAVRIK_API void MessageDialogFinalizer(Object* dialog);

// Shows the dialog over the frontmost window and returns the button that ended it. Everything written to streams is in
// the files before it opens.
TAVRIK_API Ref<Object> MessageDialogShowModal(Object* dialog);
// The same over that window. nil is MessageDialogShowModal.
TAVRIK_API Ref<Object> MessageDialogShowModalWithin(Object* dialog, Object* window);

// Read or write a stored text at a byte offset.
TAVRIK_API String StringToSSGetter(const void* object, std::int32_t offset);
TAVRIK_API void SSToStringSetter(void* object, std::int32_t offset, const String& text);
// Stores the icon at a byte offset: -1 none, 0 a note, 1 caution, 2 stop, 3 a question. Others raise
// OutOfBoundsException.
TAVRIK_API void MDIconSetter(void* object, std::int32_t offset, std::int32_t icon);
// 0 the button that cancels, 1 the one that acts, 2 the other one.
TAVRIK_API Ref<Object> MDButtonGetter(Object* dialog, std::int32_t which);

// 0 Visible, 1 Default, 2 Cancel. Of a dialog's buttons one at most is the default, and one at most cancels: the one
// that was told so last.
TAVRIK_API bool MDBBooleanGetter(Object* button, std::int32_t which);
TAVRIK_API void MDBBooleanSetter(Object* button, std::int32_t which, bool value);
TAVRIK_API String MDBCaptionGetter(Object* button, std::int32_t);
TAVRIK_API void MDBCaptionSetter(Object* button, std::int32_t, const String& caption);

}  // namespace tavrik
