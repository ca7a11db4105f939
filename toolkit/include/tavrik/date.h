#pragma once

#include <tavrik/object.h>
#include <tavrik/string.h>

// A date counts the seconds since 1904-01-01 00:00:00 on a clock of its own offset from GMT, in the proleptic Gregorian
// calendar, years 1 to 9999. A setter that would lead outside raises OutOfBoundsException and changes nothing.
namespace tavrik {

// What the toolkit keeps in a date: the class of dates gives this room, and only the functions below look into it.
struct DateObject : Object {
    double total_seconds;
    std::int32_t gmt_offset_seconds;
};

enum DateField : std::int32_t {
    kDateYear,
    kDateMonth,
    kDateDay,
    kDateHour,
    kDateMinute,
    kDateSecond,
    kDateDayOfWeek,   // from 1, which is Sunday; can't be set
    kDateDayOfYear,   // from 1; can't be set
    kDateWeekOfYear,  // as in ISO 8601; can't be set
};

enum DateText : std::int32_t {
    kDateShortDate,
    kDateLongDate,
    kDateAbbreviatedDate,
    kDateShortTime,
    kDateLongTime,
};

// Sets a new date to the second that it is now, with the offset that the local zone has now.
TAVRIK_API void AutoInitDate(Object* date);
// A date holds nothing that is to be given back.
TAVRIK_API void DateFinalizer(Object* date);

// Negative, 0 or positive, by total seconds. nil comes before every date.
TAVRIK_API std::int32_t DateCompare(Object* date, Object* other);

TAVRIK_API std::int32_t dateFieldGetter(Object* date, std::int32_t field);
// Leaves the other fields as they are, and then brings all into their bounds: day 0 is the last of the month before.
TAVRIK_API void dateFieldSetter(Object* date, std::int32_t field, std::int32_t value);
// In the wording of the user's locale.
TAVRIK_API String dateStringGetter(Object* date, std::int32_t text);
TAVRIK_API double dateTotalSecondsGetter(Object* date, std::int32_t);
// Keeps fractions of a second.
TAVRIK_API void dateTotalSecondsSetter(Object* date, std::int32_t, double seconds);

// "2026-11-22". Setting it makes the time midnight. Raises UnsupportedFormatException, and changes nothing then.
TAVRIK_API String dateSQLDateGetter(Object* date, std::int32_t);
TAVRIK_API void dateSQLDateSetter(Object* date, std::int32_t, const String& text);
// "2026-11-22 09:30:05". Raises UnsupportedFormatException, and changes nothing then.
TAVRIK_API String dateSQLDateTimeGetter(Object* date, std::int32_t);
TAVRIK_API void dateSQLDateTimeSetter(Object* date, std::int32_t, const String& text);

// In hours, to the second. Setting it keeps the moment: the fields then show it on the new offset's clock.
TAVRIK_API double dateGMTOffsetGetter(Object* date, std::int32_t);
// Raises OutOfBoundsException also for an offset of more than a day.
TAVRIK_API void dateGMTOffsetSetter(Object* date, std::int32_t, double hours);

}  // namespace tavrik
