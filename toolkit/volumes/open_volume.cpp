// What the module exports.
#include "toolkit/volumes/archive.h"
#include "toolkit/volumes/failure.h"

#include <cerrno>
#include <new>
#include <system_error>
#include <type_traits>

extern "C" __attribute__((visibility("default"))) void tavrik_open_volume(const std::string& path,
                                                                          tavrik::volume::Mode mode,
                                                                          tavrik::volume::Opened& opened) {
    try {
        opened.volume = std::make_shared<tavrik::volume::Archive>(path, mode);
    } catch (const tavrik::volume::Failure& failure) {
        opened.error = failure.error;
        opened.is_foreign = failure.is_foreign;
        opened.reason = failure.reason.empty() ? std::generic_category().message(failure.error) : failure.reason;
    } catch (const std::bad_alloc&) {
        opened.error = ENOMEM;
        opened.reason = std::generic_category().message(ENOMEM);
    }
}

static_assert(std::is_same_v<decltype(&tavrik_open_volume), tavrik::volume::OpenVolume>);
