#pragma once

#include "runtime/class.h"

#include <tavrik/date.h>

namespace tavrik {

// A point in time, as calendar fields, as seconds, or as text. A new one is now, in the local zone.
struct Date : Class<Date, DateObject> {
    static const ClassDefinition& definition();

    // Negative, 0 or positive, by TotalSeconds. nil comes before every date.
    std::int32_t Operator_Compare(Arg<Date> other) { return dispatch<&Date::Operator_Compare>(this, other); }
    void Constructor() { dispatch<pick<void()>(&Date::Constructor)>(this); }
    // Takes TotalSeconds of the other date, and not its GMTOffset.
    void Constructor(Arg<Date> other) { dispatch<pick<void(Arg<Date>)>(&Date::Constructor)>(this, other); }
    void __DependencyList() { dispatch<&Date::__DependencyList>(this); }

    // Fields outside their bounds carry: month 13 is January of the next year, day 0 the last of the month before.
    std::int32_t Year() { return dateFieldGetter(this, kDateYear); }
    void set_Year(std::int32_t year) { dateFieldSetter(this, kDateYear, year); }
    std::int32_t Month() { return dateFieldGetter(this, kDateMonth); }
    void set_Month(std::int32_t month) { dateFieldSetter(this, kDateMonth, month); }
    std::int32_t Day() { return dateFieldGetter(this, kDateDay); }
    void set_Day(std::int32_t day) { dateFieldSetter(this, kDateDay, day); }
    std::int32_t Hour() { return dateFieldGetter(this, kDateHour); }
    void set_Hour(std::int32_t hour) { dateFieldSetter(this, kDateHour, hour); }
    std::int32_t Minute() { return dateFieldGetter(this, kDateMinute); }
    void set_Minute(std::int32_t minute) { dateFieldSetter(this, kDateMinute, minute); }
    std::int32_t Second() { return dateFieldGetter(this, kDateSecond); }
    void set_Second(std::int32_t second) { dateFieldSetter(this, kDateSecond, second); }
    std::int32_t DayOfWeek() { return dateFieldGetter(this, kDateDayOfWeek); }
    std::int32_t DayOfYear() { return dateFieldGetter(this, kDateDayOfYear); }
    std::int32_t WeekOfYear() { return dateFieldGetter(this, kDateWeekOfYear); }

    String ShortDate() { return dateStringGetter(this, kDateShortDate); }
    String LongDate() { return dateStringGetter(this, kDateLongDate); }
    String AbbreviatedDate() { return dateStringGetter(this, kDateAbbreviatedDate); }
    String ShortTime() { return dateStringGetter(this, kDateShortTime); }
    String LongTime() { return dateStringGetter(this, kDateLongTime); }

    // Since 1904-01-01 00:00:00 on a clock of the date's own offset.
    double TotalSeconds() { return dateTotalSecondsGetter(this, 0); }
    void set_TotalSeconds(double seconds) { dateTotalSecondsSetter(this, 0, seconds); }
    String SQLDate() { return dateSQLDateGetter(this, 0); }
    void set_SQLDate(const String& text) { dateSQLDateSetter(this, 0, text); }
    String SQLDateTime() { return dateSQLDateTimeGetter(this, 0); }
    void set_SQLDateTime(const String& text) { dateSQLDateTimeSetter(this, 0, text); }
    // In hours. Setting it shows the same moment on another clock.
    double GMTOffset() { return dateGMTOffsetGetter(this, 0); }
    void set_GMTOffset(double hours) { dateGMTOffsetSetter(this, 0, hours); }
};

}  // namespace tavrik
