// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/forms/StudyPaper.h"

#include "core/Fault.h"
#include "study/forms/StudySheet.h"

#include <QBuffer>
#include <QImage>
#include <QPdfWriter>

#include <algorithm>
#include <cmath>

namespace tally::study {

namespace {

constexpr int pageWidth = 760; // pixels that the width of a page shows
constexpr int letters = 12;    // pixels
constexpr int footer = 24;
constexpr int margin = 15; // millimetres; of a picture, pixels

void paintFooter(QPainter& painter, const ChartLook& look, double bottom, int page, std::size_t pages) {
    painter.setFont(look.font);
    painter.setPen(look.text);
    painter.drawText(QRectF(0, bottom - footer, pageWidth, footer), Qt::AlignRight | Qt::AlignBottom,
                     QStringLiteral("Page %1 of %2").arg(page).arg(pages));
}

} // namespace

bool paintStudy(const Study& study, QPagedPaintDevice& device, int from, int to) {
    const ChartLook look = ChartLook::onPaper(letters);
    StudySheet sheet(study, look.font);
    sheet.layOut(pageWidth);
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    const double scale = double(device.width()) / pageWidth;
    painter.scale(scale, scale);
    const double height = device.height() / scale;
    const auto pages = sheet.pages(height - footer);
    const int first = std::max(from, 1);
    const int last = to > 0 ? std::min(to, int(pages.size())) : int(pages.size());
    for (int page = first; page <= last; ++page) {
        if (page > first && !device.newPage())
            return false;
        sheet.paintPage(painter, pages[std::size_t(page - 1)], look);
        paintFooter(painter, look, height, page, pages.size());
    }
    return painter.end();
}

std::string studyPdf(const Study& study) {
    QBuffer out;
    out.open(QIODevice::WriteOnly);
    QPdfWriter writer(&out);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins(QMarginsF(margin, margin, margin, margin), QPageLayout::Millimeter);
    writer.setResolution(1200); // fine enough that letters stand where they were measured
    writer.setTitle(QStringLiteral("Load study"));
    writer.setCreator(QStringLiteral("Tallyline"));
    if (!paintStudy(study, writer))
        throw fault::deviceIo();
    return out.data().toStdString();
}

std::string studyPicture(const Study& study) {
    const ChartLook look = ChartLook::onPaper(letters);
    StudySheet sheet(study, look.font);
    sheet.layOut(pageWidth);
    QImage image(pageWidth + 2 * margin, int(std::ceil(sheet.height())) + 2 * margin, QImage::Format_RGB32);
    if (image.isNull())
        throw Fault(7, "Out of memory");
    image.fill(look.paper);
    QPainter painter(&image);
    painter.translate(margin, margin);
    sheet.paint(painter, QRectF(0, 0, pageWidth, sheet.height()), look);
    painter.end();
    QBuffer out;
    out.open(QIODevice::WriteOnly);
    if (!image.save(&out, "PNG"))
        throw fault::deviceIo();
    return out.data().toStdString();
}

} // namespace tally::study
