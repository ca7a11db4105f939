#include "runtime/signature.h"

#include "runtime/type_code.h"

#include <gtest/gtest.h>

#include <random>
#include <sstream>
#include <string>

namespace tavrik {
namespace sky {
struct Planet : Object {};
}  // namespace sky

namespace {

constexpr const char* kCodes =
    "b s v p c e i1 i2 i4 i8 u1 u2 u4 u8 f4 f8 o<Introspection.TypeInfo> ?<WindowPtr> t<_Plugins._PictureDescription> "
    "i4<_Plugins._PictureType> A1s A1v A1o<MenuItem> A2A1f8 A12b A1i4<Kind>";

constexpr const char* kNoCodes[] = {
    "",  "x",  "B",  "i",    "i3",  "f1",  "o", "o<",  "o<Object", "o<Ob<ject>", "o<Ob%ject>", "?", "t<a%>",
    "A", "A1", "As", "A-1s", "A1A", "A1x", "&", "&&b", "A1&b",     "<Object>",   "%",          " b"};

TEST(TypeCode, Is_taken_off_the_front_and_by_reference_where_that_is_allowed) {
    std::istringstream codes(kCodes);
    for (std::string code; codes >> code;) {
        for (const std::string_view behind : {"", "b", "%", "o<Object>", "x", "\xFF"}) {
            const std::string text = code + std::string(behind);
            std::string_view rest = text;
            EXPECT_EQ(take_type_code(rest, ByReference::kNotAllowed), code) << text;
            EXPECT_EQ(rest, behind) << text;
        }
        const std::string reference = "&" + code;
        std::string_view rest = reference;
        EXPECT_EQ(take_type_code(rest, ByReference::kNotAllowed), std::nullopt) << reference;
        EXPECT_EQ(take_type_code(rest, ByReference::kAllowed), reference);
    }
}

TEST(TypeCode, That_is_none_leaves_the_text_as_it_was) {
    for (const std::string_view text : kNoCodes) {
        std::string_view rest = text;
        EXPECT_EQ(take_type_code(rest, ByReference::kAllowed), std::nullopt) << text;
        EXPECT_EQ(rest, text);
    }
}

using Parts = std::vector<std::string_view>;

struct SignatureCase {
    std::string_view text;
    std::string_view result;
    Parts parameters;
};

TEST(Signature, Is_split_into_result_and_parameters) {
    const SignatureCase cases[] = {
        {"%%", "", {}},
        {"%i4%i4", "i4", {"i4"}},
        {"%v%vv", "v", {"v", "v"}},
        {"%%&o<Object>&o<Object>", "", {"&o<Object>", "&o<Object>"}},
        {"%b%&t<_Plugins._Tone>i4<_Kind>", "b", {"&t<_Plugins._Tone>", "i4<_Kind>"}},
        {"%A1s%A1A2i8f4", "A1s", {"A1A2i8", "f4"}},
        {"%%i4i4i4i4i4i4i4i4i4", "", Parts(9, "i4")},
    };
    for (const auto& [text, result, parameters] : cases) {
        const auto signature = split_signature(text);
        ASSERT_TRUE(signature) << text;
        EXPECT_EQ(signature->result, result) << text;
        EXPECT_EQ(signature->parameters, parameters) << text;
    }
}

TEST(Signature, That_is_none_is_refused) {
    for (const std::string_view text :
         {"", "%", "b", "i4%i4", "%i4", "%i4i4%", "%&b%", "%%%", "%%b%", "%x%", "%%x", "%%i4 s", "%%o<Obj", "%o<%>%"}) {
        EXPECT_FALSE(split_signature(text)) << text;
    }
}

TEST(Signature, Takes_any_bytes_and_gives_back_what_it_was_given) {
    constexpr std::string_view kLetters = "%%%bsviuf1248oA<<>>&.?tx\xFF";
    std::mt19937 random{17};
    int accepted = 0;
    for (int round = 0; round < 100'000; ++round) {
        std::string text(static_cast<std::size_t>(round % 2), '%');
        for (std::size_t length = random() % 12; length > 0; --length) text += kLetters[random() % kLetters.size()];
        // In a buffer that ends with the text, so that a read behind it is seen.
        const std::vector<char> exact(text.begin(), text.end());
        const std::string_view given(exact.data(), exact.size());
        const auto signature = split_signature(given);
        if (!signature) continue;
        ++accepted;
        std::string joined("%");
        joined.append(signature->result).append("%");
        for (const std::string_view parameter : signature->parameters) joined += parameter;
        ASSERT_EQ(joined, text);
    }
    EXPECT_GT(accepted, 500) << "too few to mean something";
}

template <class T>
std::string_view code_of() {
    return view(type_code_record<T>);
}

TEST(SignatureOfTypes, Is_what_the_compiler_knows) {
    EXPECT_EQ(code_of<const String&>(), "s");
    EXPECT_EQ(code_of<Function>(), "p");
    EXPECT_EQ(code_of<Arg<sky::Planet>>(), "o<sky.Planet>");
    EXPECT_EQ(code_of<Ref<sky::Planet>&>(), "&o<sky.Planet>");
    EXPECT_EQ(code_of<double&>(), "&f8");
    EXPECT_EQ(code_of<Ref<ArrayOf<sky::Planet>>>(), "A1o<sky.Planet>");
    EXPECT_EQ(code_of<Arg<ArrayOf<Variant>>>(), "A1v");
    EXPECT_EQ((view(signature_record<bool, const String&, std::int32_t>)), "%b%si4");
    EXPECT_EQ(view(signature_record<void>), "%%");
}

}  // namespace
}  // namespace tavrik
