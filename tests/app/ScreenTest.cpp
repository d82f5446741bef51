// SPDX-License-Identifier: GPL-3.0-or-later
#include "WindowTest.h"

#include <QTest>
#include <QToolBar>

namespace tally {
namespace {

using testing::dataFile;
using testing::WindowTest;

class Screen : public WindowTest {};

TEST_F(Screen, LongNamesOfThreeFilesStayOnTheLineAndPushNoButtonOff) {
    const std::string dir = "/d/" + std::string(60, 'n');
    for (const char* name : {"1.dat", "2.dat", "3.dat"})
        open(dir + name, dataFile('a', std::vector<int>(20, 100)));
    window.resize(1000, 700);
    window.show();
    click("mnuItemViewPlot");
    QTest::qWait(1);
    auto* label = window.findChild<QLabel*>(QStringLiteral("displayingChart"));
    EXPECT_TRUE(label->isVisible());
    EXPECT_GT(label->width(), 100);
    auto* bar = qobject_cast<QToolBar*>(label->parentWidget());
    ASSERT_NE(bar, nullptr);
    for (QAction* action : bar->actions()) {
        const QWidget* button = bar->widgetForAction(action);
        EXPECT_TRUE(!button || !action->isVisible() || button->isVisible()) << action->text().toStdString();
    }
    EXPECT_EQ(window.width(), 1000);
}

} // namespace
} // namespace tally
