#pragma once

#include <sys/types.h>

#include <utility>

namespace tavrik::bench {

class Descriptor {
public:
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    Descriptor& operator=(Descriptor&&) = delete;
    ~Descriptor();

    int number() const { return number_; }

private:
    int number_;
};

struct Pipe {
    Descriptor read_end;
    Descriptor write_end;
};

// A started program, with pipes as its standard input, which stays open, and its standard output. Ends with this
// object.
class Program {
public:
    explicit Program(const char* path);
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;
    ~Program();

    void wait_for_output() const;

private:
    Program(const char* path, Pipe input, Pipe output);

    Descriptor input_;
    Descriptor output_;
    pid_t process_;
};

}  // namespace tavrik::bench
