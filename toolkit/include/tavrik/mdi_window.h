#pragma once

#include <tavrik/object.h>
#include <tavrik/string.h>

// Where a platform has no frame around all windows of a program, this stands for the area that they are on.
namespace tavrik {

TAVRIK_API void MDIWindowConstructor(Object* frame);
TAVRIK_API void MDIWindowDestructor(Object* frame);

// Do so with every document window that is shown, and raise the event of that name, if the frame wasn't like that.
TAVRIK_API void MDIWindowMaximize(Object* frame);
TAVRIK_API void MDIWindowMinimize(Object* frame);
TAVRIK_API void MDIWindowRestore(Object* frame);

// 0 to 3: left, top, width, height of what windows may cover on the main screen. The desktop decides: setting has no
// effect.
TAVRIK_API std::int32_t MDIWindowPosGetter(Object* frame, std::int32_t which);
TAVRIK_API void MDIWindowPosSetter(Object* frame, std::int32_t which, std::int32_t value);
// What windows without a title have as one: the program's name, until it is set.
TAVRIK_API String MDIWindowTitleGetter(Object* frame, std::int32_t);
TAVRIK_API void MDIWindowTitleSetter(Object* frame, std::int32_t, const String& title);
// Setting false hides the windows that are shown, and true shows those again.
TAVRIK_API bool MDIWindowVisibleGetter(Object* frame, std::int32_t);
TAVRIK_API void MDIWindowVisibleSetter(Object* frame, std::int32_t, bool visible);
// 0: there is no such window.
TAVRIK_API std::int32_t MDIWindowHandleGetter(Object* frame, std::int32_t);

}  // namespace tavrik
