#include "toolkit/core/class_state.h"

#include <tavrik/runtime.h>

#include <algorithm>
#include <span>
#include <string>

namespace tavrik {
namespace {

// Where a class states an event's name again, the entry of its own is the one that is free for a handler.
std::int32_t last_event(const ClassRecord& record, std::string_view name) {
    for (std::int32_t i = record.event_count; i-- > 0;) {
        if (view(record.events[i].name) == name) return i;
    }
    std::string message(view(record.name));
    message.append(" has no event ").append(name);
    RuntimeRaise("UnsupportedFormatException", message);
}

// An object shares the event table of its class until it gets a handler of its own.
void unshare_events(Object* object) {
    const ClassRecord& record = *object->record;
    if (object->events != record.events) return;
    auto* const own = new EventRecord[static_cast<std::size_t>(record.event_count)];
    std::copy_n(record.events, record.event_count, own);
    object->events = own;
}

void delegate_exit(Object* object) { unlock(static_cast<Delegate*>(object)->target); }

ClassRecord* delegate_class() {
    static ClassRecord* const record = [] {
        ClassRecord* const made = core::new_hidden_class(nullptr, "Delegate", sizeof(Delegate));
        made->exit = delegate_exit;
        return made;
    }();
    return record;
}

}  // namespace

void RuntimeInstallInstanceEventHandler(Object* object, const String& event, Function handler) {
    if (object == nullptr) RaiseNilObjectException();
    const std::int32_t index = last_event(*object->record, event.view());
    unshare_events(object);
    object->events[index].handler = handler != nullptr ? handler : object->record->events[index].handler;
}

Ref<Delegate> RuntimeCreateDelegate(Function invoker, Function function, Object* target, const String&) {
    if (function == nullptr) return nullptr;
    auto delegate = static_ref<Delegate>(RuntimeNewObject(delegate_class()));
    delegate->invoker = invoker;
    delegate->function = function;
    delegate->target = target;
    lock(target);
    return delegate;
}

}  // namespace tavrik
