#pragma once

#include "toolkit/core/file_place.h"

#include <tavrik/object.h>

#include <time.h>

// The times of files, and dates. Errors are the system's numbers, 0 for none.
namespace tavrik::core {

// A new Date, on the clock that the local zone had at that time.
Ref<Object> make_date(const timespec& time);
// The moment of a date, as exactly as a date has it. Raises NilObjectException.
timespec time_of(Object* date);

// When the file was made; where the file system doesn't know, its earliest time.
int creation_time(const Place& place, Links links, timespec& time);
int set_modification_time(const Place& place, Links links, const timespec& time);

}  // namespace tavrik::core
