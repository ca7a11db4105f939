#include "toolkit/core/calendar.h"

namespace tavrik::core {
namespace {

constexpr std::int64_t kSecondsPerDay = 86'400;
constexpr std::int64_t kDaysPerCycle = 146'097;  // 400 years

constexpr std::int64_t floor_divide(std::int64_t value, std::int64_t by) {
    return value / by - (value % by < 0 ? 1 : 0);
}
constexpr std::int64_t floor_modulo(std::int64_t value, std::int64_t by) {
    return value - floor_divide(value, by) * by;
}

// Days from March 1st of the year 0. Years are counted from March on, so that a leap day is the last of its year; from
// there on five months always have 153 days.
constexpr std::int64_t days_from_march(std::int64_t year, std::int64_t month, std::int64_t day) {
    const std::int64_t year_from_march = year + floor_divide(month - 3, 12);
    const std::int64_t month_from_march = floor_modulo(month - 3, 12);
    return year_from_march * 365 + floor_divide(year_from_march, 4) - floor_divide(year_from_march, 100) +
           floor_divide(year_from_march, 400) + (month_from_march * 153 + 2) / 5 + day - 1;
}

constexpr std::int64_t kEpoch = days_from_march(1904, 1, 1);

constexpr std::int64_t days_of(std::int64_t year, std::int64_t month, std::int64_t day) {
    return days_from_march(year, month, day) - kEpoch;
}

CivilTime civil_day(std::int64_t days) {
    const std::int64_t from_march = days + kEpoch;
    const std::int64_t cycle = floor_divide(from_march, kDaysPerCycle);
    const std::int64_t day_of_cycle = from_march - cycle * kDaysPerCycle;
    // Leap days that have passed in the cycle: one in 4 years, none in 100, one in 400.
    const std::int64_t year_of_cycle =
        (day_of_cycle - day_of_cycle / 1460 + day_of_cycle / 36'524 - day_of_cycle / (kDaysPerCycle - 1)) / 365;
    const std::int64_t day_of_march_year =
        day_of_cycle - (year_of_cycle * 365 + year_of_cycle / 4 - year_of_cycle / 100);
    const std::int64_t month_from_march = (day_of_march_year * 5 + 2) / 153;
    const bool is_past_december = month_from_march >= 10;
    return {.year = cycle * 400 + year_of_cycle + (is_past_december ? 1 : 0),
            .month = month_from_march + (is_past_december ? -9 : 3),
            .day = day_of_march_year - (month_from_march * 153 + 2) / 5 + 1};
}

std::int64_t days_in(std::int64_t seconds) { return floor_divide(seconds, kSecondsPerDay); }

constexpr auto kFirstSecond = static_cast<double>(days_of(1, 1, 1) * kSecondsPerDay);
constexpr auto kEndSecond = static_cast<double>(days_of(10'000, 1, 1) * kSecondsPerDay);

}  // namespace

std::int64_t seconds_of(const CivilTime& time) noexcept {
    return days_of(time.year, time.month, time.day) * kSecondsPerDay + time.hour * 3600 + time.minute * 60 +
           time.second;
}

CivilTime civil_time(std::int64_t seconds) noexcept {
    CivilTime time = civil_day(days_in(seconds));
    const std::int64_t second_of_day = floor_modulo(seconds, kSecondsPerDay);
    time.hour = second_of_day / 3600;
    time.minute = second_of_day / 60 % 60;
    time.second = second_of_day % 60;
    return time;
}

std::int32_t day_of_week(std::int64_t seconds) noexcept {
    // The epoch was a Friday.
    return static_cast<std::int32_t>(floor_modulo(days_in(seconds) + 5, 7) + 1);
}

std::int32_t day_of_year(std::int64_t seconds) noexcept {
    const std::int64_t days = days_in(seconds);
    return static_cast<std::int32_t>(days - days_of(civil_day(days).year, 1, 1) + 1);
}

std::int32_t week_of_year(std::int64_t seconds) noexcept {
    // A week belongs to the year of its Thursday.
    const std::int64_t days = days_in(seconds);
    const std::int64_t thursday = days - floor_modulo(days + 4, 7) + 3;
    return static_cast<std::int32_t>((thursday - days_of(civil_day(thursday).year, 1, 1)) / 7 + 1);
}

bool is_in_calendar(double seconds) noexcept { return seconds >= kFirstSecond && seconds < kEndSecond; }

}  // namespace tavrik::core
