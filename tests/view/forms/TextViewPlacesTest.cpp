// SPDX-License-Identifier: GPL-3.0-or-later
// Places are taken from the painted picture, not from the view: where a letter was painted is where it is
// marked.
#include "view/forms/TextView.h"

#include <QApplication>
#include <QClipboard>
#include <QFontDatabase>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTest>
#include <gtest/gtest.h>

#include <cmath>
#include <optional>

namespace tally {
namespace {

constexpr char16_t block = u'\u2588'; // fills its place from edge to edge

// From where to where a colour, and what is near it, was painted; pixels of the view.
struct Stretch {
    double from;
    double to;
};

class TextViewPlaces : public ::testing::TestWithParam<std::pair<const char*, double>> {
protected:
    TextViewPlaces() {
        QFont font(QString::fromLatin1(GetParam().first));
        font.setPointSizeF(GetParam().second);
        view.setFont(font);
        QPalette colours = view.palette();
        for (const auto group : {QPalette::Active, QPalette::Inactive}) {
            colours.setColor(group, QPalette::Base, Qt::white);
            colours.setColor(group, QPalette::Text, Qt::red);
            colours.setColor(group, QPalette::Highlight, Qt::blue);
            colours.setColor(group, QPalette::HighlightedText, Qt::green);
        }
        view.setPalette(colours);
        view.resize(1600, 200);
        view.setFrameShape(QFrame::NoFrame);
        view.show();
    }

    std::optional<Stretch> painted(bool (*wanted)(const QColor&)) {
        const QImage image = view.viewport()->grab().toImage();
        const double scale = image.devicePixelRatio();
        std::optional<Stretch> found;
        for (int x = 0; x < image.width(); ++x)
            for (int y = 0; y < image.height(); ++y)
                if (wanted(image.pixelColor(x, y))) {
                    found = Stretch{found ? found->from : x / scale, (x + 1) / scale};
                    break;
                }
        return found;
    }
    std::optional<Stretch> letters() {
        return painted([](const QColor& c) { return c.red() > 200 && c.blue() < 100 && c.green() < 100; });
    }
    std::optional<Stretch> marked() {
        return painted([](const QColor& c) { return (c.blue() > 200 || c.green() > 200) && c.red() < 100; });
    }

    void mouse(QEvent::Type type, double x) {
        const QPointF place(x, view.fontMetrics().lineSpacing() / 2.0);
        const Qt::MouseButtons down = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, place, view.viewport()->mapToGlobal(place), Qt::LeftButton, down,
                          Qt::NoModifier);
        QApplication::sendEvent(view.viewport(), &event);
    }
    void drag(double from, double to) {
        mouse(QEvent::MouseButtonPress, from);
        mouse(QEvent::MouseMove, to);
        mouse(QEvent::MouseButtonRelease, to);
    }

    TextView view;
};

// A line of readings with the block far out, where a fraction of a character's width has added up.
QString farOut() {
    QString line;
    for (int reading = 0; reading < 12; ++reading)
        line += QStringLiteral("  %1.%2").arg(100 + 7 * reading, 3).arg(reading % 10);
    return line + QChar(block) + QStringLiteral(" 013.8 ");
}

TEST_P(TextViewPlaces, WhatIsDraggedOverIsMarkedAndCopied) {
    view.setText({}, QStringLiteral("\u2588\r\n")); // its width alone
    const double width = letters()->to - letters()->from;
    // Only the block is painted in full colour, so that its place can be seen.
    view.setText({}, QString(80, u' ') + QChar(block) + QStringLiteral("     "));
    const auto place = letters();
    ASSERT_TRUE(place);
    drag(place->from + 0.2 * width, place->to - 0.2 * width);
    EXPECT_EQ(view.selectedText(), QString(QChar(block)));
    QTest::keyClick(&view, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QString(QChar(block)));
    const auto mark = marked();
    ASSERT_TRUE(mark);
    EXPECT_NEAR(mark->from, place->from, 1.5);
    EXPECT_NEAR(mark->to, place->to, 1.5);
}

TEST_P(TextViewPlaces, WhatIsFoundIsWhatIsMarked) {
    view.setText({}, QString(90, u' ') + QChar(block) + QString(20, u' '));
    const auto place = letters();
    ASSERT_TRUE(place);
    ASSERT_TRUE(view.find(QString(QChar(block))));
    const auto mark = marked();
    ASSERT_TRUE(mark);
    EXPECT_NEAR(mark->from, place->from, 1.5);
    EXPECT_NEAR(mark->to, place->to, 1.5);
}

TEST_P(TextViewPlaces, MarkingMovesNoLetter) {
    view.setText({}, farOut());
    const auto whole = letters();
    ASSERT_TRUE(whole);
    view.setSelection(3, int(farOut().size()) - 9);
    const auto rest = letters(); // what stays unmarked at both ends stays where it was
    ASSERT_TRUE(rest);
    EXPECT_NEAR(rest->from, whole->from, 0.01);
    EXPECT_NEAR(rest->to, whole->to, 0.01);
}

TEST_P(TextViewPlaces, ADragBehindTheLastLetterTakesTheLineToItsEnd) {
    view.setText({}, farOut() + QStringLiteral("\r\nnext"));
    const auto place = letters();
    ASSERT_TRUE(place);
    drag(0, place->to + 100);
    EXPECT_EQ(view.selectedText(), farOut());
}

TEST_P(TextViewPlaces, ALongLineCanBeScrolledToItsEnd) {
    view.setText({}, QString(700, u'0') + QChar(block) + QStringLiteral("\r\nshort\r\n"));
    ASSERT_GT(view.horizontalScrollBar()->maximum(), 0);
    QTest::keyClick(&view, Qt::Key_End);
    // The end and a small margin are in sight, no more: nothing is scrolled past.
    const auto place = letters();
    ASSERT_TRUE(place);
    const double room = view.viewport()->width() - place->to;
    EXPECT_GE(room, 0);
    EXPECT_LE(room, 10);
    QTest::keyClick(&view, Qt::Key_Home, Qt::ShiftModifier);
    view.horizontalScrollBar()->setValue(view.horizontalScrollBar()->maximum());
    const auto mark = marked();
    ASSERT_TRUE(mark);
    EXPECT_NEAR(mark->to, place->to, 1.5);
}

TEST_P(TextViewPlaces, AWideLineAmongLongerOnesCanBeScrolledToItsEnd) {
    // Letters of another width: fewer of them need more room.
    view.setText({}, QString(400, u'.') + QStringLiteral("\r\n") + QString(390, u'\u4e00') +
                         QStringLiteral("\r\n"));
    view.setSelection(0, 791); // all of both lines
    view.horizontalScrollBar()->setValue(view.horizontalScrollBar()->maximum());
    const auto mark = marked();
    ASSERT_TRUE(mark);
    EXPECT_LE(mark->to, view.viewport()->width() - 1);
}

INSTANTIATE_TEST_SUITE_P(Fonts, TextViewPlaces,
                         ::testing::Values(std::pair{"DejaVu Sans Mono", 10.0},
                                           std::pair{"DejaVu Sans Mono", 11.3},
                                           std::pair{"Liberation Mono", 9.5}, std::pair{"DejaVu Sans", 10.0},
                                           std::pair{"Liberation Serif", 13.7}));

} // namespace
} // namespace tally
