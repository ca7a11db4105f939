#pragma once

#include <tavrik/object.h>
#include <tavrik/string.h>

namespace tavrik {

// Gives the button its pane.
TAVRIK_API void PushButtonCreatePane(Object* button);
TAVRIK_API void PushButtonDestructor(Object* button);
// As if the person had pressed it: does nothing while it isn't enabled.
TAVRIK_API void pushButtonPush(Object* button);
// Receivers are held, and hear of each press, in the order in which they came, before "Action" is raised: the first
// operation of the interface actionNotificationReceiver gets the button.
TAVRIK_API void pbAddActionNotificationReceiver(Object* button, Object* receiver);
TAVRIK_API void pbRemoveActionNotificationReceiver(Object* button, Object* receiver);

TAVRIK_API String pushButtonTitleGetter(Object* button, std::int32_t);
TAVRIK_API void pushButtonTitleSetter(Object* button, std::int32_t, const String& caption);
// The button that the Return key presses, and the one that Escape presses.
TAVRIK_API bool pushButtonDefaultGetter(Object* button, std::int32_t);
TAVRIK_API void pushButtonDefaultSetter(Object* button, std::int32_t, bool is_default);
TAVRIK_API bool pushButtonCancelGetter(Object* button, std::int32_t);
TAVRIK_API void pushButtonCancelSetter(Object* button, std::int32_t, bool is_cancel);
// "System" is the font of the desktop, and 0 its size in points.
TAVRIK_API String pushButtonTextFontGetter(Object* button, std::int32_t);
TAVRIK_API void pushButtonTextFontSetter(Object* button, std::int32_t, const String& font);
TAVRIK_API std::int32_t pushButtonTextSizeGetter(Object* button, std::int32_t);
TAVRIK_API void pushButtonTextSizeSetter(Object* button, std::int32_t, std::int32_t size);
TAVRIK_API bool pushButtonBoldGetter(Object* button, std::int32_t);
TAVRIK_API void pushButtonBoldSetter(Object* button, std::int32_t, bool bold);
TAVRIK_API bool pushButtonItalicGetter(Object* button, std::int32_t);
TAVRIK_API void pushButtonItalicSetter(Object* button, std::int32_t, bool italic);
TAVRIK_API bool pushButtonUnderlineGetter(Object* button, std::int32_t);
TAVRIK_API void pushButtonUnderlineSetter(Object* button, std::int32_t, bool underline);

}  // namespace tavrik
