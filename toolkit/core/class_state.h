#pragma once

#include <tavrik/class_record.h>
#include <tavrik/variant.h>

#include <string_view>
#include <vector>

// What the core keeps with a class record, in front of it.
namespace tavrik::core {

struct ClassState {
    std::int32_t number = 0;
    std::int64_t live = 0;
    bool prepared = false;
    bool ends_silently = false;  // no destructor and no exit function in the whole chain
    ValueKind value_kind = ValueKind::kNone;
    std::vector<Lifecycle> inits;        // the parent's first
    std::vector<Lifecycle> destructors;  // the innermost class's first
    std::vector<Lifecycle> exits;        // the innermost class's first
};

inline ClassState& state_of(const ClassRecord* record) noexcept {
    return reinterpret_cast<ClassState*>(const_cast<ClassRecord*>(record))[-1];
}

// Collects the functions of the whole chain, and finds out what the instances hold if it is a value class. A record is
// complete by the time that the first instance is made.
void prepare(ClassRecord* record, ClassState& state);

// The name of a kind's class; empty for none.
std::string_view value_class_name(ValueKind kind) noexcept;

// As RuntimeNewClass, but the record does not stand in the class list: for what the toolkit makes for itself.
ClassRecord* new_hidden_class(ClassRecord* parent, const char* name, std::int32_t instance_size);

}  // namespace tavrik::core
