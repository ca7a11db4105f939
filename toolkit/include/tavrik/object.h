#pragma once

#include <tavrik/api.h>

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace tavrik {

struct ClassRecord;
struct EventRecord;

// Any function, as it stands in a table. It is called only after a cast back to its own type.
using Function = void (*)();

// What the toolkit keeps with an object: ends with it.
class TAVRIK_API NativeState {
public:
    NativeState() = default;
    NativeState(const NativeState&) = delete;
    NativeState& operator=(const NativeState&) = delete;
    virtual ~NativeState();
};

// The header of every object. RuntimeNewObject makes objects; no C++ constructor runs on one, and zero bytes are a
// valid new object.
struct Object {
    const Function* vtable;
    EventRecord* events;
    ClassRecord* record;
    std::intptr_t count;
    NativeState* native;
};

// Any value: an object stands for itself, every other value is boxed in one.
struct Variant : Object {};

// Runs the destructor and exit functions of an object whose count has come to 0, and frees it. What those functions
// raise doesn't stop the release: see RuntimeUnlockObject and Frame.
TAVRIK_API void RuntimeDestroyObject(Object* object) noexcept;

// Raises a new NilObjectException, with the reason of the last failed service call of this event as its message.
[[noreturn]] TAVRIK_API void RaiseNilObjectException();

inline void lock(Object* object) noexcept {
    if (object != nullptr) ++object->count;
}

inline void unlock(Object* object) noexcept {
    if (object != nullptr && --object->count == 0) RuntimeDestroyObject(object);
}

// A class of no type of its own takes every object.
template <class From, class To>
concept RefersTo = std::same_as<To, Object> || std::same_as<To, Variant> || std::convertible_to<From*, To*>;

// Owns one count of an object, or is nil.
template <class T>
class Ref {
public:
    constexpr Ref() noexcept = default;
    constexpr Ref(std::nullptr_t) noexcept {}
    Ref(T* object) noexcept : object_(object) { lock(object_); }
    Ref(const Ref& other) noexcept : object_(other.object_) { lock(object_); }
    Ref(Ref&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
    template <class U>
    requires RefersTo<U, T> Ref(const Ref<U>& other)
    noexcept : object_(other.object()) { lock(object_); }
    template <class U>
    requires RefersTo<U, T> Ref(Ref<U>&& other)
    noexcept : object_(other.release()) {}
    ~Ref() { unlock(object_); }

    Ref& operator=(const Ref& other) noexcept {
        lock(other.object_);
        unlock(std::exchange(object_, other.object_));
        return *this;
    }
    Ref& operator=(Ref&& other) noexcept {
        Object* moved = std::exchange(other.object_, nullptr);
        unlock(std::exchange(object_, moved));
        return *this;
    }

    // Takes a count of its own.
    static Ref hold(Object* object) noexcept {
        lock(object);
        return adopt(object);
    }
    // Takes over a count that the caller owns.
    static Ref adopt(Object* owned) noexcept {
        Ref reference;
        reference.object_ = owned;
        return reference;
    }
    // Gives the count to the caller.
    Object* release() noexcept { return std::exchange(object_, nullptr); }

    Object* object() const noexcept { return object_; }
    T* get() const noexcept { return static_cast<T*>(object_); }
    T* operator->() const {
        if (object_ == nullptr) RaiseNilObjectException();
        return get();
    }
    explicit operator bool() const noexcept { return object_ != nullptr; }
    template <class U>
    bool operator==(const Ref<U>& other) const noexcept {
        return object_ == other.object();
    }
    bool operator==(std::nullptr_t) const noexcept { return object_ == nullptr; }

private:
    Object* object_ = nullptr;
};

// Takes an object of a class that is known to be right.
template <class T>
Ref<T> static_ref(Ref<Object> object) noexcept {
    return Ref<T>::adopt(object.release());
}

// A borrowed argument: the caller keeps the count for the time of the call.
template <class T>
class Arg {
public:
    constexpr Arg(std::nullptr_t) noexcept : object_(nullptr) {}
    Arg(T* object) noexcept : object_(object) {}
    template <class U>
    requires RefersTo<U, T> Arg(U* object)
    noexcept : object_(object) {}
    template <class U>
    requires RefersTo<U, T> Arg(const Ref<U>& reference)
    noexcept : object_(reference.object()) {}
    template <class U>
    requires RefersTo<U, T> Arg(Arg<U> other)
    noexcept : object_(other.object()) {}

    static Arg unchecked(Object* object) noexcept {
        Arg argument(nullptr);
        argument.object_ = object;
        return argument;
    }

    Object* object() const noexcept { return object_; }
    T* get() const noexcept { return static_cast<T*>(object_); }
    T* operator->() const {
        if (object_ == nullptr) RaiseNilObjectException();
        return get();
    }
    explicit operator bool() const noexcept { return object_ != nullptr; }
    operator Ref<T>() const noexcept { return Ref<T>::hold(object_); }

private:
    Object* object_;
};

// The toolkit's part of an object, or nullptr if it has none yet.
template <class State>
State* native(const Object* object) noexcept {
    return static_cast<State*>(object->native);
}

}  // namespace tavrik
