#include <tavrik/application.h>

#include <iterator>
#include <string_view>

namespace tavrik {
namespace {

constinit ProgramVersion the_version;

}  // namespace

void RuntimeSetVersion(const ProgramVersion& version) { the_version = version; }

std::int32_t AppIntegerVersionStuffGetter(Object*, std::int32_t which) {
    const std::int32_t numbers[] = {the_version.major, the_version.minor,       the_version.bug,
                                    the_version.stage, the_version.non_release, the_version.region};
    return which >= 0 && which < std::ssize(numbers) ? numbers[which] : 0;
}

String AppStringVersionStuffGetter(Object*, std::int32_t which) {
    const char* const texts[] = {the_version.short_text, the_version.long_text, the_version.package};
    return which >= 0 && which < std::ssize(texts) ? String(std::string_view(texts[which])) : String();
}

}  // namespace tavrik
