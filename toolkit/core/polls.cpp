#include "toolkit/core/polls.h"

#include "toolkit/core/event_scope.h"
#include "toolkit/core/reflection.h"
#include "toolkit/core/scheduler.h"
#include "toolkit/core/wake_up.h"

#include <algorithm>
#include <utility>

namespace tavrik::core {
namespace {

constexpr std::chrono::milliseconds kBetweenPolls{10};

using Poll = void (*)(Object*);

// The innermost class's own, or nullptr.
Poll poll_of(const Object* object) {
    const ClassRecord* const record = object->record;
    for (std::int32_t i = record->method_count; i-- > 0;) {
        const MethodRecord& method = record->methods[i];
        if (view(method.name) == "_Poll" && view(method.signature) == "%%")
            return reinterpret_cast<Poll>(method.function);
    }
    return nullptr;
}

}  // namespace

std::vector<Polls::Polled>::iterator Polls::find(const Object* object) {
    return std::ranges::find_if(polled_, [object](const Polled& each) { return each.object.object() == object; });
}

void Polls::add(Object* object) {
    if (find(object) != polled_.end()) return;
    polled_.push_back({Ref<Object>(object), poll_of(object)});
    if (std::ranges::count_if(polled_, &Polled::poll) == 1) arrange_next();
}

void Polls::remove(Object* object) {
    const auto found = find(object);
    if (found == polled_.end()) return;
    const Ref<Object> removed = std::move(found->object);
    polled_.erase(found);
    if (std::ranges::none_of(polled_, &Polled::poll)) arrange_next();
}

void Polls::clear() {
    const std::vector<Polled> removed = std::exchange(polled_, {});
    arrange_next();
}

void Polls::run() {
    // While one shows a dialog, none is asked again.
    if (std::exchange(is_running_, true)) return;
    const std::vector<Polled> all = polled_;
    for (const Polled& each : all) {
        if (each.poll == nullptr || find(each.object.object()) == polled_.end()) continue;
        deliver([&each] { each.poll(each.object.object()); });
        --EventScope::total;  // who waits for an event goes on waiting
    }
    is_running_ = false;
    arrange_next();
}

void Polls::arrange_next() const {
    const bool any = !is_running_ && std::ranges::any_of(polled_, &Polled::poll);
    wake_up().at(WakeUp::kPolls, any ? scheduler().now() + kBetweenPolls : Time::max());
}

Polls& polls() {
    static auto* const the_polls = new Polls;  // outlives whatever might still be released at the end
    return *the_polls;
}

}  // namespace tavrik::core
