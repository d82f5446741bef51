// SPDX-License-Identifier: GPL-3.0-or-later
#include "Goals.h"

#include "view/forms/Chart.h"
#include "view/forms/TextView.h"

#include <QImage>
#include <QPainter>
#include <QPlainTextEdit>

#include <algorithm>
#include <cmath>
#include <memory>

namespace tally::bench {
namespace {

constexpr int points = 42966;
constexpr int width = 1200;
constexpr int height = 700;
constexpr double redrawLimit = 1.3;
constexpr double textLimit = 0.5;

// Three feeders with a day curve, noise and a spike.
Plot longPlot() {
    Plot plot;
    plot.title =
        "         File Data:  N/A              \r\n\r\nMode:  Average;     Stop;    1 min interval      ";
    plot.yTitle = "AMPS";
    plot.yMax = 500;
    plot.points = points;
    plot.labelStep = points / 8;
    plot.labels.fill("Mar 01 00:00");
    for (int file = 0; file < 3; ++file) {
        PlotSeries series;
        series.legend = "PHASE" + std::to_string(file + 1) + ".DAT";
        for (int k = 0; k < points; ++k)
            series.values.push_back(
                float(200 + 60 * file + 100 * std::sin(k * 6.2832 / 1440) + (k * 7919 % 101) / 5.0));
        series.values[std::size_t(10000 * file + 5000)] = 480;
        plot.series.push_back(std::move(series));
    }
    return plot;
}

// The least that shows the same lines: one bar a column from smallest to largest value, no axes, no texts.
void drawColumns(QImage& image, const Plot& plot, double from, double to) {
    image.fill(Qt::white);
    QPainter painter(&image);
    const double perPoint = width / (to - from);
    for (const PlotSeries& series : plot.series) {
        std::vector<QLine> lines;
        const int end = std::min(int(to) + 1, points);
        for (int x = 0, k = int(from); x < width && k < end; ++x) {
            const int next = std::clamp(int(std::ceil(from + (x + 1) / perPoint)), k + 1, end);
            const auto [low, high] =
                std::minmax_element(series.values.begin() + k, series.values.begin() + next);
            lines.emplace_back(x, int(height - double(*low) * height / 500), x,
                               int(height - double(*high) * height / 500));
            k = next;
        }
        painter.setPen(QColor(0, 100, 170));
        painter.drawLines(lines.data(), int(lines.size()));
    }
}

struct Desk {
    Plot plot = longPlot();
    Chart chart;
    QImage ours{width, height, QImage::Format_RGB32};
    QImage reference{width, height, QImage::Format_RGB32};

    Desk() {
        chart.resize(width, height);
        chart.showPlot(plot);
    }
    void redraw() { chart.render(&ours); }
    void drawReference() {
        const auto [from, to] = chart.visiblePoints();
        drawColumns(reference, plot, from, to);
    }
};

void redrawGoals() {
    const auto desk = std::make_shared<Desk>();
    goal(
        "plot.redraw", [desk] { desk->redraw(); }, [desk] { desk->drawReference(); }, redrawLimit);
    const auto zoomed = std::make_shared<Desk>();
    for (int i = 0; i < 6; ++i)
        zoomed->chart.zoomIn();
    goal(
        "plot.pan",
        [zoomed] {
            zoomed->chart.pan(0.01, 0);
            zoomed->redraw();
        },
        [zoomed] { zoomed->drawReference(); }, redrawLimit);
    const auto turning = std::make_shared<Desk>();
    goal(
        "plot.zoom",
        [turning] {
            turning->chart.zoomIn();
            turning->redraw();
            turning->chart.zoomOut();
        },
        [turning] { turning->drawReference(); }, redrawLimit);
}

QString tableText() {
    QString text;
    for (int k = 0; k < points; ++k) {
        if (k % 8 == 0)
            text += QStringLiteral("%1:%2  MAR 01, 26         ")
                        .arg(k % 24, 2, 10, QChar(u'0'))
                        .arg(k % 60, 2, 10, QChar(u'0'));
        text += QStringLiteral("  %1.%2  ").arg(k % 1000, 3, 10, QChar(u'0')).arg(k % 10);
        if (k % 8 == 7)
            text += QStringLiteral("\r\n");
    }
    return text;
}

void textGoal() {
    const auto text = std::make_shared<QString>(tableText());
    const auto ours = std::make_shared<TextView>();
    const auto reference = std::make_shared<QPlainTextEdit>();
    reference->setLineWrapMode(QPlainTextEdit::NoWrap);
    reference->setReadOnly(true);
    ours->resize(900, 600);
    reference->resize(900, 600);
    const auto picture = std::make_shared<QImage>(900, 600, QImage::Format_RGB32);
    goal(
        "table.shown",
        [=] {
            ours->setText(QStringLiteral(" Time     Date"), *text);
            ours->render(picture.get());
        },
        [=] { reference->setPlainText(*text); }, textLimit);
}

} // namespace

void registerGoals() {
    redrawGoals();
    textGoal();
}

} // namespace tally::bench
