#include "toolkit/core/file_type.h"

#include "toolkit/core/text.h"

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

// Selects what any of the filters does. A filter without extensions selects all files, and so does one with it.
front::FileFilter any_of(const std::vector<front::FileFilter>& filters) {
    front::FileFilter any;
    for (const front::FileFilter& filter : filters) {
        any.label += (any.label.empty() ? "" : ", ") + filter.label;
        for (const std::string& extension : filter.extensions) {
            if (std::ranges::find(any.extensions, extension) == any.extensions.end())
                any.extensions.push_back(extension);
        }
    }
    const bool takes_all = std::ranges::any_of(filters, [](const auto& filter) { return filter.extensions.empty(); });
    if (takes_all) any.extensions.clear();
    return any;
}

}  // namespace

namespace core {

std::vector<front::FileFilter> filters_for(std::string_view filter) {
    std::vector<front::FileFilter> filters;
    for_each_field(filter, [&](std::string_view name) {
        const auto type = find_type(name);
        if (type == registered_types().end()) return;
        if (std::ranges::find(filters, name, &front::FileFilter::label) != filters.end()) return;
        filters.push_back({type->name, type->extensions});
    });
    if (filters.size() > 1) filters.insert(filters.begin(), any_of(filters));
    return filters;
}

std::optional<MacCodes> mac_codes_of_type(std::string_view name) {
    const auto type = find_type(name);
    if (type == registered_types().end()) return {};
    return MacCodes{type->mac_type, type->mac_creator};
}

std::string type_of_file(std::string_view file_name, std::string_view mac_type) {
    const auto fits_name = [file_name](const RegisteredType& type) {
        return std::ranges::any_of(type.extensions, [file_name](std::string_view extension) {
            if (file_name.size() <= extension.size()) return false;
            const std::size_t dot = file_name.size() - extension.size() - 1;
            return file_name[dot] == '.' && equal_any_case(file_name.substr(dot + 1), extension);
        });
    };
    auto found = std::ranges::find_if(registered_types(), fits_name);
    if (found == registered_types().end() && !mac_type.empty()) {
        found = std::ranges::find(registered_types(), mac_type, &RegisteredType::mac_type);
    }
    return found == registered_types().end() ? std::string() : found->name;
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
