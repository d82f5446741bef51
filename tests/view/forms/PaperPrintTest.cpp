// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/forms/Paper.h"

#include "ChartSupport.h"
#include "support/MemoryFiles.h"
#include "support/QueuedPrompt.h"

#include <QAbstractButton>
#include <QDialog>
#include <QLineEdit>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tally {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

const TextReport report{"FEEDER.DAT", "Time", "12:00  000.1\r\n", "Miller", "Nov-21-26"};

class PaperPrint : public ::testing::Test {
protected:
    PaperPrint() : printer(QPrinter::HighResolution) {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(QStringLiteral("out.pdf"));
    }

    QPrinter printer;
    testing::MemoryFiles files;
    std::string why;
};

TEST_F(PaperPrint, ATextGoesIntoThePdfFileOfThePrinter) {
    EXPECT_TRUE(printText(report, printer, files, &why)) << why;
    EXPECT_THAT(files.contents["out.pdf"], StartsWith("%PDF"));
    EXPECT_THAT(files.contents["out.pdf"], HasSubstr("%%EOF"));
}

TEST_F(PaperPrint, AChartTakesOnePage) {
    printer.setPageOrientation(QPageLayout::Landscape);
    EXPECT_TRUE(printChart({testing::samplePlot(42966, 3), {{0.1, 0.1, "Storm"}}}, printer, files, &why))
        << why;
    EXPECT_THAT(files.contents["out.pdf"], HasSubstr("/Count 1"));
}

TEST_F(PaperPrint, TheUsersNameAndTheRemarkStandBelowTheChart) {
    EXPECT_TRUE(printChart({testing::samplePlot(100), {}, "J. Miller", "b starts 26 h after a"}, printer,
                           files, &why))
        << why;
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("chart.pdf")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(files.contents["out.pdf"].data(), qint64(files.contents["out.pdf"].size()));
    file.close();
    QProcess reader;
    reader.start(QStringLiteral("pdftotext"), {file.fileName(), QStringLiteral("-")});
    ASSERT_TRUE(reader.waitForFinished(20000));
    const std::string text = reader.readAllStandardOutput().toStdString();
    EXPECT_THAT(text, HasSubstr("J. Miller"));
    EXPECT_THAT(text, HasSubstr("b starts 26 h after a"));
}

TEST_F(PaperPrint, AFullDiskIsToldAndTheOldFileStays) {
    files.contents["out.pdf"] = "old";
    files.failWrite = fault::diskFull();
    EXPECT_FALSE(printText(report, printer, files, &why));
    EXPECT_EQ(why, "Disk full: out.pdf");
    why.clear();
    EXPECT_FALSE(printChart({testing::samplePlot(10), {}}, printer, files, &why));
    EXPECT_EQ(why, "Disk full: out.pdf");
    EXPECT_EQ(files.contents["out.pdf"], "old");
}

TEST_F(PaperPrint, APrinterThatHasGoneIsNamed) {
    EXPECT_EQ(printerProblem("Hall printer"), "The printer \"Hall printer\" has gone");
    EXPECT_EQ(printerProblem(""), "There is no printer");
}

TEST_F(PaperPrint, WithoutPrinterAndFileNothingIsPrinted) {
    printer.setOutputFileName({});
    EXPECT_FALSE(printText(report, printer, files, &why));
    EXPECT_EQ(why, "There is no printer");
    EXPECT_TRUE(files.contents.empty());
}

TEST_F(PaperPrint, OnlyTheChosenPagesArePrinted) {
    TextReport longReport = report;
    for (int line = 0; line < 400; ++line)
        longReport.text += "line\r\n";
    printer.setPrintRange(QPrinter::PageRange);
    printer.setFromTo(2, 3);
    EXPECT_TRUE(printText(longReport, printer, files, &why)) << why;
    EXPECT_THAT(files.contents["out.pdf"], HasSubstr("/Count 2"));
}

// Acts on the dialog of this name as soon as it is open.
template <typename Act>
void whenOpen(const QString& name, const Act& act) {
    QTimer::singleShot(0, [name, act] {
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (widget->objectName() == name && widget->isVisible())
                return act(*qobject_cast<QDialog*>(widget));
        whenOpen(name, act);
    });
}

TEST_F(PaperPrint, ACancelledDialogPrintsAndTellsNothing) {
    testing::QueuedPrompt prompt;
    Paper paper(prompt, files, nullptr);
    whenOpen(QStringLiteral("printDialog"), [](QDialog& dialog) { dialog.reject(); });
    EXPECT_FALSE(paper.printWithDialog(report));
    whenOpen(QStringLiteral("printDialog"), [](QDialog& dialog) { dialog.reject(); });
    EXPECT_FALSE(paper.printWithDialog(ChartReport{testing::samplePlot(10), {}}));
    EXPECT_TRUE(files.contents.empty());
}

// What a user does who prints into a file.
void acceptInto(const QString& path) {
    whenOpen(QStringLiteral("printDialog"), [path](QDialog& dialog) {
        dialog.findChild<QLineEdit*>(QStringLiteral("filename"))->setText(path);
        dialog.accept();
    });
}

TEST_F(PaperPrint, AnAcceptedDialogPrintsIntoTheFileThatWasNamed) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("printed.pdf"));
    testing::QueuedPrompt prompt;
    Paper paper(prompt, files, nullptr);
    acceptInto(path);
    EXPECT_TRUE(paper.printWithDialog(report));
    EXPECT_THAT(files.contents[path.toStdString()], StartsWith("%PDF"));
    EXPECT_TRUE(prompt.shown.empty());
}

TEST_F(PaperPrint, AFailureIsToldInABox) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("printed.pdf"));
    testing::QueuedPrompt prompt;
    Paper paper(prompt, files, nullptr);
    files.failWrite = fault::diskFull();
    acceptInto(path);
    EXPECT_FALSE(paper.printWithDialog(ChartReport{testing::samplePlot(100), {}}));
    ASSERT_EQ(prompt.shown.size(), 1U);
    EXPECT_EQ(prompt.shown[0].text, "Disk full: " + path.toStdString());
}

TEST_F(PaperPrint, ThePreviewShowsAllPages) {
    testing::QueuedPrompt prompt;
    Paper paper(prompt, files, nullptr);
    TextReport longReport = report;
    for (int line = 0; line < 200; ++line)
        longReport.text += "line\r\n";
    int pages = 0;
    whenOpen(QStringLiteral("previewDialog"), [&](QDialog& dialog) {
        auto* shown = dialog.findChild<QPrintPreviewWidget*>();
        shown->updatePreview();
        pages = shown->pageCount();
        dialog.reject();
    });
    EXPECT_FALSE(paper.preview(longReport));
    EXPECT_GE(pages, 3);
    whenOpen(QStringLiteral("previewDialog"), [&](QDialog& dialog) {
        auto* shown = dialog.findChild<QPrintPreviewWidget*>();
        shown->updatePreview();
        pages = shown->pageCount();
        dialog.reject();
    });
    EXPECT_FALSE(paper.preview(ChartReport{testing::samplePlot(3000, 3), {}}));
    EXPECT_EQ(pages, 1);
}

TEST_F(PaperPrint, APrintFromThePreviewGoesThroughTheFilesAndIsTold) {
    testing::QueuedPrompt prompt;
    Paper paper(prompt, files, nullptr);
    const auto printAndClose = [this](QDialog& dialog) {
        Q_EMIT qobject_cast<QPrintPreviewDialog*>(&dialog)->paintRequested(&printer);
        dialog.accept();
    };
    whenOpen(QStringLiteral("previewDialog"), printAndClose);
    EXPECT_TRUE(paper.preview(report));
    EXPECT_THAT(files.contents["out.pdf"], StartsWith("%PDF"));
    files.failWrite = fault::permissionDenied();
    whenOpen(QStringLiteral("previewDialog"), printAndClose);
    EXPECT_FALSE(paper.preview(report));
    ASSERT_EQ(prompt.shown.size(), 1U);
    EXPECT_EQ(prompt.shown[0].text, "Permission denied: out.pdf");
}

} // namespace
} // namespace tally
