#include "introspection/class_info.h"

#include "data/dictionary.h"
#include "introspection/attribute_info.h"
#include "introspection/constructor_info.h"
#include "introspection/method_info.h"
#include "introspection/property_info.h"
#include "introspection/type_codes.h"
#include "runtime/frame.h"

#include <vector>

namespace tavrik::Introspection {
namespace {

// Keeps the living class descriptions in a list: from the maps not all of them can be reached, since a name leads to
// the one that was built last.
class Listing final : public NativeState {
public:
    explicit Listing(ClassInfo* info) : info_(info), next_(first_), place_(&first_) {
        if (next_ != nullptr) next_->place_ = &next_;
        first_ = this;
    }
    ~Listing() override {
        *place_ = next_;
        if (next_ != nullptr) next_->place_ = place_;
    }

    static ClassInfo* first() { return first_ == nullptr ? nullptr : first_->info_; }

private:
    static inline Listing* first_ = nullptr;

    ClassInfo* info_;
    Listing* next_;
    Listing** place_;
};

// What the class map holds, by class number, so that asking again is one step. Borrowed: it is filled and emptied along
// with the map.
constinit std::vector<ClassInfo*> found_before;

void remember(std::int32_t number, ClassInfo* info) {
    const auto place = static_cast<std::size_t>(number);
    if (found_before.size() <= place) found_before.resize(place + 1);
    found_before[place] = info;
}

void add_properties(ClassInfo* self, const ClassRecord& record) {
    const auto properties = Ref<ArrayOf<PropertyInfo>>(self->mPropertyList);
    for (std::int32_t i = 0; i < record.property_count; ++i) {
        const Ref<PropertyInfo> property = make<PropertyInfoImp>();
        property->Constructor(record.properties + i, self->mClassRef);
        if (!self->IsHidden(property->GetAttributes())) properties->append(property);
        RuntimeBackgroundTask();
    }
}

template <class Imp, class T>
void add_method(ClassInfo* self, Arg<ArrayOf<T>> list, MethodRecord* record) {
    const Ref<T> method = make<Imp>();
    method->Constructor(self->mClassRef, record);
    if (!self->IsHidden(method->GetAttributes())) list->append(method);
}

void add_methods(ClassInfo* self, const ClassRecord& record) {
    for (std::int32_t i = 0; i < record.method_count; ++i) {
        MethodRecord* const method = record.methods + i;
        if (view(method->name) == "Constructor") {
            add_method<ConstructorInfoImp, ConstructorInfo>(self, self->mConstructorList, method);
        } else {
            add_method<MethodInfoImp, MethodInfo>(self, self->mMethodList, method);
        }
        RuntimeBackgroundTask();
    }
}

void add_implicit_constructor(ClassInfo* self) {
    if (!self->mIsClassTypeValue || self->mConstructorList->upper_bound() >= 0) return;
    const Ref<ConstructorInfo> implicit = make<ConstructorInfoImp>();
    implicit->Constructor(self->mClassRef, nullptr);
    self->mConstructorList->append(implicit);
}

// The chain of parents isn't shared with the descriptions in the class map.
Ref<TypeInfo> describe_parent(ClassInfo* self, ClassRecord* parent) {
    if (parent == nullptr) return nullptr;
    const Ref<ClassInfo> base = make<ClassInfo>();
    base->Constructor(parent);
    if (self->IsHidden(base->GetAttributes())) return nullptr;
    return base;
}

Ref<ClassInfo> find_or_build(ClassRecord* ref, std::int32_t number) {
    const Frame frame;
    if (!ClassInfo::sClassRefMap) ClassInfo::sClassRefMap = new_dictionary();
    const Ref<Variant> key = Int32ToVariant(number);
    if (const Ref<Variant> known = ClassInfo::sClassRefMap->Lookup(key, nullptr)) return check_cast<ClassInfo>(known);

    Ref<ClassInfo> made = make<ClassInfo>();
    made->Constructor(ref);
    if (made->IsHidden(made->GetAttributes())) return nullptr;
    ClassInfo::sClassRefMap->set_Value(key, made);
    remember(number, made.get());
    return made;
}

Ref<Dictionary> list_classes() {
    Ref<Dictionary> numbers = new_dictionary();
    for (const ClassRecord* record = RuntimeGetClassList(); record != nullptr; record = record->next) {
        numbers->set_Value(StringToVariant(String(record->name)), Int32ToVariant(RuntimeClassNumber(record)));
        RuntimeBackgroundTask();
    }
    return numbers;
}

}  // namespace

void ClassInfo::Constructor(ClassRecord* ref) {
    const Frame frame(this);
    mClassRef = ref;
    if (ref == nullptr) {
        mNameValue = "Object"_s;
        return;
    }
    if (native == nullptr) native = new Listing(this);
    // Entered before any member is read: a property whose type leads back here finds this object.
    take_full_name(String(ref->name));
    mIsInterfaceTypeValue = ref->is_interface != 0;
    mIsClassTypeValue = !mIsInterfaceTypeValue;
    add_properties(this, *ref);
    mMethodList->resize(-1);
    mConstructorList->resize(-1);
    add_methods(this, *ref);
    add_implicit_constructor(this);
    mBasetype = describe_parent(this, ref->parent);
    read_attributes(mAttributeData, ref->attributes, ref->attribute_count);
}

bool ClassInfo::IsHidden(Arg<ArrayOf<AttributeInfo>> attributes) { return has_hidden(attributes); }

Ref<ClassInfo> ClassInfo::Lookup(ClassRecord* ref) {
    const std::int32_t number = RuntimeClassNumber(ref);
    const auto place = static_cast<std::size_t>(number);
    if (place < found_before.size() && found_before[place] != nullptr) return found_before[place];
    return find_or_build(ref, number);
}

Ref<ClassInfo> ClassInfo::Lookup(const String& name) {
    const Frame frame(name);
    if (!sClassFQNToRefMap) sClassFQNToRefMap = list_classes();
    const Ref<Variant> number = sClassFQNToRefMap->Lookup(StringToVariant(name), Int32ToVariant(0));
    return Lookup(RuntimeClassWithNumber(VariantToInt32(number.object())));
}

void ClassInfo::sClassRefMap__Exit() {
    found_before.clear();
    sClassRefMap = nullptr;
}
void ClassInfo::sClassFQNToRefMap__Exit() { sClassFQNToRefMap = nullptr; }

void cut_cycles() {
    while (ClassInfo* const first = Listing::first()) {
        const Ref<ClassInfo> info(first);
        delete std::exchange(info->native, nullptr);
        info->mPropertyList->resize(-1);
        info->mMethodList->resize(-1);
        info->mConstructorList->resize(-1);
    }
}

namespace {

void construct(ClassInfo* self, ClassRecord* ref) { self->Constructor(ref); }
bool is_hidden(ClassInfo* self, Arg<ArrayOf<AttributeInfo>> attributes) { return self->IsHidden(attributes); }

// By the records, since a class may have several descriptions.
bool is_subclass_of(ClassInfo* self, Arg<TypeInfo> other) {
    const Frame frame(self, other);
    if (!is_a<ClassInfo>(other)) return false;
    const ClassRecord* const sought = static_cast<ClassInfo*>(other.get())->mClassRef;
    for (const ClassRecord* record = self->mClassRef; record != nullptr; record = record->parent) {
        if (record == sought) return true;
        RuntimeBackgroundTask();
    }
    return false;
}

constexpr OperationRow kOperations[] = {
    method<&ClassInfo::Constructor, construct>("Constructor").not_public(),
    overrides<ClassInfo, &TypeInfo::IsSubclassOf, is_subclass_of>("IsSubclassOf"),
    shared<static_cast<Ref<ClassInfo> (*)(ClassRecord*)>(&ClassInfo::Lookup)>("Lookup"),
    shared<static_cast<Ref<ClassInfo> (*)(const String&)>(&ClassInfo::Lookup)>("Lookup"),
    method<&ClassInfo::IsHidden, is_hidden>("IsHidden").not_public(),
};

constexpr FieldRow kFields[] = {
    shared_field<&ClassInfo::sClassRefMap>("sClassRefMap"),
    shared_field<&ClassInfo::sClassFQNToRefMap>("sClassFQNToRefMap"),
    field<&ClassInfo::mClassRef>("mClassRef"),
};

}  // namespace

const ClassDefinition& ClassInfo::definition() {
    static constexpr ClassDefinition kDefinition = define<ClassInfo>({
        .operations = kOperations,
        .fields = kFields,
    });
    return kDefinition;
}

}  // namespace tavrik::Introspection
