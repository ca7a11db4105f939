#include "introspection/array_info.h"

#include "data/dictionary.h"
#include "introspection/type_codes.h"
#include "runtime/frame.h"

#include <string>

namespace tavrik::Introspection {

void ArrayInfo::Constructor(std::int32_t rank, Arg<TypeInfo> element) {
    const Frame frame(this, element);
    mArrayRank = rank;
    mElementType = element;
    mIsArrayValue = true;
    mHasElementTypeValue = true;
    const String suffix = RankSuffix(rank);
    mNameValue = RuntimeAddString(element->Name(), suffix);
    mFullyQualifiedName = RuntimeAddString(element->FullName(), suffix);
    if (!mArrayMap) mArrayMap = new_dictionary();
    mArrayMap->set_Value(StringToVariant(FullName()), this);
}

Ref<TypeInfo> ArrayInfo::Lookup(std::int32_t rank, Arg<TypeInfo> element) {
    const Frame frame(element);
    if (mArrayMap) {
        const String name = RuntimeAddString(element->FullName(), RankSuffix(rank));
        const Ref<Variant> known = mArrayMap->Lookup(StringToVariant(name), nullptr);
        if (known) return check_cast<TypeInfo>(known);
    }
    const Ref<ArrayInfo> made = make<ArrayInfo>();
    made->Constructor(rank, element);
    return made;
}

String ArrayInfo::RankSuffix(std::int32_t rank) {
    std::string suffix(static_cast<std::size_t>(std::max(rank, 1)) + 1, ',');
    suffix.front() = '(';
    suffix.back() = ')';
    return String(suffix);
}

void ArrayInfo::mArrayMap__Exit() { mArrayMap = nullptr; }

namespace {

void construct(ArrayInfo* self, std::int32_t rank, Arg<TypeInfo> element) { self->Constructor(rank, element); }
std::int32_t get_array_rank(ArrayInfo* self) { return self->mArrayRank; }
Ref<TypeInfo> get_element_type(ArrayInfo* self) { return self->mElementType; }

constexpr OperationRow kOperations[] = {
    overrides<ArrayInfo, &TypeInfo::GetArrayRank, get_array_rank>("GetArrayRank"),
    overrides<ArrayInfo, &TypeInfo::GetElementType, get_element_type>("GetElementType"),
    method<&ArrayInfo::Constructor, construct>("Constructor").not_public(),
    shared<&ArrayInfo::Lookup>("Lookup"),
    shared<&ArrayInfo::RankSuffix>("RankSuffix").not_public(),
};

constexpr FieldRow kFields[] = {
    field<&ArrayInfo::mElementType>("mElementType"),
    field<&ArrayInfo::mArrayRank>("mArrayRank"),
    shared_field<&ArrayInfo::mArrayMap>("mArrayMap"),
};

}  // namespace

const ClassDefinition& ArrayInfo::definition() {
    static constexpr ClassDefinition kDefinition = define<ArrayInfo>({
        .operations = kOperations,
        .fields = kFields,
    });
    return kDefinition;
}

}  // namespace tavrik::Introspection
