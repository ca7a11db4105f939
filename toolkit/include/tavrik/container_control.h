#pragma once

#include <tavrik/object.h>
#include <tavrik/string.h>

// Windows that lie in other windows. What a control has and a window lacks is kept in the control that stands in for
// the container there, its host; what is set before there is one, it gets when it comes.
namespace tavrik {

// Places the container in a window, in what another control holds, or on a page of a panel, page 0 first. Left and top
// count from the corner of the window's content, as those of all controls do. Raises InvalidParentException for nil,
// for a window that is closed, for itself and what lies in it, and for a container that is embedded or closed.
TAVRIK_API void EmbedWithin(Object* container, Object* window, std::int32_t left, std::int32_t top, std::int32_t width,
                            std::int32_t height);
TAVRIK_API void EmbedWithinControl(Object* container, Object* control, std::int32_t left, std::int32_t top,
                                   std::int32_t width, std::int32_t height);
TAVRIK_API void EmbedWithinPanel(Object* container, Object* panel, std::int32_t page, std::int32_t left,
                                 std::int32_t top, std::int32_t width, std::int32_t height);

// Which value of the host a pass-through function is about.
enum class HostValue : std::int32_t {
    kLockLeft,
    kLockTop,
    kLockRight,
    kLockBottom,
    kAutoDeactivate,
    kAcceptFocus,
    kAcceptTabs,
    kUseFocusRing,
    kEraseBackground,
    kTabPanelIndex,
    kHelpTag,
    kDisabledBalloonHelp,
};
TAVRIK_API bool eWindowBoolPassThroughGetter(Object* container, HostValue which);
TAVRIK_API void eWindowBoolPassThroughSetter(Object* container, HostValue which, bool value);
TAVRIK_API std::int32_t eWindowIntPassThroughGetter(Object* container, HostValue which);
TAVRIK_API String eWindowStringPassThroughGetter(Object* container, HostValue which);

TAVRIK_API void eWindowTabPanelIndexSetter(Object* container, std::int32_t, std::int32_t page);
TAVRIK_API std::int32_t eWindowTabIndexGetter(Object* container, std::int32_t);
TAVRIK_API void eWindowTabIndexSetter(Object* container, std::int32_t, std::int32_t index);
TAVRIK_API bool eWindowEnabledGetter(Object* container, std::int32_t);
TAVRIK_API void eWindowEnabledSetter(Object* container, std::int32_t, bool enabled);
TAVRIK_API void eWindowAutoDeactivateSetter(Object* container, std::int32_t, bool automatic);
TAVRIK_API void eWindowHelpTagSetter(Object* container, std::int32_t, const String& help);
TAVRIK_API void eWindowDisabledBalloonHelpSetter(Object* container, std::int32_t, const String& help);
// The host's parent. A parent that is set before the container is embedded counts if it is in the window then.
TAVRIK_API Ref<Object> eWindowParentGetter(Object* container, std::int32_t);
TAVRIK_API void eWindowParentSetter(Object* container, std::int32_t, Object* parent);
TAVRIK_API void eWindowInitialParentSetter(Object* container, std::int32_t, const String& parent);
// The window that it lies in, and its host there; nil while it isn't embedded.
TAVRIK_API Ref<Object> eWindowContainingWindowGettter(Object* container, std::int32_t);
TAVRIK_API Ref<Object> eWindowControlGetter(Object* container, std::int32_t);

}  // namespace tavrik
