#pragma once

#include <tavrik/class_record.h>

#include <cstdint>
#include <span>

// A class, declared as data: one row per member, in the order of the slots. Rows are made by the functions of
// "runtime/class.h", which derive everything but the names from the C++ declarations.
namespace tavrik {

enum class Placing : std::uint8_t {
    kNewSlot,      // a virtual operation that the class adds
    kSameSlot,     // takes the slot of a parent's operation
    kWithoutSlot,  // a plain method, or a shared one
};

// Gives a function as it stands in a record. A cast of function types is no constant, so rows hold one of these.
using FunctionSource = Function (*)();

struct OperationRow {
    const char* name;  // "=Name" is an assignment form, "*Name" takes a variable argument list
    StringRecord* signature;
    Placing placing;
    std::int32_t flags;
    std::int32_t* slot;  // nullptr without one
    FunctionSource function;
    FunctionSource invoker;

    // A member that isn't for application code.
    constexpr OperationRow not_public() const {
        OperationRow row = *this;
        row.flags &= ~kPublic;
        return row;
    }
};

// A field that is served as it lies. A shared one has a record and nothing else.
struct FieldRow {
    const char* name;
    StringRecord* type_code;
    std::int32_t flags;
    std::int32_t (*offset)();
    FunctionSource getter;
    FunctionSource setter;
    FunctionSource read_invoker;
    FunctionSource write_invoker;
    bool is_array;
    bool is_counted;
    Lifecycle make;     // gives an array field its empty array
    Lifecycle release;  // sets a counted one to nil
};

// An accessor is a method record too, named `P.Get` or `P.Set`.
struct AccessorRow {
    StringRecord* signature = nullptr;
    FunctionSource function = nullptr;  // nullptr: the property has no such accessor
    FunctionSource invoker = nullptr;
    FunctionSource property_invoker = nullptr;  // of the property's record: it reads, or writes
};

struct PropertyRow {
    const char* name;
    StringRecord* type_code;
    AccessorRow getter{};
    AccessorRow setter{};
    bool is_counted = false;  // a stored value that is released with the object
    Lifecycle release = nullptr;
    std::int32_t (*offset)() = nullptr;  // where a value without a getter lies
    const FieldRow* field = nullptr;     // what this row is instead: a field that stands among the properties
};

struct EventRow {
    const char* name;
    std::int32_t* index;
};

struct HandlerRow {
    const char* event;
    const std::int32_t* index;
    const std::int32_t* slot;  // the class's operation that handles the event
};

struct InterfaceRow {
    ClassRecord* (*lookup)();
    std::int32_t operation_count;
    const std::int32_t* const* slots;  // of the operations, in the interface's order
};

// A function of an object's life that forwards to the toolkit.
struct ForwarderRow {
    bool given = false;
    Lifecycle function = nullptr;
};

// How the totals of a class count: an application class leaves room for the accessors of its parent once more.
enum class Layer : std::uint8_t { kClassLayer, kApplication };

// What a source file states of its class.
struct Declaration {
    Layer layer = Layer::kClassLayer;
    ForwarderRow init{};
    ForwarderRow exit{};  // the class's fields are released behind it
    Lifecycle destructor = nullptr;
    std::span<const OperationRow> operations{};
    std::span<const FieldRow> fields{};
    std::span<const PropertyRow> properties{};
    std::span<const EventRow> events{};
    std::span<const HandlerRow> handlers{};
    std::span<const InterfaceRow> interfaces{};
};

// What the compiler adds to it.
struct ClassDefinition {
    StringRecord* name = nullptr;
    ClassRecord* (*parent)() = nullptr;
    std::int32_t instance_size = 0;
    bool is_interface = false;
    Lifecycle init = nullptr;
    Lifecycle exit = nullptr;
    Declaration declared{};
};

// Builds the record of a class and stores it in `place` before it is filled in; does nothing if it is there. A mistake
// in the rows ends the process with a sentence that names the class and the member.
void build_class(const ClassDefinition& definition, ClassRecord*& place);

}  // namespace tavrik
