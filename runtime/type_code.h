#pragma once

#include "runtime/structure.h"

#include <tavrik/array.h>
#include <tavrik/class_record.h>
#include <tavrik/object.h>
#include <tavrik/platform_types.h>
#include <tavrik/string.h>
#include <tavrik/values.h>

#include <array>
#include <cstddef>
#include <string_view>
#include <type_traits>

// The type codes and signatures of C++ types, as the compiler knows them: `o<FileType>` for Ref<FileType>, "%b%si4" for
// bool(const String&, std::int32_t).
namespace tavrik {

// Text that is put together while compiling.
struct TextBuffer {
    std::array<char, 320> bytes{};
    std::size_t size = 0;

    constexpr void append(std::string_view text) {
        for (const char byte : text) bytes.at(size++) = byte;
    }
    constexpr std::string_view view() const { return {bytes.data(), size}; }
};

namespace detail {

template <class T>
consteval std::string_view cpp_name() {
    const std::string_view function = __PRETTY_FUNCTION__;
    const std::size_t begin = function.find("T = ") + 4;
    return function.substr(begin, function.find_first_of(";]", begin) - begin);
}

}  // namespace detail

// The name of a class in the records: its C++ name inside of namespace tavrik, with dots.
template <class T>
consteval TextBuffer class_name() {
    std::string_view rest = detail::cpp_name<T>();
    constexpr std::string_view kOuter = "tavrik::";
    if (rest.starts_with(kOuter)) rest.remove_prefix(kOuter.size());
    TextBuffer name;
    while (!rest.empty()) {
        const std::size_t end = rest.find("::");
        name.append(rest.substr(0, end));
        if (end == std::string_view::npos) break;
        name.append(".");
        rest.remove_prefix(end + 2);
    }
    return name;
}

// TypeCode<T>::append_to(text): the code of a type that a member takes or returns.
template <class T>
struct TypeCode {
    static_assert(sizeof(T) == 0, "a member of a class takes and returns only types that have a type code");
};

namespace detail {

template <LiteralText Code>
struct PlainCode {
    static constexpr void append_to(TextBuffer& text) { text.append(Code.view()); }
};

template <LiteralText Letter, class T>
struct NamedCode {
    static constexpr void append_to(TextBuffer& text) {
        text.append(Letter.view());
        text.append("<");
        text.append(class_name<T>().view());
        text.append(">");
    }
};
template <class T>
struct ReferenceCode : NamedCode<"o", T> {};
template <>
struct ReferenceCode<Variant> : PlainCode<"v"> {};
template <class T>
struct ReferenceCode<ArrayOf<T>>;

}  // namespace detail

// clang-format off
template <> struct TypeCode<void> : detail::PlainCode<""> {};
template <> struct TypeCode<bool> : detail::PlainCode<"b"> {};
template <> struct TypeCode<std::int8_t> : detail::PlainCode<"i1"> {};
template <> struct TypeCode<std::int16_t> : detail::PlainCode<"i2"> {};
template <> struct TypeCode<std::int32_t> : detail::PlainCode<"i4"> {};
template <> struct TypeCode<std::int64_t> : detail::PlainCode<"i8"> {};
template <> struct TypeCode<std::uint8_t> : detail::PlainCode<"u1"> {};
template <> struct TypeCode<std::uint16_t> : detail::PlainCode<"u2"> {};
template <> struct TypeCode<std::uint32_t> : detail::PlainCode<"u4"> {};
template <> struct TypeCode<std::uint64_t> : detail::PlainCode<"u8"> {};
template <> struct TypeCode<float> : detail::PlainCode<"f4"> {};
template <> struct TypeCode<double> : detail::PlainCode<"f8"> {};
template <> struct TypeCode<Currency> : detail::PlainCode<"e"> {};
template <> struct TypeCode<Color> : detail::PlainCode<"c"> {};
template <> struct TypeCode<String> : detail::PlainCode<"s"> {};
template <> struct TypeCode<const String&> : detail::PlainCode<"s"> {};
template <> struct TypeCode<void*> : detail::PlainCode<"p"> {};
template <> struct TypeCode<Function> : detail::PlainCode<"p"> {};
template <> struct TypeCode<ClassRecord*> : detail::PlainCode<"p"> {};
template <> struct TypeCode<MethodRecord*> : detail::PlainCode<"p"> {};
template <> struct TypeCode<PropertyRecord*> : detail::PlainCode<"p"> {};
template <> struct TypeCode<AttributeEntry*> : detail::PlainCode<"p"> {};
template <> struct TypeCode<CString> : detail::PlainCode<"?<CString>"> {};
template <> struct TypeCode<PString> : detail::PlainCode<"?<PString>"> {};
template <> struct TypeCode<WString> : detail::PlainCode<"?<WString>"> {};
template <> struct TypeCode<CFStringRef> : detail::PlainCode<"?<CFStringRef>"> {};
template <> struct TypeCode<WindowPtr> : detail::PlainCode<"?<WindowPtr>"> {};
template <> struct TypeCode<OSType> : detail::PlainCode<"?<OSType>"> {};
template <class T> struct TypeCode<Ref<T>> : detail::ReferenceCode<T> {};
template <IsStructure T> struct TypeCode<T> : detail::NamedCode<"t", T> {};
template <class T> requires std::is_enum_v<T> struct TypeCode<T> : detail::NamedCode<"i4", T> {};
template <class T> struct TypeCode<Arg<T>> : detail::ReferenceCode<T> {};
// clang-format on

// By reference.
template <class T>
requires(!std::is_const_v<T>) struct TypeCode<T&> {
    static constexpr void append_to(TextBuffer& text) {
        text.append("&");
        TypeCode<T>::append_to(text);
    }
};

namespace detail {

template <class T>
struct ReferenceCode<ArrayOf<T>> {
    static constexpr void append_to(TextBuffer& text) {
        text.append("A1");
        if constexpr (ElementOf<T>::kWidth == kReferenceWidth) {
            ReferenceCode<T>::append_to(text);
        } else {
            TypeCode<T>::append_to(text);
        }
    }
};

template <class T>
consteval TextBuffer type_code() {
    TextBuffer text;
    TypeCode<T>::append_to(text);
    return text;
}

template <class R, class... A>
consteval TextBuffer signature() {
    TextBuffer text;
    text.append("%");
    TypeCode<R>::append_to(text);
    text.append("%");
    (TypeCode<A>::append_to(text), ...);
    return text;
}

template <const TextBuffer& Text>
inline constinit StaticString<Text.size> static_text{Text.view()};

template <class T>
inline constexpr TextBuffer type_code_text = type_code<T>();
template <class R, class... A>
inline constexpr TextBuffer signature_text = signature<R, A...>();
template <class T>
inline constexpr TextBuffer class_name_text = class_name<T>();

}  // namespace detail

// The static strings that stand in records: one for each list of types.
template <class T>
constexpr StringRecord* type_code_record = &detail::static_text<detail::type_code_text<T>>.record;
template <class R, class... A>
constexpr StringRecord* signature_record = &detail::static_text<detail::signature_text<R, A...>>.record;
template <class T>
constexpr StringRecord* class_name_record = &detail::static_text<detail::class_name_text<T>>.record;

}  // namespace tavrik
