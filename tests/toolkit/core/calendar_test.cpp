#include "toolkit/core/calendar.h"

#include <gtest/gtest.h>

#include <chrono>
#include <ctime>
#include <string>

namespace tavrik::test {
namespace {

using core::CivilTime;
using std::chrono::days;
using std::chrono::sys_days;
using std::chrono::year_month_day;

constexpr sys_days kEpoch = sys_days(std::chrono::year(1904) / 1 / 1);
constexpr std::int64_t kSecondsPerDay = 86'400;

std::int64_t seconds_at(sys_days day) { return (day - kEpoch).count() * kSecondsPerDay; }

CivilTime civil(year_month_day date) {
    return {.year = int{date.year()}, .month = unsigned{date.month()}, .day = unsigned{date.day()}};
}

// The week of the year by the C library.
int week_by_c_library(sys_days day) {
    const year_month_day date(day);
    std::tm time{};
    time.tm_year = int{date.year()} - 1900;
    time.tm_wday = static_cast<int>(std::chrono::weekday(day).c_encoding());
    time.tm_yday = static_cast<int>((day - sys_days(date.year() / 1 / 1)).count());
    char text[8];
    EXPECT_EQ(std::strftime(text, sizeof text, "%V", &time), 2U);
    return std::stoi(text);
}

void check(sys_days day) {
    const year_month_day date(day);
    const std::int64_t midnight = seconds_at(day);
    ASSERT_EQ(core::civil_time(midnight), civil(date)) << midnight;
    ASSERT_EQ(core::civil_time(midnight + kSecondsPerDay - 1).day, unsigned{date.day()}) << midnight;
    ASSERT_EQ(core::seconds_of(civil(date)), midnight);
    ASSERT_EQ(core::day_of_week(midnight), static_cast<int>(std::chrono::weekday(day).c_encoding()) + 1) << midnight;
    ASSERT_EQ(core::day_of_year(midnight), (day - sys_days(date.year() / 1 / 1)).count() + 1) << midnight;
    ASSERT_EQ(core::week_of_year(midnight), week_by_c_library(day)) << midnight;
}

TEST(Calendar, Agrees_with_another_one_on_every_day_of_400_years) {
    const sys_days end = std::chrono::year(2200) / 1 / 1;
    for (sys_days day = std::chrono::year(1800) / 1 / 1; day != end && !testing::Test::HasFatalFailure();
         day += days(1)) {
        check(day);
    }
}

TEST(Calendar, Agrees_with_another_one_around_every_turn_of_a_month_of_the_years_1_to_9999) {
    for (int year = 1; year <= 9999; ++year) {
        for (int month = 1; month <= 12 && !testing::Test::HasFatalFailure(); ++month) {
            check(sys_days(std::chrono::year(year) / month / 1));
            check(sys_days(std::chrono::year(year) / month / std::chrono::last));
        }
    }
}

}  // namespace
}  // namespace tavrik::test
