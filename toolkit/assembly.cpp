// Chooses the front and opens modules: the one file that knows which there are.
#include "toolkit/front/choose.h"
#include "toolkit/fronts/terminal/terminal_front.h"
#include "toolkit/volume/choose.h"

#include <dlfcn.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string>

namespace tavrik {
namespace {

#if defined(__APPLE__)
constexpr const char* kFrontModule = "libtavrikfront-qt.dylib";
constexpr const char* kVolumesModule = "libtavrikvolumes.dylib";
constexpr bool kAlwaysHasDisplay = true;
#else
constexpr const char* kFrontModule = "libtavrikfront-qt.so";
constexpr const char* kVolumesModule = "libtavrikvolumes.so";
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
std::string module_path(const char* module) {
    Dl_info self{};
    if (dladdr(reinterpret_cast<const void*>(&front::choose_front), &self) == 0) return module;
    const std::string library(self.dli_fname);
    return library.substr(0, library.rfind('/') + 1) + module;
}

// A function of a module, or nullptr. The module stays open until the process ends.
template <class Function>
Function find_in_module(const char* module, const char* symbol) {
    void* const library = dlopen(module_path(module).c_str(), RTLD_NOW | RTLD_LOCAL);
    return library == nullptr ? nullptr : reinterpret_cast<Function>(dlsym(library, symbol));
}

std::unique_ptr<front::Front> make_native_front(const front::Start& start) {
    if (!has_display()) return nullptr;
    const auto make = find_in_module<front::MakeFront>(kFrontModule, front::kMakeFrontSymbol);
    if (make == nullptr) return nullptr;
    std::string reason;
    return std::unique_ptr<front::Front>(make(start, reason));
}

}  // namespace

std::unique_ptr<front::Front> front::choose_front(const Start& start) {
    if (auto native = make_native_front(start)) return native;
    return terminal::make_terminal_front(start);
}

volume::OpenVolume volume::find_open_volume() { return find_in_module<OpenVolume>(kVolumesModule, kOpenVolumeSymbol); }

}  // namespace tavrik
