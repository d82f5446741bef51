// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/forms/InitInst.h"

#include "control/ModeLetter.h"
#include "link/forms/LinkSupport.h"

#include <QGroupBox>
#include <QLabel>

namespace tally {
namespace {

using namespace testing;

// What stands in for the length of time.
std::string lasts(const ModeChoice& choice) {
    return std::to_string(choice.minutes) + (choice.minMaxAvg ? " mma" : " avg");
}

TEST(InitInstForm, SaysHowLongTheMemoryLastsAtEachChoice) {
    const InitInst form("", lasts, nullptr);
    const auto* label = form.findChild<QLabel*>(QStringLiteral("MemoryLasts"));
    EXPECT_EQ(label->text(), QStringLiteral("15 avg"));
    named(form, "Option3")->click();
    named(form, "Option5")->click();
    EXPECT_EQ(label->text(), QStringLiteral("1 mma"));
}

TEST(InitInstForm, HasItsFramesOptionsAndButtons) {
    const InitInst form("", lasts, nullptr);
    EXPECT_EQ(form.windowTitle(), QStringLiteral("Initialization Options"));
    const std::pair<const char*, const char*> frames[] = {
        {"Frame1", "Select Time"}, {"Frame2", "Average or Min/Max/Avg"}, {"Frame3", "Continuous or Stop"}};
    for (const auto& [name, title] : frames)
        EXPECT_EQ(named<QGroupBox>(form, name)->title(), QString::fromLatin1(title));
    const std::pair<const char*, const char*> buttons[] = {{"Option1", "15 minutes"},
                                                           {"Option2", "5 minutes"},
                                                           {"Option3", "1 minute"},
                                                           {"Option4", "Average"},
                                                           {"Option5", "Min/Max/Avg"},
                                                           {"Option6", "Continuous Loop"},
                                                           {"Option7", "Stop when memory full"},
                                                           {"Command1", "Proceed"},
                                                           {"Command2", "Cancel"}};
    for (const auto& [name, caption] : buttons)
        EXPECT_EQ(named(form, name)->text(), QString::fromLatin1(caption));
}

TEST(InitInstForm, EveryFrameHasOneChoice) {
    const char* const times[] = {"Option1", "Option2", "Option3"};
    const char* const kinds[] = {"Option4", "Option5"};
    const char* const ends[] = {"Option6", "Option7"};
    std::string letters;
    for (const char* end : ends)
        for (const char* kind : kinds)
            for (const char* time : times) {
                const InitInst form("", lasts, nullptr);
                click(form, time);
                click(form, kind);
                click(form, end);
                letters += modeLetter(form.choice());
            }
    EXPECT_EQ(letters, "abcghidefjkl");
}

TEST(InitInstForm, StartsWithTheFirstChoiceOfEachFrame) {
    EXPECT_EQ(modeLetter(InitInst("", lasts, nullptr).choice()), 'a');
}

TEST(InitInstForm, ShowsWhatIsKnownOfDownloads) {
    EXPECT_EQ(labelText(InitInst("Last downloads:  0417: NOT SAVED YET", lasts, nullptr), "KnownDownloads"),
              "Last downloads:  0417: NOT SAVED YET");
}

} // namespace
} // namespace tally
