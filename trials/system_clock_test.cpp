// Dates as the system writes them go into stamps and file names: every locale that Qt knows is tried.

#include "core/action_log.h"
#include "core/sheet_name.h"
#include "platform/qt/system_clock.h"

#include <gtest/gtest.h>

TEST(Dates, areLatinInEveryLocaleAndNameNoFolder)
{
    const QDate day(2026, 7, 4);
    const auto locales =
        QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory);
    ASSERT_GT(locales.size(), 500);
    for (const QLocale& locale : locales) {
        const std::string date = shortDate(locale, day);
        const std::string name = locale.name().toStdString() + " " + date;
        EXPECT_EQ(date.find_first_not_of("0123456789./- "), std::string::npos) << name;
        EXPECT_NE(date.find("2026"), std::string::npos) << name;
        EXPECT_NE(date.find('7'), std::string::npos) << name;
        EXPECT_NE(date.find('4'), std::string::npos) << name;
        EXPECT_LE(date.size(), 13U) << name;
        EXPECT_EQ(dateStamp({date, 20, 3, 45, 0}), date + " (20:03:45)");
        const std::string copy = proposedCopyName("/home/Lake1.csv", date);
        EXPECT_EQ(copy.find_first_not_of("0123456789.", 13), copy.size() - 5) << name << ": " << copy;
        EXPECT_EQ(copy.rfind('/'), 5U) << name << ": " << copy;
    }
    const auto in = [&](const char* locale) { return shortDate(QLocale(locale), day); };
    EXPECT_EQ(in("C"), "04/07/2026");
    EXPECT_EQ(in("en_GB"), "04/07/2026");
    EXPECT_EQ(in("en_US"), "7/4/2026");
    EXPECT_EQ(in("de_DE"), "04.07.2026");
    EXPECT_EQ(in("bg_BG"), "4.07.2026");
    EXPECT_EQ(in("ar_EG"), "4/7/2026");
    EXPECT_EQ(in("fa_IR"), "2026/7/4");
    EXPECT_EQ(in("ja_JP"), "2026/07/04");
    EXPECT_EQ(proposedCopyName("/home/Lake1.csv", in("ja_JP")), "/home/Lake1_(2026.07.04).csv");
    EXPECT_EQ(proposedCopyName("C:\\Cores\\Lake1.csv", "15/11/2026"), "C:\\Cores\\Lake1_(15.11.2026).csv");
}
