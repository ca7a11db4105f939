#include "toolkit/core/stack_memory.h"

#include "toolkit/core/sanitizer.h"

#include <tavrik/exception.h>

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <string>
#include <system_error>
#include <vector>

namespace tavrik::core {
namespace {

constexpr std::size_t kMostKept = 16;

#if defined(MAP_NORESERVE) && defined(MAP_STACK)
constexpr int kKindOfMapping = MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE | MAP_STACK;
#else
constexpr int kKindOfMapping = MAP_PRIVATE | MAP_ANON;
#endif

using Stack = std::span<std::byte>;

std::vector<Stack>& kept() {
    static auto* const stacks = new std::vector<Stack>;
    return *stacks;
}

std::size_t page_size() {
    static const auto size = static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
    return size;
}

[[noreturn]] void raise_no_room(std::size_t bytes) {
    const std::string why = std::generic_category().message(errno);
    RuntimeRaise("OutOfMemoryException",
                 "Starting a thread: no room for its stack of " + std::to_string(bytes) + " bytes: " + why);
}

void unmap(Stack stack) { ::munmap(stack.data() - page_size(), stack.size() + page_size()); }

Stack map(std::size_t bytes) {
    void* const begin = ::mmap(nullptr, bytes + page_size(), PROT_NONE, kKindOfMapping, -1, 0);
    if (begin == MAP_FAILED) raise_no_room(bytes);
    const Stack stack(static_cast<std::byte*>(begin) + page_size(), bytes);
    if (::mprotect(stack.data(), bytes, PROT_READ | PROT_WRITE) == 0) return stack;
    const int error = errno;
    unmap(stack);
    errno = error;
    raise_no_room(bytes);
}

Stack take(std::size_t bytes) {
    const auto found = std::ranges::find(kept(), bytes, &Stack::size);
    if (found == kept().end()) return map(bytes);
    const Stack stack = *found;
    kept().erase(found);
    return stack;
}

}  // namespace

std::size_t StackMemory::whole_pages(std::size_t bytes) {
    return (bytes + page_size() - 1) / page_size() * page_size();
}

StackMemory::StackMemory(std::size_t bytes) : usable_(take(whole_pages(bytes))) {}

StackMemory::~StackMemory() {
    sanitizer::forget_frames(usable_);
    if (kept().size() < kMostKept) {
        kept().push_back(usable_);
    } else {
        unmap(usable_);
    }
}

}  // namespace tavrik::core
