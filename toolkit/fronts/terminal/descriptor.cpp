#include "toolkit/fronts/terminal/descriptor.h"

#include <fcntl.h>

namespace tavrik::front::terminal {

void open_standard_descriptors() {
    // The system gives the lowest number that is free.
    for (int opened = 0; opened >= 0 && opened <= STDERR_FILENO;) {
        opened = ::open("/dev/null", O_RDWR);
        if (opened > STDERR_FILENO) ::close(opened);
    }
}

}  // namespace tavrik::front::terminal
