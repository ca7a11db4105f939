#include "toolkit/core/ready_queue.h"

#include <algorithm>

namespace tavrik::core {
namespace {

// Divisible by every priority, so that the shares come out exactly.
constexpr std::uint64_t kStride = 2520;

std::uint64_t stride_of(std::int32_t priority) { return kStride / static_cast<std::uint64_t>(priority); }

}  // namespace

void ReadyQueue::add(Turns& one) {
    Turns& ring = rings_[static_cast<std::size_t>(kHighestPriority - one.priority)];
    one.due_ = now_ + stride_of(one.priority);
    one.previous_ = ring.previous_;
    one.next_ = &ring;
    one.previous_->next_ = &one;
    ring.previous_ = &one;
    one.is_queued_ = true;
    ++size_;
}

void ReadyQueue::remove(Turns& one) {
    if (!one.is_queued_) return;
    one.previous_->next_ = one.next_;
    one.next_->previous_ = one.previous_;
    one.previous_ = one.next_ = &one;
    one.is_queued_ = false;
    --size_;
}

Turns* ReadyQueue::take() {
    Turns* first = nullptr;
    for (Turns& ring : rings_) {
        Turns* const front = ring.next_;
        if (front != &ring && (first == nullptr || front->due_ < first->due_)) first = front;
    }
    if (first == nullptr) return nullptr;
    now_ = std::max(now_, first->due_);
    remove(*first);
    return first;
}

}  // namespace tavrik::core
