#include "data/dictionary.h"

namespace tavrik {
namespace {

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
    operation<&Dictionary::__DependencyList, no_effect>("__DependencyList").not_public(),
};

constexpr PropertyRow kProperties[] = {
    property<&Dictionary::Count>("Count"),
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
