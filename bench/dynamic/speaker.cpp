#include "bench/dynamic/speaker.h"

namespace tavrik::bench {
namespace {

bool say(Speaker* self, const String& text, std::int32_t times) {
    return static_cast<std::int32_t>(text.view().size()) * times > self->mVolume;
}

constexpr OperationRow kOperations[] = {operation<&Speaker::Say, say>("Say")};
constexpr FieldRow kFields[] = {field<&Speaker::mVolume>("mVolume")};
constexpr PropertyRow kProperties[] = {property<&Speaker::Volume, &Speaker::set_Volume>("Volume")};

}  // namespace

const ClassDefinition& Speaker::definition() {
    static constexpr ClassDefinition kDefinition =
        define<Speaker>({.operations = kOperations, .fields = kFields, .properties = kProperties});
    return kDefinition;
}

}  // namespace tavrik::bench
