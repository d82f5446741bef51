// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/forms/TitleBlock.h"

#include "view/forms/ChartLook.h"

#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

namespace tally {
namespace {

constexpr int minimum = 10; // pixels of the smallest letters

QString head() {
    return QStringLiteral("        File Data:   N/A\r\nMode:  Average;     Cont;    15 min interval      \r\n"
                          "Date printed   Nov-21-26");
}

QString notes(const QString& text) {
    return QStringLiteral("\r\nLocation: %1\r\nCircuit:     %1\r\nName:     %1\r\nOther:      %1").arg(text);
}

class ChartTitle : public ::testing::Test {
protected:
    TitleBlock block;
    QFont font = ChartLook::onPaper().font;
    int line = QFontMetrics(font).height();

    int heightOf(const QString& text, int width, int maximum) {
        block.setText(text);
        return block.layOut(width, maximum, font, minimum);
    }
    // Where letters stand in a picture of the block with white around it.
    QRect inked(int width, int height) const {
        constexpr int around = 20;
        QImage image(width + 2 * around, height + 2 * around, QImage::Format_Grayscale8);
        image.fill(Qt::white);
        QPainter painter(&image);
        block.paint(painter, around, around);
        painter.end();
        QRect ink;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (qGray(image.pixel(x, y)) < 128)
                    ink |= QRect(x - around, y - around, 1, 1);
        return ink;
    }
};

TEST_F(ChartTitle, EmptyNotesOfThreeFilesStandBesideTheHead) {
    EXPECT_EQ(heightOf(head() + notes({}) + notes({}) + notes({}), 780, 400), 4 * line);
}

TEST_F(ChartTitle, ShortNotesOfThreeFilesStandBesideTheHead) {
    const QString three =
        notes(QStringLiteral("North yard")) + notes(QStringLiteral("North yard")) + notes({});
    EXPECT_EQ(heightOf(head() + three, 980, 400), 4 * line);
}

TEST_F(ChartTitle, ASpanStandsBelowTheColumns) {
    EXPECT_EQ(heightOf(head() + notes({}) + QStringLiteral("\r\nSelected: 3 points"), 780, 400), 5 * line);
}

TEST_F(ChartTitle, LongNotesOfThreeFilesTakeAThirdOfASmallWindow) {
    const QString text = QStringLiteral("Substation on the north bank, second transformer from the gate");
    EXPECT_LE(heightOf(head() + notes(text) + notes(text) + notes(text), 780, 150), 150);
}

TEST_F(ChartTitle, NothingStandsOutsideItsRoom) {
    for (const int letters : {0, 5, 40, 200})
        for (const int width : {300, 780, 1380}) {
            const QString text = QStringLiteral("word ").repeated(letters / 5);
            const int height = heightOf(head() + notes(text) + notes({}) + notes(text), width, 150);
            EXPECT_TRUE(QRect(-1, -1, width + 2, height + 2).contains(inked(width, height)))
                << letters << " letters, " << width << " pixels";
        }
}

TEST_F(ChartTitle, AnotherTextFindsNewPlaces) {
    const int one = heightOf(head(), 780, 150);
    EXPECT_GT(heightOf(head() + notes({}), 780, 150), one);
    EXPECT_EQ(heightOf({}, 780, 150), 0);
}

TEST_F(ChartTitle, AnotherWidthFindsNewPlaces) {
    block.setText(head() + notes({}));
    EXPECT_LT(block.layOut(780, 400, font, minimum), block.layOut(100, 400, font, minimum));
}

} // namespace
} // namespace tally
