#include "toolkit/core/variant.h"

#include "toolkit/core/allocator.h"
#include "toolkit/core/platform_types.h"
#include "toolkit/core/reflection.h"
#include "toolkit/core/unicode.h"

#include <tavrik/exception.h>

#include <new>
#include <string>
#include <utility>

namespace tavrik {
namespace {

const ValueObject& boxed(const Object* variant) { return *static_cast<const ValueObject*>(variant); }

[[gnu::noinline]] ClassRecord* find_value_class(ValueKind kind) {
    ClassRecord* const record = core::need_class(core::value_class_name(kind));
    core::ClassState& state = core::state_of(record);
    if (!state.prepared) core::prepare(record, state);
    ClassRecord* const found = runtime_value_classes[static_cast<std::size_t>(kind)];
    if (found == nullptr) {
        RuntimeDeclarationError(view(record->name).data(), "has a parent, or other room than a value object", "");
    }
    return found;
}

// As RuntimeNewObject; but a value class has no parent, and nothing to do at an object's start.
ValueObject* new_value(ValueKind kind) {
    ClassRecord* record = runtime_value_classes[static_cast<std::size_t>(kind)];
    if (record == nullptr) [[unlikely]] {
        record = find_value_class(kind);
    }
    auto* const value = static_cast<ValueObject*>(core::allocate_block(sizeof(ValueObject)));
    value->vtable = record->vtable;
    value->events = record->events;
    value->record = record;
    value->count = 1;
    value->native = nullptr;
    ++core::state_of(record).live;
    return value;
}

template <ValueKind Kind, class T>
Ref<Variant> box(T content) {
    ValueObject* const value = new_value(Kind);
    value->*core::held<Kind> = content;
    return Ref<Variant>::adopt(value);
}

// What a value object keeps besides its one word.
struct KeptText final : NativeState {
    explicit KeptText(String kept) : text(std::move(kept)) {}
    String text;
};
struct KeptWString final : NativeState {
    explicit KeptWString(WString kept) : text(kept) { core::lock(text); }
    ~KeptWString() override { UnlockWString(text); }
    WString text;
};

template <class Kept, class T>
void keep(ValueObject& value, T text) {
    value.native = new (std::nothrow) Kept(std::move(text));
    if (value.native == nullptr) RuntimeRaise("OutOfMemoryException", "no memory for the text of a variant");
}

void release_string(Object* object) { unlock(std::exchange(static_cast<ValueObject*>(object)->string, nullptr)); }

}  // namespace

namespace core {

std::string_view kind_name(ValueKind kind) noexcept {
    constexpr std::string_view kPrefix = "_Variant";
    return kind == ValueKind::kNone ? std::string_view{} : value_class_name(kind).substr(kPrefix.size());
}

String text_of(const Object* variant) {
    const ValueKind kind = kind_of(variant);
    if (kind == ValueKind::kString) return String(boxed(variant).string);
    if (kind == ValueKind::kWString) return String(utf8_of(view(boxed(variant).w_string)));
    return native<KeptText>(variant)->text;
}

String structure_name(const Object* variant) { return native<KeptText>(variant)->text; }

}  // namespace core

Ref<Variant> BooleanToVariant(bool value) { return box<ValueKind::kBoolean>(value); }
Ref<Variant> Int32ToVariant(std::int32_t value) { return box<ValueKind::kInt32>(value); }
Ref<Variant> UInt32ToVariant(std::uint32_t value) { return box<ValueKind::kUInt32>(value); }
Ref<Variant> Int64ToVariant(std::int64_t value) { return box<ValueKind::kInt64>(value); }
Ref<Variant> UInt64ToVariant(std::uint64_t value) { return box<ValueKind::kUInt64>(value); }
Ref<Variant> SingleToVariant(float value) { return box<ValueKind::kSingle>(value); }
Ref<Variant> DoubleToVariant(double value) { return box<ValueKind::kDouble>(value); }
Ref<Variant> CurrencyToVariant(Currency value) { return box<ValueKind::kCurrency>(value); }
Ref<Variant> ColorToVariant(Color value) { return box<ValueKind::kColor>(value); }
Ref<Variant> PtrToVariant(void* value) { return box<ValueKind::kPtr>(value); }
Ref<Variant> OSTypeToVariant(OSType value) { return box<ValueKind::kOSType>(value); }
Ref<Variant> WindowPtrToVariant(WindowPtr value) { return box<ValueKind::kWindowPtr>(value); }

Ref<Variant> StringToVariant(const String& value) {
    const auto variant = box<ValueKind::kString>(value.record());
    lock(value.record());
    return variant;
}

Ref<Variant> CStringToVariant(CString value) {
    String text(core::view(value));
    const auto variant = box<ValueKind::kCString>(CString{core::plain_text(text.record()) + 1});
    keep<KeptText>(*static_cast<ValueObject*>(variant.object()), std::move(text));
    return variant;
}

Ref<Variant> PStringToVariant(PString value) {
    String text(core::view(value));
    const PString kept{reinterpret_cast<const unsigned char*>(core::plain_text(text.record()))};
    const auto variant = box<ValueKind::kPString>(kept);
    keep<KeptText>(*static_cast<ValueObject*>(variant.object()), std::move(text));
    return variant;
}

Ref<Variant> WStringToVariant(WString value) {
    const auto variant = box<ValueKind::kWString>(value);
    keep<KeptWString>(*static_cast<ValueObject*>(variant.object()), value);
    return variant;
}

Ref<Variant> CFStringRefToVariant(CFStringRef value) {
    const auto variant = box<ValueKind::kCFStringRef>(value);
    keep<KeptText>(*static_cast<ValueObject*>(variant.object()), String(core::string_of(value)));
    return variant;
}

Ref<Variant> StructureToVariant(const String& name, const String& bytes) {
    const auto variant = box<ValueKind::kStructure>(bytes.record());
    lock(bytes.record());
    keep<KeptText>(*static_cast<ValueObject*>(variant.object()), name);
    return variant;
}

// Of the two functions of an end the first lets the text go, and the other finds it gone.
void StringObjectDestructor(Object* object) { release_string(object); }
void StringObjectFinalizer(Object* object) { release_string(object); }
void StructureObjectDestructor(Object* object) { release_string(object); }
void StructureObjectFinalizer(Object* object) { release_string(object); }

}  // namespace tavrik
