#pragma once

#include <tavrik/array.h>
#include <tavrik/class_record.h>

#include <string>
#include <vector>

namespace tavrik::test {

// A member of a class that is made at run time: `type` is a method's signature or a property's type code, and
// `function` what a method calls or a property's getter.
struct SketchedMember {
    const char* name;
    const char* type;
    std::vector<const char*> attributes = {};
    Function function = nullptr;
    Function invoker = nullptr;
    Function setter = nullptr;
    Function write_invoker = nullptr;
    std::int32_t parameter = 0;
};

struct Sketch {
    ClassRecord* parent = nullptr;
    std::vector<SketchedMember> methods = {};
    std::vector<SketchedMember> properties = {};
    std::vector<const char*> attributes = {};
    bool is_interface = false;
    std::int32_t instance_size = sizeof(Object);
};

// A class with these members behind its parent's. It lives as long as the process.
ClassRecord* make_class(const char* name, const Sketch& sketch = {});

using Names = std::vector<std::string>;

// What stands in an array, each element told by `tell`.
template <class T, class Tell>
Names told(const Ref<ArrayOf<T>>& list, Tell tell) {
    Names names;
    for (std::int32_t i = 0; i <= list->upper_bound(); ++i) names.emplace_back(tell(list->at(i)).view());
    return names;
}

template <class T>
Names names_of(const Ref<ArrayOf<T>>& members) {
    return told(members, [](const Ref<T>& member) { return member->Name(); });
}

}  // namespace tavrik::test
