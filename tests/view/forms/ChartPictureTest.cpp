// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/forms/ChartPicture.h"

#include "ChartSupport.h"
#include "support/MemoryFiles.h"

#include <QImage>
#include <QProcess>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tally {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

QByteArray bytesOf(const std::string& bytes) {
    return QByteArray(bytes.data(), qsizetype(bytes.size()));
}

std::string textOfPdf(const std::string& bytes) {
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("plot.pdf")));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytesOf(bytes));
    file.close();
    QProcess reader;
    reader.start(QStringLiteral("pdftotext"),
                 {QStringLiteral("-layout"), file.fileName(), QStringLiteral("-")});
    EXPECT_TRUE(reader.waitForFinished(20000));
    return reader.readAllStandardOutput().toStdString();
}

TEST(ChartPicture, ThePathNamesTheKind) {
    EXPECT_EQ(pictureKind("a.png"), PictureKind::png);
    EXPECT_EQ(pictureKind("/x/A.PDF"), PictureKind::pdf);
    EXPECT_EQ(pictureKind("a.b.Svg"), PictureKind::svg);
    EXPECT_FALSE(pictureKind("a.jpg"));
    EXPECT_FALSE(pictureKind("png"));
}

TEST(ChartPicture, APngHasTheSizeThatWasAsked) {
    const std::string bytes = pictureBytes(testing::samplePlot(500), {}, PictureKind::png, {640, 400});
    const QImage image = QImage::fromData(bytesOf(bytes), "PNG");
    EXPECT_EQ(image.size(), QSize(640, 400));
    EXPECT_EQ(image.pixelColor(1, 1), QColor(Qt::white));
}

TEST(ChartPicture, APdfHoldsItsTextAsText) {
    const std::string bytes =
        pictureBytes(testing::samplePlot(42966, 3), {{0.2, 0.2, "Storm"}}, PictureKind::pdf, {1200, 700});
    const std::string text = textOfPdf(bytes);
    for (const char* word : {"File Data:", "Mode:", "Date printed", "Location: North", "4711", "FILE2.DAT",
                             "MAY 01 12:00", "MAY 09 12:00", "Storm", "AMPS"})
        EXPECT_THAT(text, HasSubstr(word));
    EXPECT_LT(bytes.size(), 1000000U); // the lines are decimated on paper, too
}

TEST(ChartPicture, AnSvgHoldsItsTextAsTextAndCanBeRead) {
    const std::string bytes =
        pictureBytes(testing::samplePlot(3000, 2), {{0.2, 0.2, "Storm"}}, PictureKind::svg, {1200, 700});
    for (const char* word : {"<text", "Location: North", "MAY 05 12:00", "Storm", "AMPS"})
        EXPECT_THAT(bytes, HasSubstr(word));
    QSvgRenderer renderer(bytesOf(bytes));
    EXPECT_TRUE(renderer.isValid());
    EXPECT_EQ(renderer.viewBox().size(), QSize(1200, 700));
}

TEST(ChartPicture, AllLinesOfALongTitleAreThere) {
    Plot plot = testing::samplePlot(100, 3);
    for (int file = 2; file <= 3; ++file)
        plot.title += "\r\nLocation: Site" + std::to_string(file) + " " + std::string(60, 'x') +
                      "\r\nCircuit:     C" + std::to_string(file) + "\r\nName:     N" + std::to_string(file) +
                      "\r\nOther:      O" + std::to_string(file);
    plot.title += "\r\nSelected:   13:45  MAY 10, 26   to   02:00  MAY 12, 26";
    for (const QSize size : {QSize(1200, 700), QSize(480, 360)}) {
        const std::string text = textOfPdf(pictureBytes(plot, {}, PictureKind::pdf, size));
        for (const char* word : {"Site2", "Site3", "C2", "C3", "N2", "N3", "O2", "O3", "Selected:", "02:00"})
            EXPECT_THAT(text, HasSubstr(word));
    }
}

TEST(ChartPicture, AFileIsWrittenThroughTheFiles) {
    testing::MemoryFiles files;
    std::string why;
    EXPECT_TRUE(exportPicture(testing::samplePlot(50), {}, "plot.png", {300, 200}, files, &why));
    EXPECT_THAT(files.contents["plot.png"], StartsWith("\x89PNG"));
    EXPECT_TRUE(exportPicture(testing::samplePlot(50), {}, "plot.pdf", {300, 200}, files, &why));
    EXPECT_THAT(files.contents["plot.pdf"], StartsWith("%PDF"));
    EXPECT_EQ(why, "");
}

TEST(ChartPicture, AFullDiskIsToldAndTheOldPictureStays) {
    testing::MemoryFiles files;
    files.contents["plot.png"] = "old";
    files.failWrite = fault::diskFull();
    std::string why;
    EXPECT_FALSE(exportPicture(testing::samplePlot(50), {}, "plot.png", {300, 200}, files, &why));
    EXPECT_EQ(why, "Disk full: plot.png");
    EXPECT_EQ(files.contents["plot.png"], "old");
}

TEST(ChartPicture, AnUnknownKindAndAnUnusableSizeAreRefused) {
    testing::MemoryFiles files;
    std::string why;
    EXPECT_FALSE(exportPicture(testing::samplePlot(50), {}, "plot.jpg", {300, 200}, files, &why));
    EXPECT_THAT(why, HasSubstr("plot.jpg"));
    for (const QSize size : {QSize(0, 0), QSize(99, 500), QSize(500, 10001), QSize(-5, 500)}) {
        why.clear();
        EXPECT_FALSE(exportPicture(testing::samplePlot(50), {}, "plot.png", size, files, &why));
        EXPECT_FALSE(why.empty());
    }
    EXPECT_TRUE(files.contents.empty());
}

} // namespace
} // namespace tally
