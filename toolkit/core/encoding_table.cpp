#include "toolkit/core/encoding_table.h"

#include <tavrik/text_encoding.h>

#include <iconv.h>

#include <algorithm>
#include <deque>
#include <string>
#include <utility>

namespace tavrik::core {
namespace {

constexpr std::uint32_t unicode(std::uint32_t format) { return encoding_code(kUnicodeBase, 0, format); }

// The numbers are those of a well-known registry, which has a range for each family.
constexpr EncodingRow kEncodings[] = {
    {unicode(2), "UTF-8", "", Coding::kUtf8},
    {unicode(0), "UTF-16", "UCS-2 UNICODE", Coding::kUtf16},
    {unicode(4), "UTF-16BE", "UCS-2BE", Coding::kUtf16Big},
    {unicode(5), "UTF-16LE", "UCS-2LE", Coding::kUtf16Little},
    {unicode(3), "UTF-32", "UCS-4", Coding::kUtf32},
    {unicode(6), "UTF-32BE", "UCS-4BE", Coding::kUtf32Big},
    {unicode(7), "UTF-32LE", "UCS-4LE", Coding::kUtf32Little},
    {unicode(1), "UTF-7"},
    {kEncodingAscii, "US-ASCII", "ASCII ANSI_X3.4-1968 ISO646-US", Coding::kAscii},

    {0x0000, "macintosh", "MACROMAN"},
    {0x0001, "x-mac-japanese"},
    {0x0004, "x-mac-arabic", "MACARABIC"},
    {0x0005, "x-mac-hebrew", "MACHEBREW"},
    {0x0006, "x-mac-greek", "MACGREEK"},
    {0x0007, "x-mac-cyrillic", "MACCYRILLIC"},
    {0x0015, "x-mac-thai", "MACTHAI"},
    {0x001D, "x-mac-ce", "MAC-CENTRALEUROPE MACCENTRALEUROPE"},
    {0x0023, "x-mac-turkish", "MACTURKISH"},
    {0x0024, "x-mac-croatian", "MACCROATIAN"},
    {0x0025, "x-mac-icelandic", "MACIS MACICELAND"},
    {0x0026, "x-mac-romanian", "MACROMANIA"},
    {0x0098, "x-mac-ukrainian", "MACUKRAINIAN MACUKRAINE"},

    {0x0201, "ISO-8859-1", "LATIN1 CP819", Coding::kLatin1},
    {0x0202, "ISO-8859-2", "LATIN2"},
    {0x0203, "ISO-8859-3", "LATIN3"},
    {0x0204, "ISO-8859-4", "LATIN4"},
    {0x0205, "ISO-8859-5"},
    {0x0206, "ISO-8859-6"},
    {0x0207, "ISO-8859-7"},
    {0x0208, "ISO-8859-8"},
    {0x0209, "ISO-8859-9", "LATIN5"},
    {0x020A, "ISO-8859-10", "LATIN6"},
    {0x020B, "ISO-8859-11"},
    {0x020D, "ISO-8859-13"},
    {0x020E, "ISO-8859-14"},
    {0x020F, "ISO-8859-15", "LATIN-9"},
    {0x0210, "ISO-8859-16"},

    {0x0400, "IBM437", "CP437"},
    {0x0405, "IBM737", "CP737"},
    {0x0406, "IBM775", "CP775"},
    {0x0410, "IBM850", "CP850"},
    {0x0412, "IBM852", "CP852"},
    {0x0413, "IBM855", "CP855"},
    {0x0414, "IBM857", "CP857"},
    {0x0415, "IBM860", "CP860"},
    {0x0416, "IBM861", "CP861"},
    {0x0417, "IBM862", "CP862"},
    {0x0418, "IBM863", "CP863"},
    {0x0419, "IBM864", "CP864"},
    {0x041A, "IBM865", "CP865"},
    {0x041B, "IBM866", "CP866"},
    {0x041C, "IBM869", "CP869"},
    {0x041D, "windows-874", "CP874"},
    {0x0420, "windows-31j", "CP932"},
    {0x0421, "windows-936", "CP936"},
    {0x0422, "windows-949", "CP949"},
    {0x0423, "windows-950", "CP950"},

    {0x0500, "windows-1252", "CP1252"},
    {0x0501, "windows-1250", "CP1250"},
    {0x0502, "windows-1251", "CP1251"},
    {0x0503, "windows-1253", "CP1253"},
    {0x0504, "windows-1254", "CP1254"},
    {0x0505, "windows-1255", "CP1255"},
    {0x0506, "windows-1256", "CP1256"},
    {0x0507, "windows-1257", "CP1257"},
    {0x0508, "windows-1258", "CP1258"},
    {0x0510, "johab", "CP1361"},

    {0x0631, "GBK"},
    {0x0632, "GB18030"},
    {0x0820, "ISO-2022-JP"},
    {0x0830, "ISO-2022-CN"},
    {0x0840, "ISO-2022-KR"},
    {0x0920, "EUC-JP"},
    {0x0930, "GB2312", "EUC-CN"},
    {0x0931, "EUC-TW"},
    {0x0940, "EUC-KR"},
    {0x0A01, "Shift_JIS", "SJIS"},
    {0x0A02, "KOI8-R"},
    {0x0A03, "Big5"},
    {0x0A06, "Big5-HKSCS"},
    {0x0A07, "VISCII"},
    {0x0A08, "KOI8-U"},
};

// From here on: what iconv has beside the table, in the order of the asking.
constexpr std::uint32_t kFirstOfIconv = 0xF000;

struct FoundInIconv {
    std::string name;
    EncodingRow row;
};

std::deque<FoundInIconv>& found_in_iconv() {
    static auto* const all = new std::deque<FoundInIconv>;
    return *all;
}

constexpr bool is_letter_or_digit(char c) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

// Letters and digits, in small letters: "ISO_8859-1" and "iso8859-1" are one name.
std::string plain_name(std::string_view name) {
    std::string plain;
    for (const char c : name) {
        if (is_letter_or_digit(c)) plain += static_cast<char>(c >= 'A' && c <= 'Z' ? c + 32 : c);
    }
    return plain;
}

// Calls `test` with each name of the encoding until it gives true.
template <class Test>
bool any_name(const EncodingRow& encoding, Test test) {
    if (test(std::string(encoding.internet_name))) return true;
    std::string_view rest = encoding.other_names;
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find(' '), rest.size());
        if (test(std::string(rest.substr(0, end)))) return true;
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return false;
}

Iconv open_iconv(const char* to, const char* from) {
    void* const converter = ::iconv_open(to, from);
    return Iconv(reinterpret_cast<std::intptr_t>(converter) == -1 ? nullptr : converter);
}

const EncodingRow* if_convertible(const EncodingRow& encoding) {
    return encoding.coding != Coding::kIconv || open_from(encoding) ? &encoding : nullptr;
}

// iconv takes more than names: nothing at all is the user's locale, and behind a slash stand wishes.
bool is_name(std::string_view name) {
    return !name.empty() && std::ranges::all_of(name, [](char c) {
        return is_letter_or_digit(c) || std::string_view("-_.:()+").find(c) != std::string_view::npos;
    });
}

const EncodingRow* ask_iconv(std::string_view name) {
    if (!open_iconv("UTF-8", std::string(name).c_str())) return nullptr;
    auto& found = found_in_iconv();
    const auto number = static_cast<std::uint32_t>(found.size());
    FoundInIconv& added = found.emplace_back();
    added.name = name;
    added.row = {kFirstOfIconv + number, added.name.c_str()};
    return &added.row;
}

}  // namespace

void CloseIconv::operator()(void* converter) const noexcept { ::iconv_close(converter); }

Iconv open_from(const EncodingRow& encoding) {
    Iconv converter;
    any_name(encoding, [&](const std::string& name) {
        converter = open_iconv("UTF-8", name.c_str());
        return converter != nullptr;
    });
    return converter;
}

Iconv open_to(const EncodingRow& encoding) {
    Iconv converter;
    any_name(encoding, [&](const std::string& name) {
        converter = open_iconv(name.c_str(), "UTF-8");
        return converter != nullptr;
    });
    return converter;
}

const EncodingRow* find_encoding(std::uint32_t code) {
    const auto* const row = std::ranges::find(kEncodings, code, &EncodingRow::code);
    if (row != std::end(kEncodings)) return if_convertible(*row);
    const auto& found = found_in_iconv();
    return code >= kFirstOfIconv && code - kFirstOfIconv < found.size() ? &found[code - kFirstOfIconv].row : nullptr;
}

const EncodingRow* find_encoding(std::string_view internet_name) {
    if (!is_name(internet_name)) return nullptr;
    const std::string sought = plain_name(internet_name);
    const auto has_name = [&](const EncodingRow& row) {
        return any_name(row, [&](const std::string& name) { return plain_name(name) == sought; });
    };
    const auto* const row = std::ranges::find_if(kEncodings, has_name);
    if (row != std::end(kEncodings)) return if_convertible(*row);
    const auto& found = found_in_iconv();
    const auto known = std::ranges::find_if(found, [&](const FoundInIconv& one) { return has_name(one.row); });
    return known != found.end() ? &known->row : ask_iconv(internet_name);
}

}  // namespace tavrik::core
