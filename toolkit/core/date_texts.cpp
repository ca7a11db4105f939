#include "toolkit/core/date_texts.h"

#include <langinfo.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <string_view>

namespace tavrik::core {
namespace {

// Systems know the names of days and months, and short forms of date and time, but no long form of a date. Its wording
// goes by the language where one is known to have its own, and otherwise by the order of the short form.
struct Wording {
    std::string_view locale;  // a language, or a language and a country
    const char* long_date;
};

constexpr const char* kMonthFirst = "%A, %B %-d, %Y";
constexpr const char* kDayFirst = "%A, %-d %B %Y";
constexpr const char* kDayFirstInEra = "%A, %-d %B %EY";  // where the short form counts years by an era too
constexpr const char* kYearFirst = "%A, %Y %B %-d";
constexpr const char* kDayFirstWithoutComma = "%A %-d %B %Y";
constexpr const char* kOrdinalDay = "%A %-d. %B %Y";
constexpr const char* kDayOfMonthOfYear = "%A, %-d de %B de %Y";

constexpr Wording kWordings[] = {
    {"cs", kOrdinalDay},           {"da", "%A den %-d. %B %Y"},   {"de", "%A, %-d. %B %Y"},
    {"en_CA", kMonthFirst},        {"es", kDayOfMonthOfYear},     {"fi", "%A %-d. %Bta %Y"},
    {"fr", kDayFirstWithoutComma}, {"hu", "%Y. %B %-d., %A"},     {"it", kDayFirstWithoutComma},
    {"nb", kOrdinalDay},           {"nl", kDayFirstWithoutComma}, {"nn", kOrdinalDay},
    {"pt", kDayOfMonthOfYear},     {"sk", kOrdinalDay},           {"sv", kDayFirstWithoutComma},
};

bool is_ascii(char byte) { return static_cast<unsigned char>(byte) < 0x80; }
bool is_letter(char byte) { return std::isalpha(static_cast<unsigned char>(byte)) != 0; }

void replace_all(std::string& text, std::string_view what, std::string_view by) {
    for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + by.size())) {
        text.replace(at, what.size(), by);
    }
}

void trim(std::string& text) {
    text.erase(text.find_last_not_of(' ') + 1);
    text.erase(0, text.find_first_not_of(' '));
}

bool is_for(const Wording& wording, std::string_view locale_name) {
    if (!locale_name.starts_with(wording.locale)) return false;
    const std::string_view rest = locale_name.substr(wording.locale.size());
    return rest.empty() || !is_letter(rest.front());
}

// The year, month or day that a form begins with.
char first_of_date(std::string_view form) {
    for (std::size_t at = form.find('%'); at != std::string_view::npos; at = form.find('%', at + 1)) {
        at = form.find_first_not_of("-_0EO", at + 1);
        if (at == std::string_view::npos) break;
        switch (form[at]) {
            case 'Y':
            case 'y':
            case 'C':
                return 'Y';
            case 'm':
            case 'b':
            case 'B':
                return 'm';
            case 'd':
            case 'e':
                return 'd';
            default:
                break;
        }
    }
    return 'd';
}

// Years are written in full: "11/22/26" leaves too much open.
std::string short_date_form(locale_t locale) {
    std::string form = nl_langinfo_l(D_FMT, locale);
    replace_all(form, "%D", "%m/%d/%Y");
    replace_all(form, "%y", "%Y");
    return form;
}

std::string long_date_form(std::string_view locale_name, std::string short_form) {
    const auto* const wording =
        std::ranges::find_if(kWordings, [&](const Wording& each) { return is_for(each, locale_name); });
    if (wording != std::end(kWordings)) return wording->long_date;
    const char first = first_of_date(short_form);
    if (first == 'm') return kMonthFirst;
    if (first == 'd') return short_form.find("%E") == std::string::npos ? kDayFirst : kDayFirstInEra;
    if (std::ranges::all_of(short_form, is_ascii)) return kYearFirst;
    // The numbers have their units: year, month and day, as words.
    replace_all(short_form, "%A", "");
    trim(short_form);
    return short_form + " %A";
}

// With short names. What the month's full name ends in goes with it.
std::string abbreviated(std::string form) {
    replace_all(form, "%A", "%a");
    const std::size_t month = form.find("%B");
    if (month == std::string::npos) return form;
    return form.replace(month, std::min(form.find(' ', month), form.size()) - month, "%b");
}

// A date knows its offset but no name of a zone.
std::string long_time_form(locale_t locale) {
    std::string form = nl_langinfo_l(T_FMT, locale);
    replace_all(form, "%r", nl_langinfo_l(T_FMT_AMPM, locale));
    replace_all(form, "%T", "%H:%M:%S");
    replace_all(form, "%Z", "");
    trim(form);
    return form.find('S') == std::string::npos ? "%H:%M:%S" : form;
}

// Without the seconds, and what parts them from the minutes; if that is a word, minutes keep it, and seconds have one.
std::string without_seconds(std::string form) {
    const std::size_t seconds_end = form.find('S') + 1;
    const std::size_t seconds = form.rfind('%', seconds_end - 1);
    const std::size_t minutes_end = form.find('M') + 1;
    if (minutes_end == 0 || minutes_end > seconds) return form;

    const bool is_word = minutes_end < seconds && !is_ascii(form[minutes_end]);
    if (!is_word) return form.erase(minutes_end, seconds_end - minutes_end);
    form.erase(seconds, std::min(form.find_first_of(" %", seconds_end), form.size()) - seconds);
    trim(form);
    return form;
}

std::string name_for_times() {
    for (const char* const variable : {"LC_ALL", "LC_TIME", "LANG"}) {
        const char* const value = std::getenv(variable);
        if (value != nullptr && *value != '\0') return value;
    }
    return "C";
}

// The same language and country in UTF-8: "de_DE@euro" gives "de_DE.UTF-8@euro".
std::string in_utf8(const std::string& name) {
    const std::size_t modifier = std::min(name.find('@'), name.size());
    return name.substr(0, std::min(name.find('.'), modifier)) + ".UTF-8" + name.substr(modifier);
}

}  // namespace

DateTexts::Locale DateTexts::open(const std::string& name) {
    for (const std::string& each : {name, in_utf8(name)}) {
        Locale locale(newlocale(LC_CTYPE_MASK | LC_TIME_MASK, each.c_str(), nullptr));
        if (locale && std::string_view(nl_langinfo_l(CODESET, locale.get())) == "UTF-8") return locale;
    }
    return Locale(newlocale(LC_ALL_MASK, "C", nullptr));
}

DateTexts::DateTexts(const std::string& locale_name) : locale_(open(locale_name)) {
    forms_[kDateShortDate] = short_date_form(locale_.get());
    forms_[kDateLongDate] = long_date_form(locale_name, forms_[kDateShortDate]);
    forms_[kDateAbbreviatedDate] = abbreviated(forms_[kDateLongDate]);
    forms_[kDateLongTime] = long_time_form(locale_.get());
    forms_[kDateShortTime] = without_seconds(forms_[kDateLongTime]);
}

const DateTexts& DateTexts::of_user() {
    static const DateTexts texts(name_for_times());
    return texts;
}

std::string DateTexts::text(DateText which, const std::tm& time) const {
    char text[256];
    const std::size_t length =
        strftime_l(text, sizeof text, forms_[static_cast<std::size_t>(which)].c_str(), &time, locale_.get());
    std::string result(text, length);
    trim(result);
    return result;
}

}  // namespace tavrik::core
