#pragma once

#include <glib-object.h>

namespace tavrik::bench {

// A GObject with an Int property "volume".
GObject* new_glib_speaker();
// A closure over a function of such an object, a text and a number.
GClosure* new_glib_closure();

}  // namespace tavrik::bench
