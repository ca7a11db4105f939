#pragma once

#include <tavrik/api.h>

#include <stdexcept>

namespace tavrik {

// A call that belongs to the program's first thread came from another one of the system. The text names both. It is
// none of the classes' exceptions, since objects are that one thread's too.
class TAVRIK_API WrongThread : public std::logic_error {
public:
    using std::logic_error::logic_error;
};

}  // namespace tavrik
