// Filter strings, and the types that they name.
#include "toolkit/core/file_type.h"

#include <tavrik/file_type.h>
#include <tavrik/string.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace tavrik {
namespace {

void expect(bool holds) {
    if (!holds) std::abort();
}

// The first line is a type's extensions, the rest a filter.
void check(std::string_view text) {
    const std::size_t line = std::min(text.find('\n'), text.size());
    const String extensions(text.substr(0, line));
    const std::string_view filter = text.substr(std::min(line + 1, text.size()));

    RuntimeRegisterFileType("map"_s, ""_s, "MAP "_s, extensions);
    const auto filters = core::filters_for(filter);
    const auto names = static_cast<std::size_t>(std::ranges::count(filter, ';')) + 1;
    expect(filters.size() <= names + 1);
    for (const front::FileFilter& choice : filters) {
        expect(!choice.label.empty());
        for (const std::string& extension : choice.extensions) expect(!extension.empty());
    }
    core::type_of_file(filter, text);
    RuntimeDeregisterFileType("map"_s);
    expect(core::filters_for("map").empty());
}

}  // namespace
}  // namespace tavrik

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tavrik::check({reinterpret_cast<const char*>(data), size});
    return 0;
}
