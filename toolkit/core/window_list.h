#pragma once

#include "toolkit/core/window.h"

#include <vector>

// The windows that there are, and how they come and go.
namespace tavrik::core {

// The windows that have been opened and not closed, the last activated last.
const std::vector<Ref<Object>>& open_windows();
// The same of containers, which count as no windows: embedded or not.
const std::vector<Ref<Object>>& open_containers();
bool is_open(Object* window);
// From now on the toolkit holds the window.
void enter_open_windows(Object* window);
void move_to_front(Object* window);

// nullptr without a window on the screen.
Object* frontmost_window();
front::WindowFace* frontmost_face();

// Whether the windows may still refuse to close, and what their CancelClose events are told.
enum class AppIsQuitting { kNo, kYes, kNoMatterWhat };

// Whether the window closed.
bool close_window(Object* window, AppIsQuitting quitting);
bool close_all_windows(AppIsQuitting quitting);
// Without asking: it was asked together with the window around it. Its host takes it along.
void close_with_host(Object* container);
// Without asking, and without its Close event: of a window whose construction failed.
void give_up_window(Object* window);

// What each window that is shown keeps in step with, at the end of an event.
void look_at_windows();

}  // namespace tavrik::core
