#pragma once

#include "runtime/class.h"

namespace tavrik {

// What can be read from: Read, EOF, ReadError.
struct Readable : Interface<Readable> {};

// What can be written to: Write, Flush, WriteError.
struct Writeable : Interface<Writeable> {};

}  // namespace tavrik
