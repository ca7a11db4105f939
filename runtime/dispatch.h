#pragma once

#include "runtime/erased.h"

#include <tavrik/class_record.h>
#include <tavrik/object.h>

namespace tavrik {

// The slot of a virtual operation, by its public member. Set when the class's record is built.
template <auto Member>
inline constinit std::int32_t slot_of = -1;

namespace detail {

template <auto Member, class C, class R, class... A>
R call_slot(C* self, A... arguments) {
    using Entry = Erased<R> (*)(Object*, Erased<A>...);
    const auto entry = reinterpret_cast<Entry>(self->vtable[slot_of<Member>]);
    if constexpr (std::is_void_v<R>) {
        entry(self, Erasure<A>::to(static_cast<A>(arguments))...);
    } else {
        return Erasure<R>::from(entry(self, Erasure<A>::to(static_cast<A>(arguments))...));
    }
}

template <auto Member, class R, class C, class... A>
constexpr auto caller_of(R (C::*)(A...)) {
    return &call_slot<Member, C, R, A...>;
}

}  // namespace detail

// Calls a virtual operation through its slot: the body of every public member that is virtual.
template <auto Member, class Self, class... Arguments>
decltype(auto) dispatch(Self* self, Arguments&&... arguments) {
    return detail::caller_of<Member>(Member)(self, std::forward<Arguments>(arguments)...);
}

// An event of a class: raising it calls the handler in the object's table. Without one nothing happens, and the result
// is false.
template <class F>
struct Event;

template <class R, class... A>
struct Event<R(A...)> {
    using Handler = Erased<R> (*)(Object*, Erased<A>...);

    std::int32_t index = -1;  // set when the class's record is built

    R raise(Object* self, A... arguments) const {
        const Function handler = self->events[index].handler;
        if (handler == nullptr) return R();
        return reinterpret_cast<Handler>(handler)(self, Erasure<A>::to(static_cast<A>(arguments))...);
    }
};

}  // namespace tavrik
