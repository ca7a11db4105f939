#pragma once

#include <tavrik/exception.h>
#include <tavrik/object.h>
#include <tavrik/string.h>

#include <array>
#include <deque>
#include <memory>

namespace tavrik {

template <class T>
class Local;
class LocalString;

// The frame of a method with logic of its own: it locks self and the reference arguments in order, and then checks the
// stack. Its end, by return or by exception, releases in the order of the places: self, arguments, locals. What a
// release raises goes to the caller, once everything is released.
class Frame {
public:
    template <class... References>
    explicit Frame(const References&... references) {
        (hold(references), ...);
        check_stack();
    }
    ~Frame() noexcept(false) {
        places_.release();
        if (runtime_release_exception != nullptr) [[unlikely]]
            raise_what_releases_left();
    }
    Frame(const Frame&) = delete;
    Frame& operator=(const Frame&) = delete;

    // A local of this frame, nil at first.
    template <class T>
    Local<T> local() {
        return Local<T>(places_.add(nullptr, nullptr).object);
    }
    template <class T>
    Local<T> local(Ref<T> initial) {
        return Local<T>(places_.add(initial.release(), nullptr).object);
    }
    LocalString string();

private:
    // A place holds the one or the other.
    struct Place {
        Object* object;
        StringRecord* string;
    };

    class Places {
    public:
        ~Places() {
            if (count_ != 0) release();
        }

        Place& add(Object* object, StringRecord* string) {
            Place& place = count_ < first_.size() ? first_[count_] : one_more();
            place = {object, string};
            ++count_;
            return place;
        }
        void release() noexcept;

    private:
        Place& one_more();

        std::size_t count_ = 0;
        std::array<Place, 6> first_;  // only the first `count_` are written
        std::unique_ptr<std::deque<Place>> rest_;
    };

    template <class T>
    void hold(T* object) {
        lock(object);
        places_.add(object, nullptr);
    }
    template <class T>
    void hold(Arg<T> argument) {
        hold(argument.object());
    }
    void hold(const String& string) {
        lock(string.record());
        places_.add(nullptr, string.record());
    }

    static void raise_what_releases_left();

    Places places_;
};

template <class T>
class Local {
public:
    Local& operator=(Ref<T> reference) noexcept {
        unlock(std::exchange(place_, reference.release()));
        return *this;
    }
    Local& operator=(std::nullptr_t) noexcept {
        unlock(std::exchange(place_, nullptr));
        return *this;
    }
    Local(const Local&) = default;
    Local& operator=(const Local& other) noexcept {
        *this = static_cast<Ref<T>>(other);
        return *this;
    }

    operator Ref<T>() const noexcept { return Ref<T>::hold(place_); }
    operator Arg<T>() const noexcept { return Arg<T>::unchecked(place_); }
    Object* object() const noexcept { return place_; }
    T* get() const noexcept { return static_cast<T*>(place_); }
    T* operator->() const {
        if (place_ == nullptr) RaiseNilObjectException();
        return get();
    }
    explicit operator bool() const noexcept { return place_ != nullptr; }

private:
    friend Frame;
    explicit Local(Object*& place) : place_(place) {}

    Object*& place_;
};

class LocalString {
public:
    LocalString& operator=(String string) noexcept {
        unlock(std::exchange(place_, string.release()));
        return *this;
    }
    LocalString(const LocalString&) = default;
    LocalString& operator=(const LocalString& other) noexcept {
        *this = static_cast<String>(other);
        return *this;
    }

    operator String() const noexcept { return String(place_); }
    std::string_view view() const noexcept { return tavrik::view(place_); }

private:
    friend Frame;
    explicit LocalString(StringRecord*& place) : place_(place) {}

    StringRecord*& place_;
};

inline LocalString Frame::string() { return LocalString(places_.add(nullptr, nullptr).string); }

}  // namespace tavrik
