#pragma once

#include <tavrik/date.h>

#include <array>
#include <clocale>
#include <ctime>
#include <memory>
#include <string>
#include <type_traits>

namespace tavrik::core {

// The five texts of a date in the wording of one locale. The locale of the process is neither used nor changed.
class DateTexts {
public:
    // A locale that isn't there, or has no texts in UTF-8, words them as "C" does.
    explicit DateTexts(const std::string& locale_name);

    // Those of the user: as LC_ALL, LC_TIME or LANG said when they were first asked for.
    static const DateTexts& of_user();

    std::string text(DateText which, const std::tm& time) const;

private:
    struct FreeLocale {
        void operator()(locale_t locale) const { freelocale(locale); }
    };
    using Locale = std::unique_ptr<std::remove_pointer_t<locale_t>, FreeLocale>;

    static Locale open(const std::string& name);

    Locale locale_;
    std::array<std::string, kDateLongTime + 1> forms_;  // as strftime takes them
};

}  // namespace tavrik::core
