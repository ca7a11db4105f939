#include "data/dictionary.h"

#include "runtime/frame.h"

namespace tavrik {
namespace {

void construct(Dictionary* self, Arg<ArrayOf<Pair>> pairs) {
    Frame frame(self, pairs);
    Local<Pair> pair = frame.local<Pair>();
    if (!pairs) return;
    for (std::int32_t i = 0; i <= pairs->upper_bound(); ++i) {
        pair = pairs->at(i);
        self->set_Value(pair->Left(), pair->Right());
        RuntimeBackgroundTask();
    }
}

constexpr OperationRow kOperations[] = {
    operation<&Dictionary::Clear, dictionaryRemoveAll>("Clear"),
    operation<&Dictionary::HasKey, dictionaryHasKey>("HasKey"),
    operation<&Dictionary::Key, dictionaryKey>("Key"),
    operation<&Dictionary::Remove, dictionaryRemove>("Remove"),
    operation<&Dictionary::Value, dictionaryValueGetter>("Value"),
    operation<&Dictionary::Lookup, DictionaryLookup>("Lookup"),
    operation<&Dictionary::Values, dictionaryValues>("Values"),
    operation<&Dictionary::Keys, dictionaryKeys>("Keys"),
    operation<&Dictionary::set_Value, dictionaryValueSetter>("=Value"),
    operation<&Dictionary::Constructor, construct>("*Constructor"),
    operation<&Dictionary::__DependencyList, no_effect>("__DependencyList").not_public(),
};

constexpr PropertyRow kProperties[] = {
    property<&Dictionary::Count>("Count"),
    property<&Dictionary::BinCount, &Dictionary::set_BinCount>("BinCount"),
};

}  // namespace

const ClassDefinition& Dictionary::definition() {
    static constexpr ClassDefinition kDefinition = define<Dictionary>({
        .init = init_forwards_to<Dictionary, dictionaryConstructor>,
        .exit = exit_forwards_to<Dictionary, dictionaryDestructor>,
        .operations = kOperations,
        .properties = kProperties,
    });
    return kDefinition;
}

}  // namespace tavrik
