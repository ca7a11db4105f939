#include "tests/support/balance.h"
#include "tests/support/probe.h"
#include "tests/support/raised.h"

#include <tavrik/runtime.h>

#include <memory>
#include <random>
#include <sstream>

namespace tavrik::packed {

// One property of each type; a setter writes what it got into the journal.
struct Settings : Class<Settings> {
    static const ClassDefinition& definition();

    template <class T>
    T get() {
        return T();
    }
    template <class T>
    void set(detail::ArgumentOf<T> value) {
        std::ostringstream text;
        text << detail::type_code_text<T>.view() << ' ' << shown(value);
        test::journal().push_back(text.str());
    }

private:
    template <class T>
    static auto shown(const T& value) {
        if constexpr (std::is_same_v<T, String>) {
            return value.view();
        } else if constexpr (std::is_same_v<T, Color>) {
            return value.rgb;
        } else if constexpr (std::is_same_v<T, Currency>) {
            return value.ten_thousandths;
        } else {
            return +value;  // small integers as numbers
        }
    }
};

namespace {

template <class T>
constexpr PropertyRow row(const char* name) {
    return property<&Settings::get<T>, &Settings::set<T>>(name);
}

constexpr PropertyRow kProperties[] = {
    row<bool>("Bool"),
    row<Color>("Color"),
    row<String>("Text"),
    row<std::int8_t>("Int8"),
    row<std::int16_t>("Int16"),
    row<std::int32_t>("Int32"),
    row<std::int64_t>("Int64"),
    row<std::uint8_t>("UInt8"),
    row<std::uint16_t>("UInt16"),
    row<std::uint32_t>("UInt32"),
    row<std::uint64_t>("UInt64"),
    row<float>("Single"),
    row<double>("Double"),
    row<Currency>("Currency"),
    row<void*>("Pointer"),
    property<&Settings::get<std::int32_t>>("ReadOnly"),
};

}  // namespace

const ClassDefinition& Settings::definition() {
    static constexpr ClassDefinition kDefinition = define<Settings>({.properties = kProperties});
    return kDefinition;
}

}  // namespace tavrik::packed

namespace tavrik::test {
namespace {

using namespace std::string_literals;

// A string whose buffer ends with its last byte, so that a read behind it is seen.
class ExactString {
public:
    explicit ExactString(std::string_view bytes) : buffer_(new char[bytes.size() + 1]) {
        std::copy(bytes.begin(), bytes.end(), buffer_.get() + 1);
        record_ = {1, buffer_.get(), 0, static_cast<std::int32_t>(bytes.size()), kEncodingUtf8};
    }
    String string() { return String(&record_); }

private:
    std::unique_ptr<char[]> buffer_;
    StringRecord record_{};
};

class MassPropertySetter : public testing::Test {
protected:
    void SetUp() override { journal().clear(); }

    // What applying the bytes raises.
    Ref<Object> apply(std::string_view bytes) {
        ExactString packed(bytes);
        return raised_by([&] { RuntimeMassPropertySetter(settings_.object(), packed.string()); });
    }

    Balance balance_;
    Ref<packed::Settings> settings_ = make<packed::Settings>();
};

TEST_F(MassPropertySetter, Reads_every_type_in_its_form) {
    const std::pair<std::string, std::string> cases[] = {
        {"Bool \1", "b 1"},
        {"Bool \0"s, "b 0"},
        {"Bool \2", "b 0"},
        {"Color \1\2\xFF", "c 66303"},
        {"Text \0\0\0\0"s, "s "},
        {"Text \0\0\0\3a b"s, "s a b"},
        {"Int8 \x80", "i1 -128"},
        {"Int16 \xFF\xFE", "i2 -2"},
        {"Int32 \0\0\1\x22"s, "i4 290"},
        {"Int32 \x80\0\0\0"s, "i4 -2147483648"},
        {"Int32 \0\0\0 "s, "i4 32"},
        {"Int64 \xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFD", "i8 -3"},
        {"UInt8 \xFF", "u1 255"},
        {"UInt16 \xFF\xFE", "u2 65534"},
        {"UInt32 \x80\0\0\0"s, "u4 2147483648"},
        {"UInt64 \xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF", "u8 18446744073709551615"},
        {"Single \xBF\xC0\0\0"s, "f4 -1.5"},
        {"Double \x40\x04\0\0\0\0\0\0"s, "f8 2.5"},
        {"Currency \0\0\0\0\0\0\x27\x10"s, "e 10000"},
    };
    std::string all;
    Journal wanted;
    for (const auto& [bytes, entry] : cases) {
        all += bytes;
        wanted.push_back(entry);
    }
    EXPECT_EQ(class_of(apply(all)), "nothing");
    EXPECT_EQ(journal(), wanted);
}

TEST_F(MassPropertySetter, Takes_a_name_in_any_letter_case) {
    EXPECT_FALSE(apply("uINT8 \7INT8 \1"));
    EXPECT_EQ(journal(), (Journal{"u1 7", "i1 1"}));
}

struct Malformed {
    std::string entry;
    std::string named;
    std::string why;
};

TEST_F(MassPropertySetter, Stops_at_a_malformed_entry_and_names_it) {
    const std::string no_blank = "a name and a blank are missing";
    const std::string cut_off = "the value is cut off";
    const std::string unknown = "the object has no such property";
    const Malformed cases[] = {
        {"Int32", "Int32", no_blank},
        {" \1", " ", no_blank},
        {"Int32 \0\0\0"s, "Int32", cut_off},
        {"Double \0\0\0\0\0\0\0"s, "Double", cut_off},
        {"Bool ", "Bool", cut_off},
        {"Text \0\0\0"s, "Text", cut_off},
        {"Text \0\0\0\6right"s, "Text", cut_off},
        {"Text \x7F\xFF\xFF\xFFx", "Text", cut_off},
        {"Text \xFF\xFF\xFF\xFFx", "Text", "the length of the text is negative"},
        {"Text \x80\0\0\0"s, "Text", "the length of the text is negative"},
        {"Weight ", "Weight", unknown},
        {"Weight \0\0\0\1Int8 \2"s, "Weight", unknown},
        {"Bool\0\1Int8 \2Int8 \2"s, "Bool", unknown},
        {"Pointer \0\0\0\0\0\0\0\0Int8 \2"s, "Pointer", "a value of this type has no packed form"},
        {"ReadOnly \0\0\0\0Int8 \2"s, "ReadOnly", "the property can't be set"},
    };
    for (const auto& [entry, named, why] : cases) {
        journal().clear();
        const Ref<Object> raised = apply("Int8 \1" + entry);
        EXPECT_EQ(class_of(raised), "UnsupportedFormatException") << entry;
        const std::string message = message_of(raised);
        EXPECT_NE(message.find("entry \"" + named), std::string::npos) << message;
        EXPECT_NE(message.find("at byte 6: " + why), std::string::npos) << message;
        EXPECT_EQ(journal(), Journal{"i1 1"}) << entry;
    }
}

TEST_F(MassPropertySetter, Takes_any_bytes) {
    const std::string parts[] = {"Int8 ", "Text ", "Color ", "Weight ", " ", "\0"s, "\0\0\0\1"s, "\xFF", "x"};
    std::mt19937 random{5};
    const auto up_to = [&](std::size_t most) { return std::uniform_int_distribution<std::size_t>(0, most)(random); };
    for (int round = 0; round < 5000; ++round) {
        std::string bytes;
        for (std::size_t count = up_to(12); count > 0; --count) bytes += parts[up_to(std::size(parts) - 1)];
        const std::string raised = class_of(apply(bytes));
        ASSERT_TRUE(raised == "nothing" || raised == "UnsupportedFormatException") << raised;
    }
}

TEST_F(MassPropertySetter, Needs_an_object) {
    EXPECT_EQ(class_raised_by([] { RuntimeMassPropertySetter(nullptr, "Int8 x"_s); }), "NilObjectException");
}

}  // namespace
}  // namespace tavrik::test
