#include "tests/support/probe.h"

#include <tavrik/runtime.h>

#include <utility>

namespace tavrik::test {
namespace {

void note(const char* what, const Probe* probe) { journal().push_back(what + std::to_string(probe->number)); }

void destroy(Object* object) {
    auto* const probe = static_cast<Probe*>(object);
    note("destroy ", probe);
    if (probe->in_destructor != nullptr) probe->in_destructor(probe);
}

void exit(Object* object) {
    auto* const probe = static_cast<Probe*>(object);
    note("exit ", probe);
    unlock(std::exchange(probe->first, nullptr));
    unlock(std::exchange(probe->second, nullptr));
    if (probe->in_exit != nullptr) probe->in_exit(probe);
}

ClassRecord* probe_class() {
    static ClassRecord* const record = [] {
        ClassRecord* const made = new_class("Probe", nullptr, sizeof(Probe));
        made->destructor = destroy;
        made->exit = exit;
        return made;
    }();
    return record;
}

}  // namespace

Journal& journal() {
    static Journal entries;
    return entries;
}

Ref<Probe> make_probe(std::int32_t number) {
    auto probe = static_ref<Probe>(RuntimeNewObject(probe_class()));
    probe->number = number;
    return probe;
}

ClassRecord* new_class(std::string_view name, ClassRecord* parent, std::int32_t instance_size) {
    const ClassRecord none{};
    const ClassRecord& inherited = parent == nullptr ? none : *parent;
    ClassRecord* const record =
        RuntimeNewClass(parent, inherited.method_count, 0, inherited.event_count, 0, inherited.property_count, 0);
    record->name = String(name).release();
    record->instance_size = instance_size;
    record->vtable = inherited.vtable;
    record->vtable_size = inherited.vtable_size;
    return record;
}

}  // namespace tavrik::test
