// SPDX-License-Identifier: GPL-3.0-or-later
#include "Bench.h"

#include "view/forms/Chart.h"

#include <QApplication>
#include <QImage>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <map>
#include <stdexcept>

namespace tally::pictures {
namespace {

constexpr int settle = 150;          // ms until a window is laid out and painted
constexpr std::size_t colours = 128; // of a picture, which keeps its file small

// The picture in its most frequent colours.
QImage inFewColours(const QImage& image) {
    std::map<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            ++counts[image.pixel(x, y)];
    std::vector<std::pair<int, QRgb>> order;
    for (const auto& [colour, count] : counts)
        order.emplace_back(-count, colour);
    std::sort(order.begin(), order.end());
    QList<QRgb> table;
    for (std::size_t index = 0; index < std::min(order.size(), colours); ++index)
        table.append(order[index].second);
    return image.convertToFormat(QImage::Format_Indexed8, table, Qt::AvoidDither | Qt::ThresholdDither);
}

} // namespace

std::vector<PortDevice> OneCable::devices() const {
    return {{"/dev/ttyUSB0", "USB serial cable"}};
}

PortPresence OneCable::presence(const std::string&) const {
    return PortPresence::free;
}

Bench::Bench(std::string out, std::string samples) : out_(std::move(out)), samples_(std::move(samples)) {
    window.resize(1000, 700);
    window.show();
    QTest::qWait(settle);
}

void Bench::open(const std::vector<std::string>& names, bool plot) {
    if (!recordings.gInfo[0].path.empty())
        click("mnuItemClose");
    std::vector<std::string> paths;
    for (const std::string& name : names)
        paths.push_back(sample(name));
    window.openFiles(paths, plot);
}

void Bench::zoomTo(int first, int last) {
    Chart& chart = window.screen().chart();
    Q_EMIT chart.spanStarted(first);
    Q_EMIT chart.spanEnded(last);
    click("mnuZoom");
}

void Bench::grab(QWidget& widget, const char* name) {
    widget.show();
    QTest::qWait(settle);
    const QImage image = inFewColours(widget.grab().toImage().convertToFormat(QImage::Format_RGB32));
    const QString path = QString::fromStdString(out_ + "/" + name + ".png");
    if (!image.save(path, "PNG", 0))
        throw std::runtime_error("cannot write " + path.toStdString());
}

void Bench::whenOpen(std::function<void(QWidget&)> action) {
    QTimer::singleShot(0, &window, [this, action = std::move(action)] {
        QTest::qWait(settle);
        if (QWidget* dialog = QApplication::activeModalWidget())
            action(*dialog);
        else
            throw std::runtime_error("no dialog came up");
    });
}

} // namespace tally::pictures
