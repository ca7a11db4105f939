#include "toolkit/core/allocator.h"
#include "toolkit/core/class_state.h"
#include "toolkit/core/release.h"

#include <tavrik/object.h>
#include <tavrik/runtime.h>

#include <bit>
#include <cstring>
#include <string>

namespace tavrik {

constinit core::Releases core::releases;

namespace {

// Releases nest this deep; what is to be released deeper down waits in a queue, so that a structure of any depth takes
// constant stack.
constexpr int kDeepestRelease = 24;

using core::releases;

// A dead object needs no count: its place holds the link of the queue.
void link(Object* object, Object* next) { object->count = std::bit_cast<std::intptr_t>(next); }
Object* next_of(const Object* object) { return std::bit_cast<Object*>(object->count); }

void enqueue(Object* object) {
    link(object, nullptr);
    if (releases.first_waiting == nullptr) {
        releases.first_waiting = object;
    } else {
        link(releases.last_waiting, object);
    }
    releases.last_waiting = object;
}

Object* dequeue() {
    Object* const object = releases.first_waiting;
    releases.first_waiting = next_of(object);
    return object;
}

void run_all(const std::vector<Lifecycle>& functions, Object* object) noexcept {
    for (const Lifecycle function : functions) {
        try {
            function(object);
        } catch (const RaisedException& raised) {
            core::note_release_exception(raised.exception.object());
        }
    }
}

// While its functions run the object holds one count of its own. Whoever kept a reference by the end rescues it.
bool rescued(Object* object) { return object->count > 1 && --object->count > 0; }

void destroy(Object* object) noexcept {
    core::ClassState& state = core::state_of(object->record);
    object->count = 1;
    run_all(state.destructors, object);
    if (rescued(object)) return;
    run_all(state.exits, object);
    if (rescued(object)) return;

    delete object->native;
    if (object->events != object->record->events) delete[] object->events;
    --state.live;
    core::free_block(object, static_cast<std::size_t>(object->record->instance_size));
}

}  // namespace

NativeState::~NativeState() = default;

void RuntimeDestroyObject(Object* object) noexcept {
    // Most objects are small values: nothing runs at their end, and nothing more is released.
    core::ClassState& state = core::state_of(object->record);
    if (state.ends_silently && object->native == nullptr && object->events == object->record->events) {
        --state.live;
        return core::free_block(object, static_cast<std::size_t>(object->record->instance_size));
    }
    if (releases.depth == kDeepestRelease) return enqueue(object);
    ++releases.depth;
    destroy(object);
    if (releases.depth == 1) {
        while (releases.first_waiting != nullptr) destroy(dequeue());
    }
    --releases.depth;
}

Ref<Object> RuntimeNewObject(ClassRecord* record) {
    if (record == nullptr) RaiseNilObjectException();
    core::ClassState& state = core::state_of(record);
    if (!state.prepared) [[unlikely]] {
        if (record->is_interface != 0) {
            RuntimeRaise("IllegalCastException", "an interface has no instances: " + std::string(view(record->name)));
        }
        core::prepare(record, state);
    }

    const auto size = static_cast<std::size_t>(record->instance_size);
    void* const block = core::allocate_block(size);
    std::memset(static_cast<std::byte*>(block) + sizeof(Object), 0, size - sizeof(Object));
    auto* const object = new (block)
        Object{.vtable = record->vtable, .events = record->events, .record = record, .count = 1, .native = nullptr};
    ++state.live;
    Ref<Object> made = Ref<Object>::adopt(object);
    for (const Lifecycle init : state.inits) init(object);
    return made;
}

void RuntimeLockObject(Object* object) { lock(object); }

void RuntimeUnlockObject(Object* object) {
    unlock(object);
    if (runtime_release_exception != nullptr) RuntimeReraiseException(RuntimeTakeReleaseException().object());
}

void RuntimeLockUnlockObjects(Object* new_object, Object* old_object) {
    lock(new_object);
    RuntimeUnlockObject(old_object);
}

}  // namespace tavrik
