// Packed property strings: entries of a name, a blank, and a value whose form follows from the property's type code.
#include "toolkit/core/reflection.h"

#include <tavrik/runtime.h>
#include <tavrik/values.h>

#include <bit>
#include <cstdint>
#include <optional>
#include <string>

namespace tavrik {
namespace {

class PackedReader {
public:
    explicit PackedReader(std::string_view bytes) : bytes_(bytes) {}

    bool at_end() const { return at_ == bytes_.size(); }
    std::size_t position() const { return at_; }
    std::string_view rest() const { return bytes_.substr(at_); }

    std::optional<std::string_view> take(std::size_t count) {
        if (count > bytes_.size() - at_) return std::nullopt;
        const std::string_view taken = bytes_.substr(at_, count);
        at_ += count;
        return taken;
    }

    // The text up to the blank, which is stepped over.
    std::optional<std::string_view> take_name() {
        const std::size_t blank = bytes_.find(' ', at_);
        if (blank == std::string_view::npos || blank == at_) return std::nullopt;
        const std::string_view name = bytes_.substr(at_, blank - at_);
        at_ = blank + 1;
        return name;
    }

private:
    std::string_view bytes_;
    std::size_t at_ = 0;
};

template <class Unsigned>
Unsigned big_endian(std::string_view bytes) {
    Unsigned value = 0;
    for (const char byte : bytes) {
        value = static_cast<Unsigned>(static_cast<std::uint64_t>(value) << 8 | static_cast<unsigned char>(byte));
    }
    return value;
}

// Whether bytes behind an unknown name could be just one value: then that name is the last of its string.
bool is_one_value(std::string_view bytes) {
    switch (bytes.size()) {
        case 1:
        case 2:
        case 3:
        case 4:
        case 8:
            return true;
        default:
            break;
    }
    return bytes.size() > 4 && big_endian<std::uint32_t>(bytes.substr(0, 4)) == bytes.size() - 4;
}

class PackedString {
public:
    PackedString(Object* object, std::string_view bytes) : object_(object), reader_(bytes) {}

    void apply() {
        while (!reader_.at_end()) {
            entry_at_ = reader_.position();
            const std::string_view whole = reader_.rest();
            const auto name = reader_.take_name();
            if (!name) fail(whole, "a name and a blank are missing");
            const PropertyRecord* const property = core::find_property_any_case(object_->record, *name);
            if (property == nullptr) {
                if (is_one_value(reader_.rest())) return;
                fail(*name, "the object has no such property");
            }
            apply(*property);
        }
    }

private:
    void apply(const PropertyRecord& property) {
        const std::string_view code = view(property.type_code);
        if (property.setter == nullptr) fail(view(property.name), "the property can't be set");
        if (code == "b") return set<std::uint8_t>(property, [](std::uint8_t byte) { return (byte & 1U) != 0; });
        if (code == "c") return set_color(property);
        if (code == "s") return set_text(property);
        if (code == "i1") return set<std::uint8_t>(property, as<std::int8_t>);
        if (code == "i2") return set<std::uint16_t>(property, as<std::int16_t>);
        if (code == "i4") return set<std::uint32_t>(property, as<std::int32_t>);
        if (code == "i8") return set<std::uint64_t>(property, as<std::int64_t>);
        if (code == "u1") return set<std::uint8_t>(property, as<std::uint8_t>);
        if (code == "u2") return set<std::uint16_t>(property, as<std::uint16_t>);
        if (code == "u4") return set<std::uint32_t>(property, as<std::uint32_t>);
        if (code == "u8") return set<std::uint64_t>(property, as<std::uint64_t>);
        if (code == "f4") return set<std::uint32_t>(property, as<float>);
        if (code == "f8") return set<std::uint64_t>(property, as<double>);
        if (code == "e") return set<std::uint64_t>(property, as<Currency>);
        fail(view(property.name), "a value of this type has no packed form");
    }

    template <class Value>
    static constexpr auto as = [](auto bits) { return std::bit_cast<Value>(bits); };

    template <class Bits, class Convert>
    void set(const PropertyRecord& property, Convert convert) {
        call(property, convert(big_endian<Bits>(value(property, sizeof(Bits)))));
    }

    void set_color(const PropertyRecord& property) {
        call(property, Color{big_endian<std::uint32_t>(value(property, 3))});
    }

    void set_text(const PropertyRecord& property) {
        const auto length = big_endian<std::uint32_t>(value(property, 4));
        if (length > INT32_MAX) fail(view(property.name), "the length of the text is negative");
        call<const String&>(property, String(value(property, length)));
    }

    std::string_view value(const PropertyRecord& property, std::size_t size) {
        const auto bytes = reader_.take(size);
        if (!bytes) fail(view(property.name), "the value is cut off");
        return *bytes;
    }

    template <class Value>
    void call(const PropertyRecord& property, Value converted) {
        reinterpret_cast<void (*)(Object*, std::int32_t, Value)>(property.setter)(object_, property.parameter,
                                                                                  converted);
    }

    [[noreturn]] void fail(std::string_view entry, std::string_view why) const {
        constexpr std::size_t kShown = 40;
        std::string message = "property string, entry \"";
        message.append(entry.substr(0, kShown)).append("\" at byte ").append(std::to_string(entry_at_));
        message.append(": ").append(why);
        RuntimeRaise("UnsupportedFormatException", message);
    }

    Object* object_;
    PackedReader reader_;
    std::size_t entry_at_ = 0;
};

}  // namespace

void RuntimeMassPropertySetter(Object* object, const String& packed) {
    if (object == nullptr) RaiseNilObjectException();
    const Ref<Object> kept(object);
    const String bytes = packed;  // NOLINT(performance-unnecessary-copy-initialization): held while setters run
    PackedString(object, bytes.view()).apply();
}

}  // namespace tavrik
