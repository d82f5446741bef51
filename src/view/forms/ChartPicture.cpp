// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/forms/ChartPicture.h"

#include "core/Fault.h"
#include "view/forms/PlotScene.h"
#include "view/forms/QcpInclude.h"

#include <QBuffer>
#include <QImage>
#include <QPdfWriter>
#include <QSvgGenerator>

namespace tally {
namespace {

constexpr double pixelsPerInch = 96;

void paintPng(PlotScene& scene, QSize size, QBuffer& out) {
    QImage image(size, QImage::Format_RGB32);
    if (image.isNull())
        return;
    QCPPainter painter(&image);
    scene.paint(painter, size, false);
    painter.end();
    image.save(&out, "PNG");
}

void paintPdf(PlotScene& scene, QSize size, QBuffer& out) {
    constexpr double pointsPerInch = 72;
    constexpr int dots = 1200; // fine enough that letters stand where they were measured
    QPdfWriter writer(&out);
    writer.setPageSize(QPageSize(QSizeF(size) * pointsPerInch / pixelsPerInch, QPageSize::Point, QString(),
                                 QPageSize::ExactMatch));
    writer.setPageMargins(QMarginsF(0, 0, 0, 0));
    writer.setResolution(dots);
    writer.setCreator(QStringLiteral("Tallyline"));
    QCPPainter painter(&writer);
    painter.scale(dots / pixelsPerInch, dots / pixelsPerInch);
    scene.paint(painter, size, true);
}

void paintSvg(PlotScene& scene, QSize size, QBuffer& out) {
    QSvgGenerator generator;
    generator.setOutputDevice(&out);
    generator.setResolution(int(pixelsPerInch));
    generator.setSize(size);
    generator.setViewBox(QRect(QPoint(0, 0), size));
    generator.setTitle(QString::fromStdString(scene.plot().displaying));
    QCPPainter painter(&generator);
    scene.paint(painter, size, true);
}

} // namespace

std::optional<PictureKind> pictureKind(const std::string& path) {
    const QString name = QString::fromStdString(path).toLower();
    if (name.endsWith(QStringLiteral(".png")))
        return PictureKind::png;
    if (name.endsWith(QStringLiteral(".pdf")))
        return PictureKind::pdf;
    if (name.endsWith(QStringLiteral(".svg")))
        return PictureKind::svg;
    return {};
}

std::string pictureBytes(const Plot& plot, const std::vector<ChartNote>& notes, PictureKind kind, QSize size,
                         const std::optional<Sight>& sight) {
    if (std::min(size.width(), size.height()) < pictureMinimum ||
        std::max(size.width(), size.height()) > pictureMaximum)
        return {};
    PlotScene scene;
    scene.setPlot(plot);
    scene.setSight(sight);
    scene.notes = notes;
    QBuffer out;
    out.open(QIODevice::WriteOnly);
    switch (kind) {
    case PictureKind::png:
        paintPng(scene, size, out);
        break;
    case PictureKind::pdf:
        paintPdf(scene, size, out);
        break;
    case PictureKind::svg:
        paintSvg(scene, size, out);
        break;
    }
    out.close();
    return out.data().toStdString();
}

bool exportPicture(const Plot& plot, const std::vector<ChartNote>& notes, const std::string& path, QSize size,
                   Files& files, std::string* why, const std::optional<Sight>& sight) {
    const auto kind = pictureKind(path);
    if (!kind) {
        *why = "A picture is saved as .png, .pdf or .svg: " + path;
        return false;
    }
    const std::string bytes = pictureBytes(plot, notes, *kind, size, sight);
    if (bytes.empty()) {
        *why = "A picture is between " + std::to_string(pictureMinimum) + " and " +
               std::to_string(pictureMaximum) + " pixels wide and high, and needs memory for them";
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

} // namespace tally
