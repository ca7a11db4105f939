#include "data/date.h"

#include "tests/support/balance.h"
#include "tests/support/raised.h"

#include <gmock/gmock.h>

#include <cmath>
#include <cstdlib>
#include <ctime>
#include <limits>
#include <string>

namespace tavrik::test {
namespace {

Ref<Date> date_at(std::string_view sql) {
    Ref<Date> date = make<Date>();
    date->set_SQLDateTime(String(sql));
    return date;
}

std::string sql(const Ref<Date>& date) { return std::string(date->SQLDateTime().view()); }

// The local zone, for as long as it lives.
struct Zone {
    explicit Zone(const char* name) { setenv("TZ", name, 1); }
    ~Zone() { unsetenv("TZ"); }
    Zone(const Zone&) = delete;
    Zone& operator=(const Zone&) = delete;
};

TEST(Date, Has_every_field_and_counts_seconds_from_1904) {
    const Balance balance;
    const Ref<Date> date = date_at("2021-01-03 09:08:07");
    const std::int32_t fields[] = {date->Year(),      date->Month(),     date->Day(),
                                   date->Hour(),      date->Minute(),    date->Second(),
                                   date->DayOfWeek(), date->DayOfYear(), date->WeekOfYear()};
    EXPECT_THAT(fields, testing::ElementsAre(2021, 1, 3, 9, 8, 7, 1, 3, 53));
    EXPECT_EQ(date_at("1904-01-02 01:01:01")->TotalSeconds(), 86'400 + 3661);
    EXPECT_EQ(date_at("1903-12-31 23:59:58")->TotalSeconds(), -2);
}

TEST(Date, Normalises_what_is_set) {
    const Balance balance;
    const struct {
        void (Date::*set)(std::int32_t);
        std::int32_t value;
        const char* result;
    } cases[] = {
        {&Date::set_Year, 2020, "2020-02-29 12:30:45"},  {&Date::set_Year, 2025, "2025-03-01 12:30:45"},
        {&Date::set_Month, 13, "2025-01-29 12:30:45"},   {&Date::set_Month, 0, "2023-12-29 12:30:45"},
        {&Date::set_Month, -12, "2022-12-29 12:30:45"},  {&Date::set_Day, 0, "2024-01-31 12:30:45"},
        {&Date::set_Day, 31, "2024-03-02 12:30:45"},     {&Date::set_Day, -400, "2022-12-27 12:30:45"},
        {&Date::set_Hour, 24, "2024-03-01 00:30:45"},    {&Date::set_Minute, -31, "2024-02-29 11:29:45"},
        {&Date::set_Second, -46, "2024-02-29 12:29:14"}, {&Date::set_Second, -1, "2024-02-29 12:29:59"},
    };
    for (const auto& each : cases) {
        const Ref<Date> date = date_at("2024-02-29 12:30:45");
        (date.get()->*each.set)(each.value);
        EXPECT_EQ(sql(date), each.result);
    }
}

TEST(Date, Keeps_the_fraction_when_a_field_is_set) {
    const Ref<Date> date = make<Date>();
    date->set_TotalSeconds(0.25);
    date->set_Second(7);
    date->set_Year(1903);
    EXPECT_EQ(date->TotalSeconds(), 7.25 - 365 * 86'400);
    // A fraction that has no place in a Double so far from 1904 doesn't become a second.
    date->set_TotalSeconds(1 - 0x1p-50);
    date->set_Year(9999);
    EXPECT_EQ(date->Second(), 0);
}

TEST(Date, Refuses_what_leaves_the_years_1_to_9999_and_stays) {
    const Balance balance;
    const Zone zone("UTC0");
    const Ref<Date> date = date_at("9999-12-31 23:59:59");
    for (const std::int32_t value : {INT32_MIN, INT32_MAX}) {
        for (const auto set : {&Date::set_Year, &Date::set_Month, &Date::set_Day}) {
            EXPECT_EQ(class_raised_by([&] { (date.get()->*set)(value); }), "OutOfBoundsException");
        }
    }
    for (const double value : {1e300, -HUGE_VAL, std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_EQ(class_raised_by([&] { date->set_TotalSeconds(value); }), "OutOfBoundsException");
        EXPECT_EQ(class_raised_by([&] { date->set_GMTOffset(value); }), "OutOfBoundsException");
    }
    EXPECT_EQ(message_of(raised_by([&] { date->set_Second(60); })),
              "the Second of a date can't be set to 60: it would leave the years 1 to 9999");
    date->set_GMTOffset(-3);
    const std::string before = sql(date);
    EXPECT_EQ(class_raised_by([&] { date->set_GMTOffset(24); }), "OutOfBoundsException");
    EXPECT_EQ(date->GMTOffset(), -3);
    EXPECT_EQ(sql(date), before);
}

TEST(Date, Reads_back_the_SQL_texts_that_it_writes) {
    const Balance balance;
    const Ref<Date> date = make<Date>();
    for (const char* const text :
         {"0001-01-01 00:00:00", "1903-12-31 23:59:59", "2024-02-29 09:08:07", "9999-12-31 23:59:59"}) {
        date->set_SQLDateTime(String(std::string_view(text)));
        EXPECT_EQ(sql(date), text);
    }
    date->set_SQLDate("2026-11-22"_s);
    EXPECT_EQ(date->SQLDate(), "2026-11-22");
    EXPECT_EQ(sql(date), "2026-11-22 00:00:00");
}

TEST(Date, Refuses_other_texts_and_stays) {
    const Balance balance;
    const Ref<Date> date = date_at("2026-11-22 09:30:05");
    for (const char* const text :
         {"", "2026-11-2", "2026-11-222", " 2026-11-22", "2026/11/22", "2026-1-022", "26-11-22", "2026-13-01",
          "2026-00-10", "2026-11-31", "2026-02-29", "1900-02-29", "0000-12-31", "+026-11-22", "2026-11-22 09:30:05"}) {
        EXPECT_EQ(class_raised_by([&] { date->set_SQLDate(String(std::string_view(text))); }),
                  "UnsupportedFormatException")
            << text;
    }
    for (const char* const text :
         {"", "2026-11-22", "2026-11-22T09:30:05", "2026-11-22 9:30:05", "2026-11-22 24:00:00", "2026-11-22 09:60:05",
          "2026-11-22 09:30:60", "2026-11-22 09:30:-5", "2026-11-22 09:30:05Z"}) {
        EXPECT_EQ(class_raised_by([&] { date->set_SQLDateTime(String(std::string_view(text))); }),
                  "UnsupportedFormatException")
            << text;
    }
    EXPECT_EQ(sql(date), "2026-11-22 09:30:05");
    EXPECT_EQ(message_of(raised_by([&] { date->set_SQLDate("today"_s); })),
              "SQLDate can't be set to \"today\": it is no date of the form 2026-11-22");
}

TEST(Date, Is_now_in_the_local_zone_when_it_is_new) {
    const Balance balance;
    const struct {
        const char* zone;
        double offset;
    } cases[] = {{"<+0545>-5:45", 5.75}, {"STD5DST,0/0,J365/25", -4}};  // the second has summer all year
    for (const auto& each : cases) {
        const Zone zone(each.zone);
        const std::time_t before = std::time(nullptr);
        const Ref<Date> date = make<Date>();
        const std::time_t after = std::time(nullptr);
        EXPECT_EQ(date->GMTOffset(), each.offset);
        const double since_1970 = date->TotalSeconds() - date_at("1970-01-01 00:00:00")->TotalSeconds();
        EXPECT_GE(since_1970, static_cast<double>(before) + each.offset * 3600);
        EXPECT_LE(since_1970, static_cast<double>(after) + each.offset * 3600);
    }
}

TEST(Date, Shows_the_same_moment_under_another_offset) {
    const Balance balance;
    const Zone zone("UTC0");
    const Ref<Date> date = date_at("2026-12-31 20:30:00");
    date->set_GMTOffset(5.75);
    EXPECT_EQ(sql(date), "2027-01-01 02:15:00");
    date->set_GMTOffset(-3.5);
    EXPECT_EQ(sql(date), "2026-12-31 17:00:00");
    EXPECT_EQ(date->GMTOffset(), -3.5);
}

TEST(Date, Compares_by_total_seconds_and_nil_is_never_equal) {
    const Balance balance;
    const Ref<Date> date = date_at("2026-11-22 09:30:05");
    EXPECT_LT(date->Operator_Compare(date_at("2026-11-22 09:30:06")), 0);
    EXPECT_EQ(date->Operator_Compare(date_at("2026-11-22 09:30:05")), 0);
    EXPECT_GT(date->Operator_Compare(date_at("2026-11-22 09:30:04")), 0);
    EXPECT_GT(date->Operator_Compare(nullptr), 0);
}

TEST(Date, A_copy_takes_the_total_seconds_and_no_offset) {
    const Balance balance;
    const Zone zone("UTC0");
    const Ref<Date> source = make<Date>();
    source->set_GMTOffset(3);
    source->set_TotalSeconds(-1000.5);
    const Ref<Date> copy = make<Date>();
    copy->Constructor(source);
    EXPECT_EQ(copy->Operator_Compare(source), 0);
    EXPECT_EQ(copy->TotalSeconds(), -1000.5);
    EXPECT_EQ(copy->GMTOffset(), 0);
    copy->Constructor(nullptr);
    copy->Constructor();
    EXPECT_EQ(copy->TotalSeconds(), -1000.5);
}

// A subclass whose dates equal nil.
std::int32_t equal(Object*, Object*) { return 0; }
struct UnsetDate : Class<UnsetDate, Date> {
    static const ClassDefinition& definition();
};
constexpr OperationRow kUnsetOperations[] = {overrides<UnsetDate, &Date::Operator_Compare, equal>("Operator_Compare")};
const ClassDefinition& UnsetDate::definition() {
    static constexpr ClassDefinition kDefinition = define<UnsetDate>({.operations = kUnsetOperations});
    return kDefinition;
}

TEST(Date, A_copy_of_what_equals_nil_leaves_the_date) {
    const Balance balance;
    const Ref<Date> copy = date_at("2026-11-22 09:30:05");
    copy->Constructor(make<UnsetDate>());
    EXPECT_EQ(sql(copy), "2026-11-22 09:30:05");
}

TEST(Date, Has_setters_for_all_but_what_follows_from_other_properties) {
    const ClassRecord& record = *Date::__Lookup();
    std::string read_only;
    for (std::int32_t i = 0; i < record.property_count; ++i) {
        const PropertyRecord& property = record.properties[i];
        if (property.setter == nullptr) read_only.append(view(property.name)).append(" ");
    }
    EXPECT_EQ(read_only, "DayOfWeek DayOfYear WeekOfYear ShortDate LongDate AbbreviatedDate ShortTime LongTime ");
}

}  // namespace
}  // namespace tavrik::test
