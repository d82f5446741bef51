// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/forms/TextView.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTest>
#include <gtest/gtest.h>

namespace tally {
namespace {

class TableTextView : public ::testing::Test {
protected:
    TableTextView() {
        view.resize(700, 300);
        QString text;
        for (int line = 0; line < 1000; ++line)
            text += QStringLiteral("line %1  000.%2\r\n").arg(line, 4, 10, QChar(u'0')).arg(line % 10);
        view.setText(QStringLiteral(" Time     Date"), text);
        view.show();
        QApplication::processEvents();
    }

    void mouse(QEvent::Type type, int position, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        const QRectF character = view.characterRect(position);
        const QPointF place(character.left() + 1, character.center().y());
        QMouseEvent event(type, place, view.viewport()->mapToGlobal(place), Qt::LeftButton,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, modifiers);
        QApplication::sendEvent(view.viewport(), &event);
    }

    QLineEdit* entry() const { return view.findChild<QLineEdit*>(QStringLiteral("findText")); }

    TextView view;
};

TEST_F(TableTextView, EveryLineBreakCountsOnceAndTheLastIsNoLine) {
    view.setText({}, QStringLiteral("a\r\nb\rc\nd\r\n"));
    EXPECT_EQ(view.lineCount(), 4);
    EXPECT_EQ(view.text(), QStringLiteral("a\nb\nc\nd\n"));
    view.setText({}, QStringLiteral("a\r\n\r\nb"));
    EXPECT_EQ(view.lineCount(), 3);
    view.setText({}, {});
    EXPECT_EQ(view.lineCount(), 1);
}

TEST_F(TableTextView, TheHeadingStandsAboveTheTextAndGoesWhenItIsEmpty) {
    auto* heading = view.findChild<QWidget*>(QStringLiteral("textHeading"));
    ASSERT_NE(heading, nullptr);
    EXPECT_TRUE(heading->isVisible());
    EXPECT_LE(heading->geometry().bottom(), view.viewport()->geometry().top());
    EXPECT_EQ(heading->accessibleName(), QStringLiteral(" Time     Date"));
    view.verticalScrollBar()->setValue(500);
    EXPECT_TRUE(heading->isVisible());
    view.setText({}, QStringLiteral("x"));
    EXPECT_FALSE(heading->isVisible());
}

TEST_F(TableTextView, AMouseDragSelectsAndCopyTakesTheSelection) {
    mouse(QEvent::MouseButtonPress, 0);
    mouse(QEvent::MouseMove, 9);
    mouse(QEvent::MouseButtonRelease, 9);
    EXPECT_EQ(view.selectedText(), QStringLiteral("line 0000"));
    QTest::keyClick(&view, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("line 0000"));
}

TEST_F(TableTextView, ADoubleClickTakesTheWord) {
    mouse(QEvent::MouseButtonDblClick, 6);
    EXPECT_EQ(view.selectedText(), QStringLiteral("0000"));
}

TEST_F(TableTextView, WithoutASelectionCopyTakesHeadingAndText) {
    view.setText(QStringLiteral("head"), QStringLiteral("a\r\nb\r\n"));
    view.copy();
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("head\na\nb\n"));
}

TEST_F(TableTextView, SelectAllTakesEveryLine) {
    view.setText({}, QStringLiteral("a\r\nb\r\n"));
    QTest::keyClick(&view, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(view.selectedText(), QStringLiteral("a\nb"));
}

TEST_F(TableTextView, KeysMoveAndScrollTheText) {
    QTest::keyClick(&view, Qt::Key_PageDown);
    EXPECT_GT(view.selection().second, 0);
    QTest::keyClick(&view, Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(view.selection().second, view.text().size() - 1);
    EXPECT_GT(view.firstVisibleLine(), 900);
    QTest::keyClick(&view, Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(view.firstVisibleLine(), 0);
    QTest::keyClick(&view, Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(view.selectedText(), QStringLiteral("line 0000  000.0\n"));
    QTest::keyClick(&view, Qt::Key_Right);
    QTest::keyClick(&view, Qt::Key_Up);
    EXPECT_EQ(view.selection(), std::pair(1, 1));
}

TEST_F(TableTextView, ControlFSearchesAndF3GoesOn) {
    QTest::keyClick(&view, Qt::Key_F, Qt::ControlModifier);
    ASSERT_TRUE(entry()->isVisible());
    QTest::keyClicks(entry(), QStringLiteral("LINE 05"));
    EXPECT_EQ(view.selectedText(), QStringLiteral("line 05")); // letter case does not matter
    const int first = view.selection().first;
    EXPECT_LE(view.firstVisibleLine(), 500);
    EXPECT_GT(view.firstVisibleLine(), 400); // it was scrolled into sight
    QTest::keyClick(&view, Qt::Key_F3);
    EXPECT_EQ(view.selection().first, first + 17);
    QTest::keyClick(&view, Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(view.selection().first, first);
    QTest::keyClick(entry(), Qt::Key_Escape);
    EXPECT_FALSE(entry()->isVisible());
}

TEST_F(TableTextView, SearchGoesOnAtTheOtherEndAndSaysWhenThereIsNothing) {
    EXPECT_TRUE(view.find(QStringLiteral("line 0999")));
    EXPECT_TRUE(view.find(QStringLiteral("line 0000")));
    EXPECT_TRUE(view.find(QStringLiteral("line 0999"), true));
    EXPECT_FALSE(view.find(QStringLiteral("absent")));
    EXPECT_EQ(view.selectedText(), QStringLiteral("line 0999")); // nothing found changes nothing
    view.showFindBar();
    entry()->clear();
    QTest::keyClicks(entry(), QStringLiteral("absent"));
    EXPECT_EQ(view.findChild<QLabel*>(QStringLiteral("findState"))->text(), QStringLiteral("Not found"));
}

TEST_F(TableTextView, ANewTextBeginsAtTheTopWithoutSelection) {
    view.selectAll();
    view.verticalScrollBar()->setValue(700);
    view.setText({}, QStringLiteral("short"));
    EXPECT_EQ(view.firstVisibleLine(), 0);
    EXPECT_EQ(view.selection(), std::pair(0, 0));
}

TEST_F(TableTextView, OnlyTheLinesInSightArePainted) {
    const QImage top = view.grab().toImage();
    view.verticalScrollBar()->setValue(300);
    EXPECT_NE(view.grab().toImage(), top);
}

TEST_F(TableTextView, IsReadOutToAssistivePrograms) {
    QAccessibleInterface* access = QAccessible::queryAccessibleInterface(&view);
    ASSERT_NE(access, nullptr);
    QAccessibleTextInterface* text = access->textInterface();
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(text->characterCount(), view.text().size());
    EXPECT_EQ(text->text(0, 9), QStringLiteral("line 0000"));
    EXPECT_TRUE(access->state().readOnly);
    text->setSelection(0, 2, 5);
    EXPECT_EQ(view.selection(), std::pair(2, 5));
    EXPECT_EQ(text->cursorPosition(), 5);
    EXPECT_EQ(text->offsetAtPoint(text->characterRect(3).center() - QPoint(1, 0)), 3);
}

} // namespace
} // namespace tally
