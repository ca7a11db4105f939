#include "toolkit/core/file_dates.h"

#include "toolkit/core/file_times.h"
#include "toolkit/core/reflection.h"

#include <tavrik/date.h>
#include <tavrik/runtime.h>

#include <fcntl.h>

#include <algorithm>
#include <cerrno>
#include <cmath>

namespace tavrik::core {
namespace {

constexpr double kFrom1904To1970 = 2'082'844'800;
constexpr double kSecondsPerHour = 3600;
constexpr double kNanoseconds = 1e9;

bool is_before(const timespec& a, const timespec& b) {
    return a.tv_sec != b.tv_sec ? a.tv_sec < b.tv_sec : a.tv_nsec < b.tv_nsec;
}

}  // namespace

Ref<Object> make_date(const timespec& time) {
    Ref<Object> date = RuntimeNewObject(need_class("Date"));
    tm local{};
    ::tzset();
    ::localtime_r(&time.tv_sec, &local);
    const auto offset = static_cast<double>(local.tm_gmtoff);
    dateGMTOffsetSetter(date.object(), 0, offset / kSecondsPerHour);
    const double seconds = static_cast<double>(time.tv_sec) + kFrom1904To1970 + offset;
    dateTotalSecondsSetter(date.object(), 0, seconds + static_cast<double>(time.tv_nsec) / kNanoseconds);
    return date;
}

timespec time_of(Object* date) {
    const double offset = std::round(dateGMTOffsetGetter(date, 0) * kSecondsPerHour);
    const double seconds = dateTotalSecondsGetter(date, 0);
    const double whole = std::floor(seconds);
    timespec time{};
    time.tv_sec = static_cast<time_t>(whole - kFrom1904To1970 - offset);
    time.tv_nsec = static_cast<long>((seconds - whole) * kNanoseconds);
    return time;
}

int creation_time(const Place& place, Links links, timespec& time) {
    struct stat status {};
    if (const int error = place.look(links, status)) return error;
#if defined(__APPLE__)
    time = status.st_birthtimespec;
    return 0;
#else
    time = std::min(modification_time(status), change_time(status), is_before);
#if defined(__linux__)
    struct statx known {};
    const int flags = links == Links::kItself ? AT_SYMLINK_NOFOLLOW : 0;
    if (::statx(place.folder(), place.name(), flags, STATX_BTIME, &known) == 0 && (known.stx_mask & STATX_BTIME) != 0) {
        time = {.tv_sec = known.stx_btime.tv_sec, .tv_nsec = known.stx_btime.tv_nsec};
    }
#endif
    return 0;
#endif
}

int set_modification_time(const Place& place, Links links, const timespec& time) {
    if (place.error() != 0) return place.error();
    const timespec times[] = {{.tv_sec = 0, .tv_nsec = UTIME_OMIT}, time};
    const int flags = links == Links::kItself ? AT_SYMLINK_NOFOLLOW : 0;
    return ::utimensat(place.folder(), place.name(), times, flags) == 0 ? 0 : errno;
}

}  // namespace tavrik::core
