#pragma once

#include "runtime/class.h"

#include <tavrik/stream_error.h>

#include <fcntl.h>

#include <string>
#include <string_view>

namespace tavrik::bench {

// A file in a folder that is removed at the end of the process. Its path.
std::string new_file(const char* name, std::string_view bytes);

// A new stream over a file. The stream closes it.
template <class Stream>
Ref<Stream> open_stream(const std::string& path, int flags) {
    Ref<Stream> stream = make<Stream>();
    stream->Constructor(::open(path.c_str(), flags | O_CLOEXEC), kHandleOfDescriptor);
    return stream;
}

}  // namespace tavrik::bench
