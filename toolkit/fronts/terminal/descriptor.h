#pragma once

#include <unistd.h>

#include <utility>

namespace tavrik::front::terminal {

// Owns a file descriptor.
class Descriptor {
public:
    Descriptor() = default;
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, kNone)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(number_, other.number_);
        return *this;
    }
    ~Descriptor() {
        if (number_ != kNone) ::close(number_);
    }

    int number() const { return number_; }

private:
    static constexpr int kNone = -1;
    int number_ = kNone;
};

// Opens those of the descriptors 0, 1 and 2 that the program was started without, on nothing: a pipe or a file that
// got one of these numbers would be taken for the person.
void open_standard_descriptors();

}  // namespace tavrik::front::terminal
