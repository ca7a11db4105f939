#pragma once

#include <tavrik/object.h>
#include <tavrik/string.h>
#include <tavrik/values.h>

namespace tavrik {

// Gives a new window its state, and its three containers of controls and menu handlers.
TAVRIK_API void RuntimeCreateWindow(Object* window);
TAVRIK_API void RuntimeViewDestructor(Object* window);
// Raises Layout, CreateControls, AddMenuHandlers and SetupBindings, opens the controls, raises Open, and shows the
// window if it is visible. From then on the toolkit holds it until it is closed.
TAVRIK_API void WindowDefaultConstructor(Object* window);

TAVRIK_API void RuntimeShowWindow(Object* window);
TAVRIK_API void RuntimeHideWindow(Object* window);
// Asks the window to close, and ends it if it agrees.
TAVRIK_API void RuntimeCloseWindow(Object* window);

TAVRIK_API Ref<Object> WindowAllocateObject(Object* window, ClassRecord* record);
// Makes the control known under its name, and tells it its window. A nil control raises NilObjectException.
TAVRIK_API void WindowAddControl(Object* window, const String& name, Object* control);
TAVRIK_API void WindowAddMenuHandler(Object* window, const String& item, Function handler);
// The control of that name, or nil.
TAVRIK_API Ref<Object> RuntimeControlReference(Object* window, const String& name);
// The control at a position from 0 on. Raises OutOfBoundsException.
TAVRIK_API Ref<Object> windowControl(Object* window, std::int32_t position);
TAVRIK_API std::int32_t windowControlCountGetter(Object* window, std::int32_t);
// The live implicit instance of a class, or nil. A window of that class that is made after a nil answer is the
// implicit one.
TAVRIK_API Ref<Object> RuntimeGetImplicitWindow(const String& class_name);

TAVRIK_API bool WindowVisibleGetter(Object* window, std::int32_t);
TAVRIK_API void WindowVisibleSetter(Object* window, std::int32_t, bool visible);
// 0 to 3: left, top, width, height of the content, in pixels.
TAVRIK_API std::int32_t windowPosGetter(Object* window, std::int32_t which);
TAVRIK_API void windowPosSetter(Object* window, std::int32_t which, std::int32_t value);
// 0 to 3: least width, least height, greatest width, greatest height.
TAVRIK_API std::int32_t windowMinMaxWidthHeightGetter(Object* window, std::int32_t which);
TAVRIK_API void windowMinMaxWidthHeightSetter(Object* window, std::int32_t which, std::int32_t value);
TAVRIK_API std::int32_t windowPlacementGetter(Object* window, std::int32_t);
TAVRIK_API void windowPlacementSetter(Object* window, std::int32_t, std::int32_t placement);
TAVRIK_API String windowTitleGetter(Object* window, std::int32_t);
TAVRIK_API void windowTitleSetter(Object* window, std::int32_t, const String& title);
TAVRIK_API bool windowFullScreenGetter(Object* window, std::int32_t);
TAVRIK_API void windowFullScreenSetter(Object* window, std::int32_t, bool full_screen);
TAVRIK_API bool windowMenusVisibleGetter(Object* window, std::int32_t);
TAVRIK_API void windowMenusVisibleSetter(Object* window, std::int32_t, bool visible);
TAVRIK_API bool windowCloseBoxGetter(Object* window, std::int32_t);
TAVRIK_API void windowCloseBoxSetter(Object* window, std::int32_t, bool has);
TAVRIK_API bool windowGrowIconGetter(Object* window, std::int32_t);
TAVRIK_API void windowGrowIconSetter(Object* window, std::int32_t, bool has);
TAVRIK_API bool windowZoomIconGetter(Object* window, std::int32_t);
TAVRIK_API void windowZoomIconSetter(Object* window, std::int32_t, bool has);
TAVRIK_API std::int32_t windowFrameGetter(Object* window, std::int32_t);
TAVRIK_API void windowFrameSetter(Object* window, std::int32_t, std::int32_t frame);
TAVRIK_API bool windowLiveResizeGetter(Object* window, std::int32_t);
TAVRIK_API void windowLiveResizeSetter(Object* window, std::int32_t, bool live);
TAVRIK_API bool windowHasBackColorGetter(Object* window, std::int32_t);
TAVRIK_API void windowHasBackColorSetter(Object* window, std::int32_t, bool has);
TAVRIK_API Color windowBackColorGetter(Object* window, std::int32_t);
TAVRIK_API void windowBackColorSetter(Object* window, std::int32_t, Color color);
TAVRIK_API void windowBalloonHelpSetter(Object* window, std::int32_t field, const String& help);
TAVRIK_API Ref<Object> WindowMenuBarGetter(Object* window, std::int32_t);
TAVRIK_API void WindowMenuBarSetter(Object* window, std::int32_t, Object* bar);

// Brings the enabled state of the menu items of the frontmost window up to date. The number is 0.
TAVRIK_API void enableMenuItems(std::int32_t);

}  // namespace tavrik
