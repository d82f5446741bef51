// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/forms/Paper.h"

#include "core/Fault.h"
#include "view/forms/PaperText.h"
#include "view/forms/PlotScene.h"
#include "view/forms/QcpInclude.h"

#include <QBuffer>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPrinterInfo>

#include <functional>

namespace tally {
namespace {

constexpr int chartWidth = 1040; // pixels that the width of a page shows
constexpr int footerHeight = 20;

// Draws all pages on a device; false when it would not begin or go on.
using Painting = std::function<bool(QPagedPaintDevice& device)>;

bool paintText(const TextReport& report, QPagedPaintDevice& device, int from = 1, int to = 0) {
    const PaperText paper(report, device);
    const int first = std::max(from, 1);
    const int last = to > 0 ? std::min(to, paper.pages()) : paper.pages();
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    for (int page = first; page <= last; ++page) {
        if (page > first && !device.newPage())
            return false;
        paper.paint(painter, page - 1);
    }
    return painter.end();
}

bool paintChart(const ChartReport& report, QPagedPaintDevice& device) {
    PlotScene scene;
    scene.setPlot(report.plot);
    scene.setSight(report.sight);
    scene.notes = report.notes;
    QCPPainter painter;
    if (!painter.begin(&device))
        return false;
    const double scale = double(device.width()) / chartWidth;
    painter.scale(scale, scale);
    const int height = int(device.height() / scale);
    int footer = 0;
    for (const std::string* line : {&report.user, &report.remark})
        footer += line->empty() ? 0 : footerHeight;
    scene.paint(painter, QSize(chartWidth, height - footer), true);
    painter.setPen(scene.look().text);
    painter.setFont(scene.look().font);
    const QRect below(footerHeight / 2, height - footer, chartWidth - footerHeight, footer);
    painter.drawText(below, Qt::AlignLeft | Qt::AlignTop, QString::fromStdString(report.remark));
    painter.drawText(below, Qt::AlignLeft | Qt::AlignBottom, QString::fromStdString(report.user));
    return painter.end();
}

// The printer's pages as the bytes of a PDF, so that the file can be written as a whole.
std::string pdfLike(const QPrinter& printer, const Painting& paint) {
    QBuffer out;
    out.open(QIODevice::WriteOnly);
    QPdfWriter writer(&out);
    writer.setPageLayout(printer.pageLayout());
    writer.setResolution(printer.resolution());
    writer.setTitle(printer.docName());
    writer.setCreator(QStringLiteral("Tallyline"));
    return paint(writer) ? out.data().toStdString() : std::string();
}

bool printPdf(const QPrinter& printer, const Painting& paint, Files& files, std::string* why) {
    const std::string path = printer.outputFileName().toStdString();
    const std::string bytes = pdfLike(printer, paint);
    if (bytes.empty()) {
        *why = "The pages could not be drawn";
        return false;
    }
    try {
        files.write(path, bytes);
    } catch (const Fault& fault) {
        *why = std::string(fault.what()) + ": " + path;
        return false;
    }
    return true;
}

bool printPages(QPrinter& printer, const Painting& paint, Files& files, std::string* why) {
    if (printer.outputFormat() == QPrinter::PdfFormat && !printer.outputFileName().isEmpty())
        return printPdf(printer, paint, files, why);
    const std::string name = printer.printerName().toStdString();
    *why = printerProblem(name);
    if (!why->empty())
        return false;
    if (!paint(printer) || printer.printerState() == QPrinter::Error ||
        printer.printerState() == QPrinter::Aborted) {
        *why = "The printer \"" + name + "\" failed";
        return false;
    }
    return true;
}

Painting textPainting(const TextReport& report, const QPrinter& printer) {
    const bool range = printer.printRange() == QPrinter::PageRange;
    const int from = range ? printer.fromPage() : 1;
    const int to = range ? printer.toPage() : 0;
    return [&report, from, to](QPagedPaintDevice& device) { return paintText(report, device, from, to); };
}

Painting chartPainting(const ChartReport& report) {
    return [&report](QPagedPaintDevice& device) { return paintChart(report, device); };
}

void prepare(QPrinter& printer, const QString& name, QPageLayout::Orientation orientation) {
    printer.setPageOrientation(orientation);
    printer.setPageMargins(QMarginsF(15, 15, 15, 15), QPageLayout::Millimeter);
    printer.setDocName(name);
    printer.setCreator(QStringLiteral("Tallyline"));
}

QString jobName(const TextReport& report) {
    return report.title.empty() ? QStringLiteral("Tallyline")
                                : QString::fromStdString(report.title).section(u'\n', 0, 0).simplified();
}

// A preview paints on a device of its own; a print from the preview arrives with the real one.
bool isPreview(const QPrinter& printer) {
    const QPaintEngine* engine = printer.paintEngine();
    return engine && engine->type() == QPaintEngine::Picture;
}

} // namespace

std::string printerProblem(const std::string& name) {
    if (name.empty())
        return "There is no printer";
    // A printer that was chosen and then removed still counts as valid; the list of printers knows.
    if (QPrinterInfo::printerInfo(QString::fromStdString(name)).isNull())
        return "The printer \"" + name + "\" has gone";
    return {};
}

bool printText(const TextReport& report, QPrinter& printer, Files& files, std::string* why) {
    return printPages(printer, textPainting(report, printer), files, why);
}

bool printChart(const ChartReport& report, QPrinter& printer, Files& files, std::string* why) {
    return printPages(printer, chartPainting(report), files, why);
}

std::string pdfOfText(const TextReport& report) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setPageSize(QPageSize(QPageSize::A4));
    prepare(printer, jobName(report), QPageLayout::Portrait);
    return pdfLike(printer, [&report](QPagedPaintDevice& device) { return paintText(report, device); });
}

bool Paper::askAndPrint(QPrinter& printer, const Print& print) {
    QPrintDialog dialog(&printer, parent_);
    dialog.setObjectName(QStringLiteral("printDialog"));
    dialog.setAccessibleName(QStringLiteral("Print"));
    if (dialog.exec() != QDialog::Accepted)
        return false;
    std::string why;
    const bool printed = print(printer, &why);
    if (!printed)
        prompt_.tell(why);
    return printed;
}

bool Paper::previewAndPrint(QPrinter& printer, const Show& show, const Print& print) {
    QPrintPreviewDialog dialog(&printer, parent_);
    dialog.setObjectName(QStringLiteral("previewDialog"));
    dialog.setAccessibleName(QStringLiteral("Print preview"));
    dialog.resize(900, 760);
    bool printed = false;
    std::string why;
    QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog, [&](QPrinter* device) {
        if (isPreview(*device))
            show(*device);
        else
            printed = print(*device, &why);
    });
    dialog.exec();
    if (!why.empty())
        prompt_.tell(why);
    return printed;
}

bool Paper::printWithDialog(const TextReport& report) {
    QPrinter printer(QPrinter::HighResolution);
    prepare(printer, jobName(report), QPageLayout::Portrait);
    return askAndPrint(printer,
                       [&](QPrinter& to, std::string* why) { return printText(report, to, files_, why); });
}

bool Paper::printWithDialog(const ChartReport& report) {
    QPrinter printer(QPrinter::HighResolution);
    prepare(printer, QString::fromStdString(report.plot.displaying), QPageLayout::Landscape);
    return askAndPrint(printer,
                       [&](QPrinter& to, std::string* why) { return printChart(report, to, files_, why); });
}

bool Paper::preview(const TextReport& report) {
    QPrinter printer(QPrinter::HighResolution);
    prepare(printer, jobName(report), QPageLayout::Portrait);
    return previewAndPrint(
        printer, [&](QPrinter& on) { paintText(report, on); },
        [&](QPrinter& to, std::string* why) { return printText(report, to, files_, why); });
}

bool Paper::preview(const ChartReport& report) {
    QPrinter printer(QPrinter::HighResolution);
    prepare(printer, QString::fromStdString(report.plot.displaying), QPageLayout::Landscape);
    return previewAndPrint(
        printer, [&](QPrinter& on) { paintChart(report, on); },
        [&](QPrinter& to, std::string* why) { return printChart(report, to, files_, why); });
}

} // namespace tally
