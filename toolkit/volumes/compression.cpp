#include "toolkit/volumes/compression.h"

#include "toolkit/volumes/failure.h"

#include <zlib.h>

#include <cerrno>
#include <new>

namespace tavrik::volume {
namespace {

// No stream shrinks further than this, so a size beyond it is wrong, and nothing is reserved for it.
constexpr std::uint64_t kMostExpansion = 1040;

const Bytef* start_of(std::string_view bytes) { return reinterpret_cast<const Bytef*>(bytes.data()); }
Bytef* start_of(std::string& bytes) { return reinterpret_cast<Bytef*>(bytes.data()); }

}  // namespace

std::string compressed(std::string_view bytes) {
    std::string result(compressBound(bytes.size()), '\0');
    uLongf length = result.size();
    if (compress(start_of(result), &length, start_of(bytes), bytes.size()) != Z_OK) throw std::bad_alloc();
    if (length >= bytes.size()) return {};
    result.resize(length);
    return result;
}

std::string uncompressed(std::string_view bytes, std::uint64_t size) {
    if (size / kMostExpansion > bytes.size()) throw Failure{EIO};
    std::string result(size, '\0');
    uLongf length = size;
    const int code = uncompress(start_of(result), &length, start_of(bytes), bytes.size());
    if (code == Z_MEM_ERROR) throw std::bad_alloc();
    if (code != Z_OK || length != size) throw Failure{EIO};
    return result;
}

}  // namespace tavrik::volume
