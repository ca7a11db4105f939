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
TAVRIK_API void ControlTabPanelIndexSetter(Object* control, std::int32_t field, std::int32_t index);

// 0 to 3: left, top, width, height, in pixels of the window's content.
TAVRIK_API std::int32_t ctlPosGetter(Object* control, std::int32_t which);
TAVRIK_API void ctlPosSetter(Object* control, std::int32_t which, std::int32_t value);
TAVRIK_API bool controlVisibleGetter(Object* control, std::int32_t);
TAVRIK_API void ControlVisibleSetter(Object* control, std::int32_t, bool visible);
// A control that isn't enabled looks so, and doesn't fire.
TAVRIK_API bool controlEnabledGetter(Object* control, std::int32_t);
TAVRIK_API void controlEnabledSetter(Object* control, std::int32_t, bool enabled);
TAVRIK_API bool controlAutoDeactivateGetter(Object* control, std::int32_t);
TAVRIK_API void controlAutoDeactivateSetter(Object* control, std::int32_t, bool automatic);
TAVRIK_API bool controlLockLeftGetter(Object* control, std::int32_t);
TAVRIK_API void controlLockLeftSetter(Object* control, std::int32_t, bool locked);
TAVRIK_API bool controlLockTopGetter(Object* control, std::int32_t);
TAVRIK_API void controlLockTopSetter(Object* control, std::int32_t, bool locked);
TAVRIK_API bool controlLockRightGetter(Object* control, std::int32_t);
TAVRIK_API void controlLockRightSetter(Object* control, std::int32_t, bool locked);
TAVRIK_API bool controlLockBottomGetter(Object* control, std::int32_t);
TAVRIK_API void controlLockBottomSetter(Object* control, std::int32_t, bool locked);
TAVRIK_API std::int32_t ControlTabIndexGetter(Object* control, std::int32_t);
TAVRIK_API void ControlTabIndexSetter(Object* control, std::int32_t, std::int32_t index);
TAVRIK_API void ControlInitialParentSetter(Object* control, std::int32_t, const String& parent);
TAVRIK_API void controlHelpTagSetter(Object* control, std::int32_t field, const String& help);
TAVRIK_API void RuntimeSetFocus(Object* control);

}  // namespace tavrik
