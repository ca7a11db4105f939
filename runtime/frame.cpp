#include "runtime/frame.h"

#include <exception>
#include <utility>

namespace tavrik {

Frame::Place& Frame::Places::one_more() {
    if (!rest_) rest_ = std::make_unique<std::deque<Place>>();
    return rest_->emplace_back();
}

void Frame::Places::release() noexcept {
    const std::size_t count = std::exchange(count_, 0);
    for (std::size_t i = 0; i < count; ++i) {
        const Place place = i < first_.size() ? first_[i] : (*rest_)[i - first_.size()];
        unlock(place.object);
        unlock(place.string);
    }
}

void Frame::raise_what_releases_left() {
    // An exception that is on its way already goes first; the other waits for the end of the event.
    if (std::uncaught_exceptions() > 0) return;
    RuntimeReraiseException(RuntimeTakeReleaseException().object());
}

}  // namespace tavrik
