#pragma once

#include <tavrik/object.h>
#include <tavrik/string.h>

namespace tavrik {

TAVRIK_API void RuntimeControlInitializer(Object* control);
TAVRIK_API void RuntimeControlFinalizer(Object* control);
TAVRIK_API void RectControlDefaultConstructor(Object* control);
// Raises Close, closes the pane and parts the control from its window.
TAVRIK_API void ControlClose(Object* control);

TAVRIK_API Ref<Object> controlWindowGetter(Object* control, std::int32_t);
// The page of the parent that the control stands on, from 0 on.
TAVRIK_API void ControlTabPanelIndexSetter(Object* control, std::int32_t field, std::int32_t index);
TAVRIK_API std::int32_t ControlPanelIndexGetter(Object* control, std::int32_t);
TAVRIK_API void ControlPanelIndexSetter(Object* control, std::int32_t, std::int32_t index);
// Where the pointer is, relative to the control.
TAVRIK_API std::int32_t controlMouseXGetter(Object* control, std::int32_t);
TAVRIK_API std::int32_t controlMouseYGetter(Object* control, std::int32_t);
// The window system's identifier; 0 while the control isn't on the screen.
TAVRIK_API std::int32_t controlMacControlHandleGetter(Object* control, std::int32_t);

// 0 to 3: left, top, width, height, in pixels of the window's content.
TAVRIK_API std::int32_t ctlPosGetter(Object* control, std::int32_t which);
TAVRIK_API void ctlPosSetter(Object* control, std::int32_t which, std::int32_t value);
TAVRIK_API void RuntimeControlMove(Object* control, std::int32_t left, std::int32_t top, std::int32_t width,
                                   std::int32_t height);
TAVRIK_API bool controlVisibleGetter(Object* control, std::int32_t);
TAVRIK_API void ControlVisibleSetter(Object* control, std::int32_t, bool visible);
// A control that isn't enabled looks so, and doesn't fire.
TAVRIK_API bool controlEnabledGetter(Object* control, std::int32_t);
TAVRIK_API void controlEnabledSetter(Object* control, std::int32_t, bool enabled);
// Whether it and all that it lies in are enabled, and its window is the active one.
TAVRIK_API bool controlActiveGetter(Object* control, std::int32_t);
TAVRIK_API bool controlAutoDeactivateGetter(Object* control, std::int32_t);
TAVRIK_API void controlAutoDeactivateSetter(Object* control, std::int32_t, bool automatic);
// How the control follows when what it lies in changes its size: an edge that is locked keeps its distance.
TAVRIK_API bool controlLockLeftGetter(Object* control, std::int32_t);
TAVRIK_API void controlLockLeftSetter(Object* control, std::int32_t, bool locked);
TAVRIK_API bool controlLockTopGetter(Object* control, std::int32_t);
TAVRIK_API void controlLockTopSetter(Object* control, std::int32_t, bool locked);
TAVRIK_API bool controlLockRightGetter(Object* control, std::int32_t);
TAVRIK_API void controlLockRightSetter(Object* control, std::int32_t, bool locked);
TAVRIK_API bool controlLockBottomGetter(Object* control, std::int32_t);
TAVRIK_API void controlLockBottomSetter(Object* control, std::int32_t, bool locked);
// The control that it lies in, or nil. Assigning raises InvalidParentException for a control of another window, itself
// and what lies in it.
TAVRIK_API Ref<Object> ControlParentGetter(Object* control, std::int32_t);
TAVRIK_API void ControlParentSetter(Object* control, std::int32_t, Object* parent);
// By its name: at once if the window has it, and else when the window opens.
TAVRIK_API void ControlInitialParentSetter(Object* control, std::int32_t, const String& parent);
TAVRIK_API std::int32_t ControlTabIndexGetter(Object* control, std::int32_t);
TAVRIK_API void ControlTabIndexSetter(Object* control, std::int32_t, std::int32_t index);
// Help that is empty gives way to the next one: the tag, and then the balloon of the present state.
TAVRIK_API void controlHelpTagSetter(Object* control, std::int32_t field, const String& help);
TAVRIK_API void controlBalloonHelpSetter(Object* control, std::int32_t field, const String& help);
TAVRIK_API void controlDisabledBalloonHelpSetter(Object* control, std::int32_t field, const String& help);
TAVRIK_API void controlMouseCursorSetter(Object* control, std::int32_t field, Object* cursor);
TAVRIK_API void RuntimeSetFocus(Object* control);

// Has it drawn anew at the next occasion, or a part of it, from its own corner. Backgrounds are always erased.
TAVRIK_API void RuntimeControlRefresh(Object* control, bool erase);
TAVRIK_API void RuntimeControlRefreshRect(Object* control, std::int32_t left, std::int32_t top, std::int32_t width,
                                          std::int32_t height, bool erase);
TAVRIK_API void RuntimeControlInvalidate(Object* control, bool erase);
TAVRIK_API void RuntimeControlInvalidateRect(Object* control, std::int32_t left, std::int32_t top, std::int32_t width,
                                             std::int32_t height, bool erase);
TAVRIK_API void RuntimeControlDrawInto(Object* control, Object* graphics, std::int32_t left, std::int32_t top);

// Kinds of data that may be dropped here. Files are told by the names of registered types, raw data by a code.
TAVRIK_API void controlAcceptTextDrop(Object* control);
TAVRIK_API void controlAcceptPictureDrop(Object* control);
TAVRIK_API void controlAcceptFileDrop(Object* control, const String& types);
TAVRIK_API void controlAcceptMacDataDrop(Object* control, const String& type);
TAVRIK_API Ref<Object> controlNewDragItem(Object* control, std::int32_t left, std::int32_t top, std::int32_t width,
                                          std::int32_t height);
// What the control does on menu items of that name while it has the focus: bool handler(Object* control), true to keep
// the item from others.
TAVRIK_API void ControlAddMenuHandler(Object* control, const String& item, Function handler);

}  // namespace tavrik
