#pragma once

#include <tavrik/object.h>
#include <tavrik/string.h>

#include <string_view>

// The run-time description of a class. `__ctblinit` of the class builds it once; nothing frees it. The pointer to it
// is the class reference. Strings in a record are locked, nil included.
namespace tavrik {

struct AttributeEntry {
    StringRecord* name;
    StringRecord* value;
    std::uint8_t value_flag;
};

// How the records of methods and of properties both begin.
struct MemberRecord {
    StringRecord* name;
    std::int32_t flags;
    std::int32_t attribute_count;
    AttributeEntry* attributes;
};

inline constexpr std::int32_t kPublic = 1;
inline constexpr std::int32_t kShared = 2;

// Flags of a method.
inline constexpr std::int32_t kAssignment = 4;
inline constexpr std::int32_t kVariableArguments = 8;

// Flag of a property.
inline constexpr std::int32_t kWritable = 4;

struct MethodRecord : MemberRecord {
    StringRecord* signature;
    Function function;
    Function invoker;
};

struct PropertyRecord : MemberRecord {
    StringRecord* type_code;
    std::int32_t parameter;  // a plain field's byte offset, or what an accessor gets as its second argument
    Function getter;
    Function setter;
    Function read_invoker;
    Function write_invoker;
};

struct EventRecord {
    StringRecord* name;
    Function handler;
};

struct InterfaceEntry {
    ClassRecord* interface;
    std::int32_t operation_count;
    Function* operations;
};

using Lifecycle = void (*)(Object*);

struct ClassRecord {
    ClassRecord* next;
    ClassRecord* parent;
    StringRecord* name;
    std::int32_t instance_size;
    std::uint8_t is_interface;
    Lifecycle init;
    Lifecycle destructor;
    Lifecycle exit;
    std::int32_t vtable_size;
    Function* vtable;
    std::int32_t method_count;
    MethodRecord* methods;
    std::int32_t event_count;
    EventRecord* events;
    std::int32_t property_count;
    PropertyRecord* properties;
    std::int32_t attribute_count;
    AttributeEntry* attributes;
    std::int32_t interface_count;

    // The entries stand behind the record.
    InterfaceEntry* interfaces() noexcept { return reinterpret_cast<InterfaceEntry*>(this + 1); }
    const InterfaceEntry* interfaces() const noexcept { return reinterpret_cast<const InterfaceEntry*>(this + 1); }
};

// Allocates a record and its tables, links it into the class list and copies the parent's method, event and property
// records to the front of its tables. The totals count inherited records too; the two last numbers are 0.
TAVRIK_API ClassRecord* RuntimeNewClass(ClassRecord* parent, std::int32_t method_total, std::int32_t interface_count,
                                        std::int32_t event_total, std::int32_t reserved1, std::int32_t property_total,
                                        std::int32_t reserved2);
// A table of that many empty slots, which lives as long as the process.
TAVRIK_API Function* RuntimeNewVtable(std::int32_t slots);
// Gives the member record at `offset` bytes in `table` room for `count` attributes and returns them, or nullptr for 0.
TAVRIK_API AttributeEntry* RuntimeAllocateAttributeTable(void* table, std::int32_t offset, std::int32_t count);
// The newest record that can be seen by name; `next` leads on to the older ones.
TAVRIK_API ClassRecord* RuntimeGetClassList();
// The newest class on that list with this name, or nil.
TAVRIK_API ClassRecord* RuntimeFindClass(std::string_view name);
// The class's number, from 1 on in order of creation, and back. 0 stands for nil; an unknown number gives nil.
TAVRIK_API std::int32_t RuntimeClassNumber(const ClassRecord* record);
TAVRIK_API ClassRecord* RuntimeClassWithNumber(std::int32_t number);

// The class of an object; nil for nil.
TAVRIK_API ClassRecord* RuntimeClassOf(const Object* object);
// Whether `object` is an instance of the class or of a subclass, or implements the interface. False for nil.
TAVRIK_API bool RuntimeObjectIsa(const Object* object, const ClassRecord* record);
// The object, or raises IllegalCastException. nil passes as nil.
TAVRIK_API Ref<Object> RuntimeCheckCast(Object* object, const ClassRecord* record);
// The operations of an interface for the object's class. Raises IllegalCastException if it has none.
TAVRIK_API const Function* RuntimeLookupInterfaceVtable(const Object* object, const ClassRecord* interface);

// How many objects are alive: of one class, and of all.
TAVRIK_API std::int64_t RuntimeLiveObjects(const ClassRecord* record);
TAVRIK_API std::int64_t RuntimeLiveObjects();

// A class that is declared wrongly: tells what is wrong with which class and ends the process.
[[noreturn]] TAVRIK_API void RuntimeDeclarationError(const char* class_name, const char* what, const char* member);

}  // namespace tavrik
