#include "toolkit/core/cursor_file.h"

#include <cstdlib>

// What is read from any bytes is a whole image with its hot spot inside; what isn't has a reason.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string reason;
    const auto image = tavrik::core::read_cursor_file({reinterpret_cast<const char*>(data), size}, reason);
    if (!image) {
        if (reason.empty()) std::abort();
        return 0;
    }
    const auto pixels = static_cast<std::size_t>(image->width) * static_cast<std::size_t>(image->height);
    const bool inside = image->hot_spot.left < image->width && image->hot_spot.top < image->height;
    if (image->pixels.size() != pixels || !inside) std::abort();
    return 0;
}
