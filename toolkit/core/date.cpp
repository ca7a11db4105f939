#include "toolkit/core/calendar.h"
#include "toolkit/core/date_texts.h"
#include "toolkit/core/failure.h"

#include <tavrik/date.h>
#include <tavrik/exception.h>

#include <time.h>

#include <charconv>
#include <cmath>
#include <ctime>
#include <optional>
#include <string>

namespace tavrik {
namespace {

using core::CivilTime;

struct SettableField {
    const char* name;
    std::int64_t CivilTime::*value;
    // Where it stands in kSqlDateTime.
    std::size_t at;
    std::size_t width;
};

// In the order of their codes.
constexpr SettableField kFields[] = {
    {"Year", &CivilTime::year, 0, 4},  {"Month", &CivilTime::month, 5, 2},    {"Day", &CivilTime::day, 8, 2},
    {"Hour", &CivilTime::hour, 11, 2}, {"Minute", &CivilTime::minute, 14, 2}, {"Second", &CivilTime::second, 17, 2},
};
constexpr std::string_view kSqlDateTime = "0000-00-00 00:00:00";
constexpr std::string_view kSqlDate = kSqlDateTime.substr(0, 10);

constexpr std::int64_t kFrom1904To1970 = 2'082'844'800;
constexpr double kSecondsPerHour = 3600;
constexpr double kMostHoursOff = 24;

DateObject& date_of(Object* date) {
    if (date == nullptr) RaiseNilObjectException();
    return *static_cast<DateObject*>(date);
}

std::int64_t whole_seconds(const DateObject& date) { return static_cast<std::int64_t>(std::floor(date.total_seconds)); }

[[noreturn]] void raise_outside(const char* property, double value, const char* bounds) {
    char digits[32];
    auto* const end = std::to_chars(std::begin(digits), std::end(digits), value).ptr;
    std::string message("the ");
    message.append(property).append(" of a date can't be set to ").append(digits, end).append(": ").append(bounds);
    RuntimeRaise("OutOfBoundsException", message);
}

constexpr const char* kCalendarBounds = "it would leave the years 1 to 9999";

// Sets the whole seconds; the fraction stays. Far from 1904 a Double has fewer places for it: it never rounds up to
// the next second.
void set_whole_seconds(DateObject& date, std::int64_t seconds, const char* property, double value) {
    const auto whole = static_cast<double>(seconds);
    if (!core::is_in_calendar(whole)) raise_outside(property, value, kCalendarBounds);
    const double total = whole + (date.total_seconds - std::floor(date.total_seconds));
    date.total_seconds = total < whole + 1 ? total : std::nextafter(whole + 1, whole);
}

// The text in the form of `form`, which begins as kSqlDateTime does.
String sql_text(const DateObject& date, std::string_view form) {
    const CivilTime time = core::civil_time(whole_seconds(date));
    std::string text(form);
    for (const SettableField& field : kFields) {
        if (field.at >= form.size()) break;
        std::int64_t rest = time.*field.value;
        for (std::size_t at = field.at + field.width; at-- > field.at; rest /= 10) {
            text[at] = static_cast<char>('0' + rest % 10);
        }
    }
    return String(text);
}

bool has_form(std::string_view text, std::string_view form) {
    if (text.size() != form.size()) return false;
    for (std::size_t i = 0; i < form.size(); ++i) {
        const bool fits = form[i] == '0' ? text[i] >= '0' && text[i] <= '9' : text[i] == form[i];
        if (!fits) return false;
    }
    return true;
}

std::optional<std::int64_t> parse_sql(std::string_view text, std::string_view form) {
    if (!has_form(text, form)) return {};
    CivilTime time;
    for (const SettableField& field : kFields) {
        if (field.at >= form.size()) break;
        const std::string_view digits = text.substr(field.at, field.width);
        std::from_chars(digits.data(), digits.data() + digits.size(), time.*field.value);
    }
    // A field outside its bounds comes back as another time.
    const std::int64_t seconds = core::seconds_of(time);
    if (core::civil_time(seconds) != time || !core::is_in_calendar(static_cast<double>(seconds))) return {};
    return seconds;
}

void set_sql_text(DateObject& date, const String& text, const char* property, std::string_view form,
                  std::string_view example) {
    if (const auto seconds = parse_sql(text.view(), form)) {
        date.total_seconds = static_cast<double>(*seconds);
        return;
    }
    std::string message(property);
    message.append(" can't be set to \"").append(core::readable(text.view()));
    message.append("\": it is no date of the form ").append(example);
    RuntimeRaise("UnsupportedFormatException", message);
}

[[noreturn]] void raise_no_code(const char* what, std::int32_t code) {
    RuntimeRaise("OutOfBoundsException", std::string("a date has no ") + what + " " + std::to_string(code));
}

std::tm broken_down(std::int64_t seconds) {
    const CivilTime time = core::civil_time(seconds);
    std::tm result{};
    result.tm_year = static_cast<int>(time.year) - 1900;
    result.tm_mon = static_cast<int>(time.month) - 1;
    result.tm_mday = static_cast<int>(time.day);
    result.tm_hour = static_cast<int>(time.hour);
    result.tm_min = static_cast<int>(time.minute);
    result.tm_sec = static_cast<int>(time.second);
    result.tm_wday = core::day_of_week(seconds) - 1;
    result.tm_yday = core::day_of_year(seconds) - 1;
    return result;
}

}  // namespace

void AutoInitDate(Object* date) {
    const std::time_t now = std::time(nullptr);
    // The zone may have been changed while the program runs.
    tzset();
    std::tm local{};
    localtime_r(&now, &local);
    DateObject& self = date_of(date);
    self.gmt_offset_seconds = static_cast<std::int32_t>(local.tm_gmtoff);
    self.total_seconds = static_cast<double>(now + kFrom1904To1970 + local.tm_gmtoff);
}

void DateFinalizer(Object*) {}

std::int32_t DateCompare(Object* date, Object* other) {
    if (other == nullptr) return 1;
    const double seconds = date_of(date).total_seconds;
    const double other_seconds = date_of(other).total_seconds;
    return static_cast<std::int32_t>(seconds > other_seconds) - static_cast<std::int32_t>(seconds < other_seconds);
}

std::int32_t dateFieldGetter(Object* date, std::int32_t field) {
    const std::int64_t seconds = whole_seconds(date_of(date));
    if (field >= kDateYear && field <= kDateSecond) {
        return static_cast<std::int32_t>(core::civil_time(seconds).*kFields[field].value);
    }
    switch (field) {
        case kDateDayOfWeek:
            return core::day_of_week(seconds);
        case kDateDayOfYear:
            return core::day_of_year(seconds);
        case kDateWeekOfYear:
            return core::week_of_year(seconds);
        default:
            raise_no_code("field", field);
    }
}

void dateFieldSetter(Object* date, std::int32_t field, std::int32_t value) {
    DateObject& self = date_of(date);
    if (field < kDateYear || field > kDateSecond) raise_no_code("field that can be set, of number", field);
    CivilTime time = core::civil_time(whole_seconds(self));
    time.*kFields[field].value = value;
    set_whole_seconds(self, core::seconds_of(time), kFields[field].name, value);
}

String dateStringGetter(Object* date, std::int32_t text) {
    const std::int64_t seconds = whole_seconds(date_of(date));
    if (text < kDateShortDate || text > kDateLongTime) raise_no_code("text", text);
    return String(core::DateTexts::of_user().text(static_cast<DateText>(text), broken_down(seconds)));
}

double dateTotalSecondsGetter(Object* date, std::int32_t) { return date_of(date).total_seconds; }

void dateTotalSecondsSetter(Object* date, std::int32_t, double seconds) {
    DateObject& self = date_of(date);
    if (!core::is_in_calendar(seconds)) raise_outside("TotalSeconds", seconds, kCalendarBounds);
    self.total_seconds = seconds;
}

String dateSQLDateGetter(Object* date, std::int32_t) { return sql_text(date_of(date), kSqlDate); }

void dateSQLDateSetter(Object* date, std::int32_t, const String& text) {
    set_sql_text(date_of(date), text, "SQLDate", kSqlDate, "2026-11-22");
}

String dateSQLDateTimeGetter(Object* date, std::int32_t) { return sql_text(date_of(date), kSqlDateTime); }

void dateSQLDateTimeSetter(Object* date, std::int32_t, const String& text) {
    set_sql_text(date_of(date), text, "SQLDateTime", kSqlDateTime, "2026-11-22 09:30:05");
}

double dateGMTOffsetGetter(Object* date, std::int32_t) { return date_of(date).gmt_offset_seconds / kSecondsPerHour; }

void dateGMTOffsetSetter(Object* date, std::int32_t, double hours) {
    DateObject& self = date_of(date);
    if (!(std::abs(hours) <= kMostHoursOff)) raise_outside("GMTOffset", hours, "it is more than a day");
    const auto offset = static_cast<std::int32_t>(std::lround(hours * kSecondsPerHour));
    set_whole_seconds(self, whole_seconds(self) + offset - self.gmt_offset_seconds, "GMTOffset", hours);
    self.gmt_offset_seconds = offset;
}

}  // namespace tavrik
