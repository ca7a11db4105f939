#pragma once

#include "toolkit/front/descriptions.h"

#include <tavrik/object.h>

#include <limits>

// The panes of controls and windows, as the class layer sees them. The core has the truth about rectangles, flags and
// the tree, and writes it into the panes; what is set on a pane comes back through its native side.
namespace tavrik::core {

class ControlState;

// A place that lies in no pane.
inline constexpr std::int32_t kOutsideOfPanes = std::numeric_limits<std::int32_t>::min() / 2;

// Gives a control a new pane of the toolkit's own class, which takes over from the one that it has.
void create_pane(Object* control);
// Gives a window the root of its panes.
void create_content_pane(Object* window);
// Parts the two, which hold each other.
void close_content_pane(Object* window);

Ref<Object> pane_of(const Object* control);
Ref<Object> content_pane_of(const Object* window);

// Writes what the control is into its pane, if it has one.
void mirror(const ControlState& control);
// The rectangle that the pane has, from the corner of the window's content.
front::Rect bounds_of_pane(Object* pane);
void set_content_size(Object* window, int width, int height);

}  // namespace tavrik::core
