#pragma once

#include <tavrik/class_record.h>
#include <tavrik/object.h>

#include <string>
#include <vector>

namespace tavrik::test {

using Journal = std::vector<std::string>;

// What the probes of this test have lived through.
Journal& journal();

// An object that writes its life into the journal, does at its end what a test tells it to do, and then lets go of the
// two objects that it holds.
struct Probe : Object {
    using Deed = void (*)(Probe*);

    std::int32_t number;
    Deed in_destructor;
    Deed in_exit;
    Object* first;
    Object* second;
};

Ref<Probe> make_probe(std::int32_t number);

// A class without tables. What isn't given is the parent's.
ClassRecord* new_class(std::string_view name, ClassRecord* parent, std::int32_t instance_size);

}  // namespace tavrik::test
