// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/forms/Chart.h"

#include "view/Display.h"
#include "view/forms/ChartLook.h"
#include "view/forms/PlotScene.h"
#include "view/forms/QcpInclude.h"

#include <QClipboard>
#include <QFontInfo>
#include <QGuiApplication>
#include <QLabel>

#include <algorithm>
#include <cmath>

namespace tally {
namespace {

constexpr double zoomStep = 0.8;
constexpr int smallestLetters = 12; // pixels

std::vector<std::string> legendsOf(const Plot& plot) {
    std::vector<std::string> legends;
    for (const PlotSeries& series : plot.series)
        legends.push_back(series.legend);
    return legends;
}

} // namespace

Chart::Chart(QWidget* parent) : QWidget(parent), scene_(std::make_unique<PlotScene>()) {
    setObjectName(QStringLiteral("ChartFX1"));
    setAccessibleName(tr("Chart"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setMinimumSize(360, 260);
    setAttribute(Qt::WA_OpaquePaintEvent);
    QString label = QString::fromStdString(std::string(onePageLabel));
    onePage_ = new QLabel(label.remove(u'\r'), this);
    onePage_->setObjectName(QStringLiteral("onePageLabel"));
    onePage_->setAccessibleName(tr("One-page plot"));
    onePage_->setAlignment(Qt::AlignCenter);
    onePage_->setMargin(8);
    onePage_->setStyleSheet(
        QStringLiteral("background: #ffe680; color: #1a1a1a; border: 1px solid #8a6d00;"));
    onePage_->setAttribute(Qt::WA_TransparentForMouseEvents);
    onePage_->hide();
    lookAgain();
}

Chart::~Chart() = default;

// The picture itself has changed, not only what moves over it.
void Chart::refresh() {
    backing_ = {};
    update();
}

void Chart::lookAgain() {
    const int pixels = std::max(QFontInfo(font()).pixelSize(), smallestLetters);
    scene_->setLook(ChartLook::onScreen(palette(), pixels));
    refresh();
}

void Chart::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)
        lookAgain();
    QWidget::changeEvent(event);
}

const Plot& Chart::plot() const {
    return scene_->plot();
}

void Chart::showPlot(const Plot& plot) {
    endEdit(false);
    const bool same = marking_ && plot.points == scene_->plot().points;
    const auto across = scene_->across();
    const auto up = scene_->up();
    const LinesShown shown = scene_->lines;
    const bool sameLines = legendsOf(plot) == legendsOf(scene_->plot());
    scene_->setPlot(plot);
    if (sameLines)
        scene_->lines.hidden = shown.hidden;
    if (same)
        scene_->setView(across, up);
    else
        scene_->span.reset();
    shown_ = true;
    drag_ = Drag::none;
    if (!same)
        moveCursor(std::nullopt);
    setAccessibleDescription(QString::fromStdString(plot.displaying));
    refresh();
    Q_EMIT spanDrawn();
    Q_EMIT linesChanged();
}

void Chart::clear() {
    endEdit(false);
    scene_->clear();
    shown_ = false;
    drag_ = Drag::none;
    cursor_.reset();
    setBoxMode(false);
    setOnePage(false);
    setAccessibleDescription({});
    refresh();
}

void Chart::setTimeOf(std::function<std::string(int)> timeOf) {
    scene_->setTimeOf(std::move(timeOf));
    refresh();
}

void Chart::setPointTime(std::function<std::string(int)> pointTime) {
    pointTime_ = std::move(pointTime);
}

void Chart::setOnePage(bool on) {
    onePage_->setVisible(on);
    placeOnePage();
}

void Chart::placeOnePage() {
    onePage_->adjustSize();
    const QRectF frame = scene_->frame();
    onePage_->move(int(frame.center().x()) - onePage_->width() / 2, int(frame.top()) + 8);
}

std::optional<std::pair<int, int>> Chart::span() const {
    return scene_->span;
}

void Chart::markSpan(int first, int last) {
    scene_->span = std::minmax(first, last);
    refresh();
    Q_EMIT spanDrawn();
}

void Chart::clearSpan() {
    scene_->span.reset();
    refresh();
    Q_EMIT spanDrawn();
}

std::optional<Sight> Chart::sight() const {
    if (scene_->isWhole() && scene_->lines.hidden.empty())
        return std::nullopt;
    return Sight{scene_->across(), scene_->up(), scene_->timeOf(), scene_->lines.hidden};
}

QImage Chart::picture() const {
    const ChartLook look = scene_->look();
    const int selected = std::exchange(scene_->selectedNote, -1);
    const int lifted = std::exchange(scene_->lines.lifted, -1);
    scene_->setLook(ChartLook::onPaper(look.font.pixelSize()));
    const double ratio = devicePixelRatioF();
    QImage image(size() * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    {
        QCPPainter painter(&image);
        scene_->paint(painter, size(), false);
    }
    scene_->setLook(look);
    scene_->selectedNote = selected;
    scene_->lines.lifted = lifted;
    return image;
}

void Chart::copyPicture() const {
    QGuiApplication::clipboard()->setImage(picture());
}

void Chart::zoomIn() {
    scene_->zoomAcross(zoomStep, (scene_->across().first + scene_->across().second) / 2);
    refresh();
    pointAgain();
}

void Chart::zoomOut() {
    scene_->zoomAcross(1 / zoomStep, (scene_->across().first + scene_->across().second) / 2);
    refresh();
    pointAgain();
}

void Chart::resetView() {
    scene_->resetView();
    refresh();
    pointAgain();
}

void Chart::pan(double across, double up) {
    scene_->pan(across, up);
    refresh();
    pointAgain();
}

std::pair<double, double> Chart::visiblePoints() const {
    return scene_->across();
}

QRectF Chart::frame() const {
    scene_->layOut(size());
    return scene_->frame();
}

QSize Chart::sizeHint() const {
    return {1000, 620};
}

void Chart::paintScene(QPainter& painter) {
    if (shown_)
        scene_->paint(static_cast<QCPPainter&>(painter), size(), false);
    else
        painter.fillRect(rect(), scene_->look().paper);
}

// A picture without a cursor is painted as it is; under a cursor it is kept, so that moving the pointer costs
// the same for any number of readings.
void Chart::paintEvent(QPaintEvent*) {
    QCPPainter painter(this);
    if (!cursor_ && drag_ != Drag::box)
        return paintScene(painter);
    if (backing_.isNull()) {
        backing_ = QPixmap(size() * devicePixelRatioF());
        backing_.setDevicePixelRatio(devicePixelRatioF());
        QCPPainter keep(&backing_);
        paintScene(keep);
    }
    painter.drawPixmap(0, 0, backing_);
    paintOverlay(painter);
}

void Chart::paintOverlay(QPainter& painter) {
    if (drag_ == Drag::box) {
        painter.setPen(QPen(scene_->look().frame, 1, Qt::DashLine));
        painter.setBrush(scene_->look().span);
        painter.drawRect(box_.normalized().intersected(scene_->frame()));
        return;
    }
    const std::string time = pointTime_ ? pointTime_(cursor_->point) : std::string();
    paintCursor(painter, *scene_, *cursor_, QString::fromStdString(time));
}

void Chart::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    endEdit(true);
    backing_ = {};
    scene_->layOut(size());
    placeOnePage();
}

} // namespace tally
