#include "toolkit/core/date_texts.h"

#include "data/date.h"

#include <gmock/gmock.h>

#include <array>
#include <clocale>
#include <cstdlib>
#include <string>

// The C library doesn't free the path that it makes of LOCPATH.
extern "C" const char* __lsan_default_suppressions() { return "leak:__argz_add_sep"; }

namespace tavrik::test {
namespace {

using core::DateTexts;

// Short, long and abbreviated date, short and long time.
using Texts = std::array<std::string, kDateLongTime + 1>;

// Of 2026-03-01 15:04:09, a Sunday.
Texts texts_in(const std::string& locale) {
    std::tm time{.tm_sec = 9, .tm_min = 4, .tm_hour = 15, .tm_mday = 1, .tm_mon = 2, .tm_year = 126};
    const DateTexts texts(locale);
    Texts all;
    for (std::int32_t which = 0; which <= kDateLongTime; ++which) {
        all[static_cast<std::size_t>(which)] = texts.text(static_cast<DateText>(which), time);
    }
    return all;
}

const Texts kPlain{"03/01/2026", "Sunday, March 1, 2026", "Sun, Mar 1, 2026", "15:04", "15:04:09"};

bool is_installed(const char* name) {
    const locale_t locale = newlocale(LC_TIME_MASK, name, nullptr);
    if (locale != nullptr) freelocale(locale);
    return locale != nullptr;
}

struct Case {
    const char* locale;
    Texts texts;
};
void PrintTo(const Case& each, std::ostream* out) { *out << each.locale; }

class DateTextsIn : public testing::TestWithParam<Case> {};

TEST_P(DateTextsIn, Follow_the_locale) {
    if (!is_installed(GetParam().locale)) GTEST_SKIP() << GetParam().locale << " isn't installed";
    EXPECT_EQ(texts_in(GetParam().locale), GetParam().texts);
}

INSTANTIATE_TEST_SUITE_P(
    Locales, DateTextsIn,
    testing::Values(
        Case{"en_US.UTF-8", {"03/01/2026", "Sunday, March 1, 2026", "Sun, Mar 1, 2026", "03:04 PM", "03:04:09 PM"}},
        Case{"en_GB.UTF-8", {"01/03/2026", "Sunday, 1 March 2026", "Sun, 1 Mar 2026", "15:04", "15:04:09"}},
        Case{"de_DE.UTF-8", {"01.03.2026", "Sonntag, 1. März 2026", "So, 1. Mär 2026", "15:04", "15:04:09"}},
        Case{"fi_FI.UTF-8", {"01.03.2026", "sunnuntai 1. maaliskuuta 2026", "su 1. maalis 2026", "15.04", "15.04.09"}},
        Case{"th_TH.UTF-8", {"01/03/2569", "อาทิตย์, 1 มีนาคม พ.ศ. 2569", "อา., 1 มี.ค. พ.ศ. 2569", "15:04", "15:04:09"}},
        Case{"ja_JP.UTF-8",
             {"2026年03月01日", "2026年03月01日 日曜日", "2026年03月01日 日", "15時04分", "15時04分09秒"}}),
    [](const auto& each) { return std::string(each.param.locale, 5); });

TEST(DateTexts, Are_English_in_the_plain_locale_and_where_there_is_none) {
    EXPECT_EQ(texts_in("C"), kPlain);
    EXPECT_EQ(texts_in("C.UTF-8"), kPlain);
    EXPECT_EQ(texts_in("xx_XX.UTF-8"), kPlain);
}

TEST(DateTexts, Are_in_UTF_8_when_the_locale_names_another_encoding) {
    if (!is_installed("de_DE.UTF-8")) GTEST_SKIP() << "de_DE.UTF-8 isn't installed";
    EXPECT_EQ(texts_in("de_DE.ISO-8859-1"), texts_in("de_DE.UTF-8"));
    EXPECT_EQ(texts_in("de_DE"), texts_in("de_DE.UTF-8"));
}

TEST(DateTexts, Of_a_date_follow_the_environment_and_leave_the_locale_of_the_process) {
    if (!is_installed("de_DE.UTF-8")) GTEST_SKIP() << "de_DE.UTF-8 isn't installed";
    // In a process of its own, which hasn't asked for the user's locale yet.
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto tell = [] {
        setenv("LANG", "en_US.UTF-8", 1);
        setenv("LC_TIME", "de_DE.UTF-8", 1);
        setenv("LC_ALL", "", 1);
        const Ref<Date> date = make<Date>();
        date->set_SQLDateTime("2026-03-01 15:04:09"_s);
        for (const String& text : {date->ShortDate(), date->LongDate(), date->AbbreviatedDate(), date->ShortTime(),
                                   date->LongTime(), String(std::string_view(std::setlocale(LC_ALL, nullptr)))}) {
            std::fprintf(stderr, "%s|", std::string(text.view()).c_str());
        }
        std::_Exit(0);
    };
    EXPECT_EXIT(tell(), testing::ExitedWithCode(0),
                testing::HasSubstr("01.03.2026|Sonntag, 1. März 2026|So, 1. Mär 2026|15:04|15:04:09|C|"));
}

}  // namespace
}  // namespace tavrik::test
