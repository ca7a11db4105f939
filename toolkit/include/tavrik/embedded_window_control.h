#pragma once

#include <tavrik/object.h>
#include <tavrik/string.h>

// The control that stands in for a container in the window around it. Each event that it gets goes on to the container.
namespace tavrik {

TAVRIK_API void EmbeddedWindowControlInitializer(Object* host);
TAVRIK_API void EmbeddedWindowControlFinalizer(Object* host);

// Lets the container turn its menu items on.
TAVRIK_API void ewcEnableMenuItems(Object* host);
TAVRIK_API void ewcGotFocus(Object* host);
TAVRIK_API void ewcLostFocus(Object* host);
TAVRIK_API bool ewcKeyDown(Object* host, const String& key);
TAVRIK_API bool ewcMouseDown(Object* host, std::int32_t x, std::int32_t y);
TAVRIK_API void ewcMouseDrag(Object* host, std::int32_t x, std::int32_t y);
TAVRIK_API void ewcMouseUp(Object* host, std::int32_t x, std::int32_t y);
TAVRIK_API bool ewcMouseWheel(Object* host, std::int32_t x, std::int32_t y, std::int32_t delta_x, std::int32_t delta_y);
// These three reach the controls in the container too.
TAVRIK_API void ewcMouseEnter(Object* host);
TAVRIK_API void ewcMouseMove(Object* host, std::int32_t x, std::int32_t y);
TAVRIK_API void ewcMouseExit(Object* host);
TAVRIK_API void ewcPaint(Object* host, Object* graphics);
TAVRIK_API void ewcDropObject(Object* host, Object* item);
// Opens the container's controls and the container, once.
TAVRIK_API void ewcOpen(Object* host);
// Ends the container, which was asked together with the window around it.
TAVRIK_API void ewcClose(Object* host);

}  // namespace tavrik
