#include "bench/object_runtime/counter.h"

namespace tavrik::bench {

void Counter::Announce(std::int32_t number) { Events::Announced.raise(this, number); }

void take_announced(Object* counter, std::int32_t number) { static_cast<Counter*>(counter)->mCount = number; }

namespace {

std::int32_t advance(Counter* self, std::int32_t by) { return self->mCount += by; }
void announce(Counter* self, std::int32_t number) { self->Announce(number); }

constexpr OperationRow kOperations[] = {
    operation<&Counter::Advance, advance>("Advance"),
    method<&Counter::Announce, announce>("Announce"),
};

constexpr FieldRow kFields[] = {
    field<&Counter::mCount>("mCount"),
};

constexpr EventRow kEvents[] = {
    event("Announced", Counter::Events::Announced),
};

}  // namespace

const ClassDefinition& Counter::definition() {
    static constexpr ClassDefinition kDefinition = define<Counter>({
        .operations = kOperations,
        .fields = kFields,
        .events = kEvents,
    });
    return kDefinition;
}

}  // namespace tavrik::bench
