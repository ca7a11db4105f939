#pragma once

// Only what is marked so leaves the library.
#define TAVRIK_API __attribute__((visibility("default")))
