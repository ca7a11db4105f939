#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace tavrik::core {

inline constexpr std::int32_t kLowestPriority = 1;
inline constexpr std::int32_t kDefaultPriority = 5;
inline constexpr std::int32_t kHighestPriority = 10;

// A place in the queue: what wants turns derives from it.
class Turns {
public:
    Turns() = default;
    Turns(const Turns&) = delete;
    Turns& operator=(const Turns&) = delete;

    std::int32_t priority = kDefaultPriority;
    bool is_queued() const { return is_queued_; }

private:
    friend class ReadyQueue;

    Turns* previous_ = this;
    Turns* next_ = this;
    std::uint64_t due_ = 0;
    bool is_queued_ = false;
};

// Who gets the next turn. Of those that always want one, each gets turns in proportion to its priority, evenly spread;
// equals go round. Whoever joins waits as long as if its last turn had ended just then.
class ReadyQueue {
public:
    void add(Turns& one);
    // Does nothing to one that isn't there.
    void remove(Turns& one);
    // The one whose turn it is, which leaves the queue; nullptr if nobody waits.
    Turns* take();

    std::size_t size() const { return size_; }
    bool empty() const { return size_ == 0; }

private:
    static constexpr std::size_t kLevels = kHighestPriority - kLowestPriority + 1;

    // One ring for each priority, the highest first. It is in the order of `due_` by itself, since all in it wait
    // equally long.
    std::array<Turns, kLevels> rings_;
    std::uint64_t now_ = 0;  // when the last turn was due
    std::size_t size_ = 0;
};

}  // namespace tavrik::core
