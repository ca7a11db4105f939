#pragma once

#include <string>
#include <vector>

namespace tavrik::core {

// Puts everything buffered in any stream into its file.
void flush_all_streams();
// What went wrong in a stream and no code has asked about, as sentences for the person. Each is given once.
std::vector<std::string> take_unread_stream_failures();

}  // namespace tavrik::core
