#pragma once

#include <tavrik/object.h>
#include <tavrik/string.h>

// Fields of class structs. Their zero bytes are nil, no constructor or destructor runs on them, and an assignment
// takes the new value before it drops the old. The __Exit of the class, derived from its rows, releases them.
namespace tavrik {

template <class T>
class Field {
public:
    Field() = default;
    Field(const Field&) = delete;

    template <class U>
    requires RefersTo<U, T> Field& operator=(const Ref<U>& reference) noexcept {
        store(reference.object());
        return *this;
    }
    Field& operator=(Arg<T> argument) noexcept {
        store(argument.object());
        return *this;
    }
    Field& operator=(const Field& other) noexcept {
        store(other.object_);
        return *this;
    }
    Field& operator=(std::nullptr_t) noexcept {
        store(nullptr);
        return *this;
    }

    operator Ref<T>() const noexcept { return Ref<T>::hold(object_); }
    operator Arg<T>() const noexcept { return Arg<T>::unchecked(object_); }
    Object* object() const noexcept { return object_; }
    T* get() const noexcept { return static_cast<T*>(object_); }
    // The object is held for the time of the expression, since what it does may overwrite the field.
    Ref<T> operator->() const {
        if (object_ == nullptr) RaiseNilObjectException();
        return Ref<T>::hold(object_);
    }
    explicit operator bool() const noexcept { return object_ != nullptr; }

private:
    void store(Object* value) noexcept {
        lock(value);
        unlock(std::exchange(object_, value));
    }

    Object* object_;
};

class StringField {
public:
    StringField() = default;
    StringField(const StringField&) = delete;

    StringField& operator=(const String& value) noexcept {
        lock(value.record());
        unlock(std::exchange(record_, value.record()));
        return *this;
    }
    StringField& operator=(const StringField& other) noexcept { return *this = static_cast<String>(other); }

    operator String() const noexcept { return String(record_); }
    std::string_view view() const noexcept { return tavrik::view(record_); }
    bool empty() const noexcept { return view().empty(); }

private:
    StringRecord* record_;
};

}  // namespace tavrik
