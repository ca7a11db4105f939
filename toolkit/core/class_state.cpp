#include "toolkit/core/class_state.h"

#include <tavrik/conversions.h>

#include <algorithm>
#include <array>

namespace tavrik {

ClassRecord* runtime_value_classes[kValueKinds] = {};

namespace core {
namespace {

constexpr auto kValueClassNames = [] {
    std::array<std::string_view, kValueKinds> names;
#define TAVRIK_NAME(Kind) names[static_cast<std::size_t>(ValueKind::k##Kind)] = "_Variant" #Kind;
    TAVRIK_VALUE_HASHES(TAVRIK_NAME)
#undef TAVRIK_NAME
    return names;
}();

ValueKind kind_of_class(const ClassRecord& record) {
    if (record.parent != nullptr || record.instance_size != sizeof(ValueObject)) return ValueKind::kNone;
    const auto* const name = std::find(kValueClassNames.begin() + 1, kValueClassNames.end(), view(record.name));
    return name == kValueClassNames.end() ? ValueKind::kNone : static_cast<ValueKind>(name - kValueClassNames.begin());
}

}  // namespace

std::string_view value_class_name(ValueKind kind) noexcept { return kValueClassNames[static_cast<std::size_t>(kind)]; }

void prepare(ClassRecord* record, ClassState& state) {
    for (const ClassRecord* c = record; c != nullptr; c = c->parent) {
        if (c->init != nullptr) state.inits.push_back(c->init);
        if (c->destructor != nullptr) state.destructors.push_back(c->destructor);
        if (c->exit != nullptr) state.exits.push_back(c->exit);
    }
    std::reverse(state.inits.begin(), state.inits.end());
    state.ends_silently = state.destructors.empty() && state.exits.empty();

    state.value_kind = kind_of_class(*record);
    ClassRecord*& value_class = runtime_value_classes[static_cast<std::size_t>(state.value_kind)];
    if (state.value_kind != ValueKind::kNone && value_class == nullptr) value_class = record;
    state.prepared = true;
}

}  // namespace core
}  // namespace tavrik
