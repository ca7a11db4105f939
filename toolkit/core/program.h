#pragma once

#include "toolkit/front/front.h"

#include <tavrik/object.h>

#include <functional>
#include <memory>
#include <string>
#include <string_view>

// The one program: its front, its end.
namespace tavrik::core {

// The front, chosen and started at the first need.
front::Front& front(const char* call = __builtin_FUNCTION());
// Whether anything has needed it yet.
bool has_front();
// Takes this front instead of choosing one.
void use_front(std::unique_ptr<front::Front> front);

// What fronts report to.
front::ApplicationListener& desktop();

// Shown where a window has no title: the name of the executable.
std::string program_name();

// Asks every window to close, and ends the run loop if all agree. Returns whether they did.
bool quit(const char* call = __builtin_FUNCTION());
bool has_quit();

// Shows text in a message box over the frontmost window; on standard error if nothing has been shown yet.
void tell_failure(std::string_view text);
// Shows a message box over the frontmost window and returns the index of the button pressed. Everything buffered is in
// the files before.
std::size_t show_message(const front::MessageDescription& message);
// The same over what `over` gives when the box opens, asked on the main stack.
std::size_t show_message(const front::MessageDescription& message, const std::function<front::WindowFace*()>& over);

}  // namespace tavrik::core
