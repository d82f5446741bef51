// SPDX-License-Identifier: GPL-3.0-or-later
// No text of a plot lies over another, at any size and with any letters: measured on the texts as they are
// drawn into an SVG file.
#include "view/forms/PlotScene.h"

#include "ChartSupport.h"
#include "view/forms/QcpInclude.h"

#include <QBuffer>
#include <QSvgGenerator>
#include <QXmlStreamReader>
#include <gtest/gtest.h>

namespace tally {
namespace {

struct Text {
    QString words;
    QRectF place;
};

QTransform transformOf(const QString& matrix) {
    if (!matrix.startsWith(QLatin1String("matrix(")))
        return {};
    const auto numbers = matrix.mid(7).chopped(1).split(QLatin1Char(','));
    double m[6] = {1, 0, 0, 1, 0, 0};
    for (int i = 0; i < 6 && i < numbers.size(); ++i)
        m[i] = numbers[i].toDouble();
    return {m[0], m[1], m[2], m[3], m[4], m[5]};
}

// The texts of a picture, each with the room of its letters above the base line.
std::vector<Text> textsOf(const QByteArray& svg, const QFont& font) {
    std::vector<Text> texts;
    QXmlStreamReader xml(svg);
    QTransform transform;
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement())
            continue;
        const auto attributes = xml.attributes();
        if (xml.name() == QLatin1String("g"))
            transform = transformOf(attributes.value(QLatin1String("transform")).toString());
        if (xml.name() != QLatin1String("text"))
            continue;
        QFont letters = font;
        letters.setPixelSize(int(attributes.value(QLatin1String("font-size")).toDouble()));
        const QFontMetrics metrics(letters);
        const double x = attributes.value(QLatin1String("x")).toDouble();
        const double y = attributes.value(QLatin1String("y")).toDouble();
        const QString words = xml.readElementText();
        const QRectF room(x, y - metrics.capHeight(), metrics.horizontalAdvance(words), metrics.capHeight());
        texts.push_back({words, transform.mapRect(room)});
    }
    return texts;
}

std::vector<Text> textsOf(const Plot& plot, QSize size, int letters) {
    PlotScene scene;
    scene.setLook(ChartLook::onPaper(letters));
    scene.setPlot(plot);
    QBuffer out;
    out.open(QIODevice::WriteOnly);
    QSvgGenerator generator;
    generator.setOutputDevice(&out);
    generator.setResolution(96);
    generator.setSize(size);
    generator.setViewBox(QRect(QPoint(0, 0), size));
    QCPPainter painter(&generator);
    scene.paint(painter, size, true);
    painter.end();
    return textsOf(out.data(), scene.look().font);
}

std::string overlapIn(const std::vector<Text>& texts) {
    for (std::size_t i = 0; i < texts.size(); ++i)
        for (std::size_t j = i + 1; j < texts.size(); ++j)
            if (texts[i].place.intersects(texts[j].place))
                return texts[i].words.toStdString() + " / " + texts[j].words.toStdString();
    return {};
}

Plot untitled(int points) {
    Plot plot = testing::samplePlot(points);
    plot.title.clear();
    return plot;
}

TEST(ChartLabels, OfFifteenPointsNeverOverlapAtAnyWidth) {
    for (int width = 200; width <= 1900; width += 37) {
        const auto texts = textsOf(untitled(15), {width, 500}, 13);
        EXPECT_GE(texts.size(), 3U) << width;
        EXPECT_EQ(overlapIn(texts), "") << width;
    }
}

TEST(ChartLabels, NeverOverlapWithAnyNumberOfPointsOrLetters) {
    for (const int points : {1, 2, 7, 8, 9, 15, 16, 23, 100, 42966})
        for (const int letters : {10, 13, 18, 26, 40})
            for (const int width : {360, 700, 1200}) {
                const auto texts = textsOf(untitled(points), {width, 400}, letters);
                EXPECT_EQ(overlapIn(texts), "") << points << " points, " << letters << " px, " << width;
            }
}

TEST(ChartLabels, AllNineStandWhereThereIsRoom) {
    int found = 0;
    for (const Text& text : textsOf(untitled(100), {1600, 500}, 13))
        found += text.words.contains(QStringLiteral("12:00")) ? 1 : 0;
    EXPECT_EQ(found, 9);
}

TEST(ChartLabels, StayInsideThePicture) {
    for (const int width : {300, 500, 900})
        for (const Text& text : textsOf(untitled(15), {width, 400}, 16)) {
            EXPECT_GE(text.place.left(), 0) << width << text.words.toStdString();
            EXPECT_LE(text.place.right(), width) << width << text.words.toStdString();
        }
}

} // namespace
} // namespace tally
