#include "toolkit/core/stack_trace.h"

#include <cxxabi.h>
#include <dlfcn.h>
#include <execinfo.h>

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <sstream>
#include <string_view>

namespace tavrik::core {
namespace {

std::string demangled(const char* symbol) {
    int status = 0;
    const std::unique_ptr<char, decltype(&std::free)> name(abi::__cxa_demangle(symbol, nullptr, nullptr, &status),
                                                           &std::free);
    return status == 0 && name ? name.get() : symbol;
}

std::string_view file_name(std::string_view path) { return path.substr(path.rfind('/') + 1); }

std::string line_for(void* return_address) {
    // The call stands in front of the address that it returns to.
    auto* const call = static_cast<std::byte*>(return_address) - 1;
    Dl_info found{};
    std::ostringstream line;
    if (dladdr(call, &found) == 0) {
        line << return_address;
    } else if (found.dli_sname != nullptr) {
        line << demangled(found.dli_sname);
    } else {
        line << file_name(found.dli_fname) << " + 0x" << std::hex << call - static_cast<std::byte*>(found.dli_fbase);
    }
    return line.str();
}

}  // namespace

StackTrace StackTrace::here() noexcept {
    StackTrace trace;
    trace.depth_ = static_cast<std::size_t>(backtrace(trace.addresses_.data(), int{kDeepest}));
    return trace;
}

std::vector<std::string> StackTrace::lines() const {
    std::vector<std::string> lines;
    for (std::size_t i = 1; i < depth_; ++i) lines.push_back(line_for(addresses_[i]));
    return lines;
}

}  // namespace tavrik::core
