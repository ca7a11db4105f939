// The same rows, as they should be.
#include "tests/runtime/must-not-compile/bell.h"

namespace tavrik::wrong {

bool play(Bell*, std::int32_t) { return true; }
constexpr OperationRow kOperations[] = {
    operation<&Bell::Ring, ring>("Ring"),
    overrides<Bell, &Instrument::Play, play>("Play"),
};
constexpr PropertyRow kProperties[] = {property<&Bell::Tone, &Bell::set_Tone>("Tone")};
constexpr HandlerRow kHandlers[] = {handles<&Bell::Ring>("Played", Instrument::Events::Played)};

const ClassDefinition& Bell::definition() {
    static constexpr ClassDefinition kDefinition =
        define<Bell>({.operations = kOperations, .properties = kProperties, .handlers = kHandlers});
    return kDefinition;
}

}  // namespace tavrik::wrong
