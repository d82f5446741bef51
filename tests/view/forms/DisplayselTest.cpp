// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/forms/DisplaySel.h"
#include "view/Display.h"

#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <gtest/gtest.h>

namespace tally {
namespace {

QRadioButton* option(const DisplaySel& dialog, const QString& text) {
    for (auto* button : dialog.findChildren<QRadioButton*>())
        if (button->text() == text)
            return button;
    return nullptr;
}

TEST(Displaysel, HasItsNamesAndThreeOptions) {
    const DisplaySel dialog(Statistic::average);
    EXPECT_EQ(dialog.objectName(), QStringLiteral("displaysel"));
    for (const auto* name : {u"Option1", u"Option2", u"Option3", u"Command1"}) {
        auto* control = dialog.findChild<QAbstractButton*>(QString::fromUtf16(name));
        ASSERT_NE(control, nullptr);
        EXPECT_FALSE(control->accessibleName().isEmpty());
    }
}

TEST(Displaysel, AverageMinimumAndMaximumSetOneThreeAndTwo) {
    DisplaySel dialog(Statistic::average);
    option(dialog, QStringLiteral("Average"))->setChecked(true);
    EXPECT_EQ(int(dialog.chosen()), 1);
    option(dialog, QStringLiteral("Minimum"))->setChecked(true);
    EXPECT_EQ(int(dialog.chosen()), 3);
    option(dialog, QStringLiteral("Maximum"))->setChecked(true);
    EXPECT_EQ(int(dialog.chosen()), 2);
}

TEST(Displaysel, TheLastChoiceIsOfferedAgain) {
    for (const Statistic each : {Statistic::average, Statistic::maximum, Statistic::minimum})
        EXPECT_EQ(DisplaySel(each).chosen(), each);
}

TEST(Displaysel, TheCommandButtonAcceptsAndEscapeDoesNot) {
    DisplaySel dialog(Statistic::average);
    dialog.show();
    QTest::mouseClick(dialog.findChild<QPushButton*>(QStringLiteral("Command1")), Qt::LeftButton);
    EXPECT_EQ(dialog.result(), int(QDialog::Accepted));
    dialog.show();
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_EQ(dialog.result(), int(QDialog::Rejected));
}

} // namespace
} // namespace tally
