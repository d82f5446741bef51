// SPDX-License-Identifier: GPL-3.0-or-later
#include "ChartSupport.h"
#include "view/forms/Chart.h"
#include "view/forms/ChartLook.h"
#include "view/forms/NotePaint.h"

#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

namespace tally {
namespace {

class ChartNotesTest : public ::testing::Test {
protected:
    ChartNotesTest() {
        chart.resize(900, 600);
        chart.showPlot(testing::samplePlot(1000));
        chart.show();
        QApplication::processEvents();
    }

    QPointF onNote(std::size_t index) const {
        const QRectF frame = chart.frame();
        const ChartNote& note = chart.notes()[index];
        return {frame.left() + note.x * frame.width() + 8, frame.top() + note.y * frame.height() + 8};
    }

    QPlainTextEdit* editor() const { return chart.findChild<QPlainTextEdit*>(QStringLiteral("noteEditor")); }

    void doubleClick(QPointF place) {
        testing::sendMouse(chart, QEvent::MouseButtonPress, place);
        testing::sendMouse(chart, QEvent::MouseButtonRelease, place);
        testing::sendMouse(chart, QEvent::MouseButtonDblClick, place);
        testing::sendMouse(chart, QEvent::MouseButtonRelease, place);
    }

    Chart chart;
};

TEST_F(ChartNotesTest, AnAddedNoteIsPaintedAndTold) {
    QSignalSpy changed(&chart, &Chart::notesChanged);
    const QImage before = chart.grab().toImage();
    chart.addNote("Storm");
    EXPECT_EQ(changed.size(), 1);
    ASSERT_EQ(chart.notes().size(), 1U);
    EXPECT_EQ(chart.notes()[0].text, "Storm");
    EXPECT_NE(chart.grab().toImage(), before);
}

TEST_F(ChartNotesTest, AnEmptyTextAddsNothing) {
    chart.addNote("");
    EXPECT_TRUE(chart.notes().empty());
}

TEST_F(ChartNotesTest, ADraggedNoteStandsWhereItWasPutAndMarksNoSpan) {
    QSignalSpy started(&chart, &Chart::spanStarted);
    chart.setNotes({{0.1, 0.1, "Storm"}});
    const QRectF frame = chart.frame();
    testing::drag(chart, onNote(0), onNote(0) + QPointF(frame.width() * 0.3, frame.height() * 0.4));
    EXPECT_NEAR(chart.notes()[0].x, 0.4, 0.005);
    EXPECT_NEAR(chart.notes()[0].y, 0.5, 0.005);
    EXPECT_EQ(started.size(), 0);
}

TEST_F(ChartNotesTest, ANoteCannotBeDraggedOffTheChart) {
    chart.setNotes({{0.5, 0.5, "Storm"}});
    testing::drag(chart, onNote(0), {-4000, 9000});
    EXPECT_EQ(chart.notes()[0].x, 0);
    EXPECT_LE(chart.notes()[0].y, 1);
    const QRectF place = notePlace(chart.notes()[0], chart.frame(), ChartLook::onPaper().font);
    EXPECT_TRUE(chart.frame().contains(place));
}

TEST_F(ChartNotesTest, ADoubleClickEditsAndEnterKeeps) {
    chart.setNotes({{0.2, 0.2, "Storm"}});
    doubleClick(onNote(0));
    ASSERT_NE(editor(), nullptr);
    EXPECT_EQ(editor()->toPlainText(), QStringLiteral("Storm"));
    EXPECT_FALSE(editor()->accessibleName().isEmpty());
    editor()->setPlainText(QStringLiteral("Ice"));
    QTest::keyClick(editor(), Qt::Key_Return);
    EXPECT_EQ(chart.notes()[0].text, "Ice");
}

TEST_F(ChartNotesTest, EscapeLeavesTheTextAsItWas) {
    chart.setNotes({{0.2, 0.2, "Storm"}});
    doubleClick(onNote(0));
    editor()->setPlainText(QStringLiteral("Ice"));
    QTest::keyClick(editor(), Qt::Key_Escape);
    EXPECT_EQ(chart.notes()[0].text, "Storm");
}

TEST_F(ChartNotesTest, ANoteThatWasEmptiedIsGone) {
    chart.setNotes({{0.2, 0.2, "Storm"}});
    doubleClick(onNote(0));
    editor()->clear();
    QTest::keyClick(editor(), Qt::Key_Return);
    EXPECT_TRUE(chart.notes().empty());
}

TEST_F(ChartNotesTest, DelRemovesTheSelectedNoteOnly) {
    chart.setNotes({{0.1, 0.1, "one"}, {0.6, 0.6, "two"}});
    QTest::keyClick(&chart, Qt::Key_Delete);
    EXPECT_EQ(chart.notes().size(), 2U); // none is selected
    testing::sendMouse(chart, QEvent::MouseButtonPress, onNote(0));
    testing::sendMouse(chart, QEvent::MouseButtonRelease, onNote(0));
    QTest::keyClick(&chart, Qt::Key_Delete);
    ASSERT_EQ(chart.notes().size(), 1U);
    EXPECT_EQ(chart.notes()[0].text, "two");
}

TEST_F(ChartNotesTest, KeysSelectMoveAndEditANote) {
    chart.setNotes({{0.2, 0.2, "one"}});
    QTest::keyClick(&chart, Qt::Key_N);
    QTest::keyClick(&chart, Qt::Key_Right);
    QTest::keyClick(&chart, Qt::Key_Down);
    EXPECT_NEAR(chart.notes()[0].x, 0.21, 1e-6);
    EXPECT_NEAR(chart.notes()[0].y, 0.21, 1e-6);
    QTest::keyClick(&chart, Qt::Key_F2);
    EXPECT_NE(editor(), nullptr);
}

TEST_F(ChartNotesTest, ClearTakesAllNotes) {
    chart.setNotes({{0.1, 0.1, "one"}, {0.6, 0.6, "two"}});
    chart.clearNotes();
    EXPECT_TRUE(chart.notes().empty());
}

TEST_F(ChartNotesTest, ALongNoteIsBrokenAndStaysInTheFrame) {
    const std::string longest(300, 'W');
    const ChartNote note{0.9, 0.9, longest};
    const QRectF frame(50, 50, 800, 400);
    EXPECT_TRUE(frame.contains(notePlace(note, frame, ChartLook::onPaper().font)));
}

} // namespace
} // namespace tally
