#pragma once

#include <tavrik/object.h>
#include <tavrik/platform_types.h>
#include <tavrik/string.h>
#include <tavrik/values.h>

namespace tavrik {

// ---- Life

// Gives a new window its state, and its three containers of controls and menu handlers.
TAVRIK_API void RuntimeCreateWindow(Object* window);
TAVRIK_API void RuntimeViewDestructor(Object* window);
// Raises Layout, CreateControls, AddMenuHandlers and SetupBindings, opens the controls, raises Open, and shows the
// window if it is visible. From then on the toolkit holds it until it is closed.
TAVRIK_API void WindowDefaultConstructor(Object* window);
// Asks the window to close, and ends it if it agrees.
TAVRIK_API void RuntimeCloseWindow(Object* window);
// The live implicit instance of a class, or nil. A window of that class that is made after a nil answer is the
// implicit one.
TAVRIK_API Ref<Object> RuntimeGetImplicitWindow(const String& class_name);

// ---- Showing

TAVRIK_API void RuntimeShowWindow(Object* window);
TAVRIK_API void RuntimeHideWindow(Object* window);
// Shows the window above another one, as a sheet of it if that is its frame. The number is 0 where Placement tells the
// place, or the side of the other window: 1 left, 2 right, 3 above, 4 below. nil, and what isn't shown, is no window.
TAVRIK_API void RuntimeShowWithinWindow(Object* window, Object* other, std::int32_t side);
// Return once the window is closed or hidden. Until then no other window of the program takes input; in the second
// form, the other one and what it lies over.
TAVRIK_API void RuntimeShowModal(Object* window);
TAVRIK_API void RuntimeShowModalWithinWindow(Object* window, Object* other);

// Raise Minimize, Maximize or Restore, if the window wasn't like that.
TAVRIK_API void WindowMaximize(Object* window);
TAVRIK_API void WindowMinimize(Object* window);
TAVRIK_API void WindowRestore(Object* window);
// Sets left, top, width and height of the content at once.
TAVRIK_API void WindowMove(Object* window, std::int32_t left, std::int32_t top, std::int32_t width,
                           std::int32_t height);

// Paint the content, or a part of it, anew before the next event. What was there is erased, whatever `erase` says.
TAVRIK_API void formRefresh(Object* window, bool erase);
TAVRIK_API void formRefreshRect(Object* window, std::int32_t left, std::int32_t top, std::int32_t width,
                                std::int32_t height, bool erase);
// Paints at once what waits for it.
TAVRIK_API void WindowForceUpdateFrontBuffer(Object* window);
// These raise ServiceNotAvailableException.
TAVRIK_API void formDrawInto(Object* window, Object* graphics, std::int32_t left, std::int32_t top, bool content_only);
TAVRIK_API void formDrawBackground(Object* window, Object* graphics, std::int32_t left, std::int32_t top,
                                   std::int32_t width, std::int32_t height, std::int32_t from_left,
                                   std::int32_t from_top);
TAVRIK_API Ref<Object> formNewDragItem(Object* window, std::int32_t left, std::int32_t top, std::int32_t width,
                                       std::int32_t height);

// What may be dropped on the window. A file type is a registered name, and data a Macintosh type.
TAVRIK_API void formAcceptTextDrop(Object* window);
TAVRIK_API void formAcceptPictureDrop(Object* window);
TAVRIK_API void formAcceptFileDrop(Object* window, const String& type);
TAVRIK_API void formAcceptMacDataDrop(Object* window, const String& type);

// What the window system knows the window by; 0 before it has been shown, and in the terminal.
TAVRIK_API WindowPtr WindowToWindowPtr(Object* window);
TAVRIK_API std::int32_t WindowHandleGetter(Object* window, std::int32_t);
// The same on Windows and on macOS, and 0 elsewhere.
TAVRIK_API std::int32_t windowHWNDGetter(Object* window, std::int32_t);
TAVRIK_API std::int32_t windowWindowPtrGetter(Object* window, std::int32_t);

// ---- Controls

TAVRIK_API Ref<Object> WindowAllocateObject(Object* window, ClassRecord* record);
// Makes the control known under its name, and tells it its window. A nil control raises NilObjectException. An earlier
// control of that name becomes "Name(Index)" in `_mControls`: they are elements of a control array.
TAVRIK_API void WindowAddControl(Object* window, const String& name, Object* control);
TAVRIK_API void WindowAddMenuHandler(Object* window, const String& item, Function handler);
// The control of that name, or nil. Of a control array, the newest.
TAVRIK_API Ref<Object> RuntimeControlReference(Object* window, const String& name);
// The control with that Name and Index, or nil.
TAVRIK_API Ref<Object> RuntimeControlArrayItemReference(Object* window, const String& name, std::int32_t index);
// The control at a position from 0 on. Raises OutOfBoundsException.
TAVRIK_API Ref<Object> windowControl(Object* window, std::int32_t position);
TAVRIK_API std::int32_t windowControlCountGetter(Object* window, std::int32_t);

// Takes the focus from the control that has it: the keys go to the window.
TAVRIK_API void formSetFocus(Object* window);
TAVRIK_API Ref<Object> WindowFocusGetter(Object* window, std::int32_t);
// nil is formSetFocus.
TAVRIK_API void WindowFocusSetter(Object* window, std::int32_t, Object* control);

// ---- Properties

TAVRIK_API bool WindowVisibleGetter(Object* window, std::int32_t);
TAVRIK_API void WindowVisibleSetter(Object* window, std::int32_t, bool visible);
// 0 to 3: left, top, width, height of the content, in pixels. A size is held within the limits. What is set while the
// window fills the screen is what it comes back to.
TAVRIK_API std::int32_t windowPosGetter(Object* window, std::int32_t which);
TAVRIK_API void windowPosSetter(Object* window, std::int32_t which, std::int32_t value);
// 0 to 3: least width, least height, greatest width, greatest height. The least one wins.
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
// 0 document, 1 movable modal, 2 modal, 3 floating, 4 plain, 5 shadowed, 6 rounded, 7 global floating, 8 sheet, 9
// metal.
TAVRIK_API std::int32_t windowFrameGetter(Object* window, std::int32_t);
TAVRIK_API void windowFrameSetter(Object* window, std::int32_t, std::int32_t frame);
TAVRIK_API bool windowLiveResizeGetter(Object* window, std::int32_t);
TAVRIK_API void windowLiveResizeSetter(Object* window, std::int32_t, bool live);
TAVRIK_API bool windowHasBackColorGetter(Object* window, std::int32_t);
TAVRIK_API void windowHasBackColorSetter(Object* window, std::int32_t, bool has);
TAVRIK_API Color windowBackColorGetter(Object* window, std::int32_t);
TAVRIK_API void windowBackColorSetter(Object* window, std::int32_t, Color color);
// A picture behind the controls. It is held.
TAVRIK_API Ref<Object> windowBackdropGetter(Object* window, std::int32_t);
TAVRIK_API void windowBackdropSetter(Object* window, std::int32_t, Object* picture);
TAVRIK_API void windowBalloonHelpSetter(Object* window, std::int32_t field, const String& help);
TAVRIK_API void formMouseCursorSetter(Object* window, std::int32_t field, Object* cursor);
// Where the pointer is, from the content's corner; 0 where there is none.
TAVRIK_API std::int32_t windowMouseXGetter(Object* window, std::int32_t);
TAVRIK_API std::int32_t windowMouseYGetter(Object* window, std::int32_t);
TAVRIK_API Ref<Object> WindowMenuBarGetter(Object* window, std::int32_t);
TAVRIK_API void WindowMenuBarSetter(Object* window, std::int32_t, Object* bar);
// nil: this program has neither class.
TAVRIK_API Ref<Object> windowGraphicsGetter(Object* window, std::int32_t);
TAVRIK_API Ref<Object> WindowDockItemGetter(Object* window, std::int32_t);

// Brings the enabled state of the menu items of the frontmost window up to date. The number is 0.
TAVRIK_API void enableMenuItems(std::int32_t);

}  // namespace tavrik
