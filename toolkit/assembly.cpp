// Chooses the front: the one file that knows which fronts there are.
#include "toolkit/front/choose.h"
#include "toolkit/fronts/terminal/terminal_front.h"

#include <dlfcn.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string>

namespace tavrik::front {
namespace {

#if defined(__APPLE__)
constexpr const char* kNativeModule = "libtavrikfront-qt.dylib";
constexpr bool kAlwaysHasDisplay = true;
#else
constexpr const char* kNativeModule = "libtavrikfront-qt.so";
constexpr bool kAlwaysHasDisplay = false;
#endif

bool is_set(const char* variable) {
    const char* const value = std::getenv(variable);
    return value != nullptr && *value != '\0';
}

bool has_display() {
    constexpr std::array variables{"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"};
    return kAlwaysHasDisplay || std::ranges::any_of(variables, is_set);
}

// Modules lie beside the library that this code is in.
std::string module_path() {
    Dl_info self{};
    if (dladdr(reinterpret_cast<const void*>(&choose_front), &self) == 0) return kNativeModule;
    const std::string library(self.dli_fname);
    return library.substr(0, library.rfind('/') + 1) + kNativeModule;
}

// The module stays open until the process ends.
std::unique_ptr<Front> make_native_front(const Start& start) {
    if (!has_display()) return nullptr;
    void* const module = dlopen(module_path().c_str(), RTLD_NOW | RTLD_LOCAL);
    if (module == nullptr) return nullptr;
    const auto make = reinterpret_cast<MakeFront>(dlsym(module, kMakeFrontSymbol));
    if (make == nullptr) return nullptr;
    std::string reason;
    return std::unique_ptr<Front>(make(start, reason));
}

}  // namespace

std::unique_ptr<Front> choose_front(const Start& start) {
    if (auto native = make_native_front(start)) return native;
    return terminal::make_terminal_front(start);
}

}  // namespace tavrik::front
