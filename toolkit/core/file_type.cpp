#include "toolkit/core/file_type.h"

#include <tavrik/file_type.h>

#include <algorithm>
#include <string>

namespace tavrik {
namespace {

struct RegisteredType {
    std::string name;
    std::string mac_creator;
    std::string mac_type;
    std::vector<std::string> extensions;
};

std::vector<RegisteredType>& registered_types() {
    static auto* const types = new std::vector<RegisteredType>;
    return *types;
}

auto find_type(std::string_view name) { return std::ranges::find(registered_types(), name, &RegisteredType::name); }

template <class Use>
void for_each_field(std::string_view list, Use use) {
    while (!list.empty()) {
        const std::size_t end = std::min(list.find(';'), list.size());
        use(list.substr(0, end));
        list.remove_prefix(std::min(end + 1, list.size()));
    }
}

std::string_view trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::vector<std::string> parse_extensions(std::string_view list) {
    std::vector<std::string> extensions;
    for_each_field(list, [&](std::string_view field) {
        std::string_view extension = trimmed(field);
        if (extension.starts_with('*')) extension.remove_prefix(1);
        if (extension.starts_with('.')) extension.remove_prefix(1);
        if (!extension.empty()) extensions.emplace_back(extension);
    });
    return extensions;
}

}  // namespace

namespace core {

std::vector<front::FileFilter> filters_for(std::string_view filter) {
    std::vector<front::FileFilter> filters;
    for_each_field(filter, [&](std::string_view name) {
        const auto type = find_type(name);
        if (type != registered_types().end()) filters.push_back({type->name, type->extensions});
    });
    return filters;
}

}  // namespace core

void RuntimeRegisterFileType(const String& name, const String& mac_creator, const String& mac_type,
                             const String& extensions) {
    RuntimeDeregisterFileType(name);
    registered_types().push_back({std::string(name.view()), std::string(mac_creator.view()),
                                  std::string(mac_type.view()), parse_extensions(extensions.view())});
}

void RuntimeDeregisterFileType(const String& name) {
    const auto type = find_type(name.view());
    if (type != registered_types().end()) registered_types().erase(type);
}

}  // namespace tavrik
