#pragma once

#include <cstdint>

// The proleptic Gregorian calendar: pure arithmetic. Days count from 1904-01-01, seconds from its midnight.
namespace tavrik::core {

struct CivilTime {
    std::int64_t year = 1904;
    std::int64_t month = 1;
    std::int64_t day = 1;
    std::int64_t hour = 0;
    std::int64_t minute = 0;
    std::int64_t second = 0;

    bool operator==(const CivilTime&) const = default;
};

// Fields may lie outside their bounds, by any 32 bits: month 13 is January of the next year.
std::int64_t seconds_of(const CivilTime& time) noexcept;
CivilTime civil_time(std::int64_t seconds) noexcept;

// From 1, which is Sunday.
std::int32_t day_of_week(std::int64_t seconds) noexcept;
std::int32_t day_of_year(std::int64_t seconds) noexcept;
// The ISO 8601 week, 1 to 53: the first days of January may lie in the last week of the year before.
std::int32_t week_of_year(std::int64_t seconds) noexcept;

// Whether the seconds, or any fraction behind them, lie in the years 1 to 9999. Not a number lies nowhere.
bool is_in_calendar(double seconds) noexcept;

}  // namespace tavrik::core
