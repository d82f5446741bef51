// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/forms/StudyPage.h"

#include "study/forms/StudySheet.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QScrollBar>
#include <QToolTip>

#include <cmath>

namespace tally::study {

namespace {

constexpr int margin = 14;
constexpr int narrowest = 560; // a narrower window is scrolled sideways

} // namespace

StudyPage::StudyPage(QWidget* parent) : QAbstractScrollArea(parent) {
    setObjectName(QStringLiteral("studyPage"));
    setAccessibleName(QStringLiteral("Load study"));
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setMouseTracking(true);
}

StudyPage::~StudyPage() = default;

void StudyPage::setStudy(const Study* study) {
    const ChartLook look = ChartLook::onScreen(palette(), fontInfo().pixelSize());
    sheet_ = study ? std::make_unique<StudySheet>(*study, look.font) : nullptr;
    layOut();
    viewport()->update();
}

void StudyPage::layOut() {
    if (!sheet_) {
        verticalScrollBar()->setRange(0, 0);
        horizontalScrollBar()->setRange(0, 0);
        return;
    }
    const int width = std::max(viewport()->width(), narrowest);
    sheet_->layOut(width - 2 * margin);
    const int height = int(std::ceil(sheet_->height())) + 2 * margin;
    verticalScrollBar()->setRange(0, std::max(height - viewport()->height(), 0));
    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setSingleStep(fontMetrics().height() * 2);
    horizontalScrollBar()->setRange(0, width - viewport()->width());
    horizontalScrollBar()->setPageStep(viewport()->width());
}

QPointF StudyPage::onSheet(QPointF viewportPoint) const {
    return viewportPoint +
           QPointF(horizontalScrollBar()->value() - margin, verticalScrollBar()->value() - margin);
}

void StudyPage::paintEvent(QPaintEvent* event) {
    const ChartLook look = ChartLook::onScreen(palette(), fontInfo().pixelSize());
    QPainter painter(viewport());
    painter.fillRect(event->rect(), look.paper);
    if (!sheet_)
        return;
    const QPointF origin = onSheet({0, 0});
    painter.translate(-origin);
    sheet_->paint(painter, QRectF(event->rect()).translated(origin), look);
}

void StudyPage::resizeEvent(QResizeEvent*) {
    layOut();
}

void StudyPage::mousePressEvent(QMouseEvent* event) {
    if (!sheet_ || event->button() != Qt::LeftButton)
        return;
    if (const auto time = sheet_->timeAt(onSheet(event->position())))
        Q_EMIT timeChosen(time->minutes);
}

void StudyPage::mouseMoveEvent(QMouseEvent* event) {
    const bool leads = sheet_ && sheet_->timeAt(onSheet(event->position()));
    viewport()->setCursor(leads ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

bool StudyPage::viewportEvent(QEvent* event) {
    if (event->type() != QEvent::ToolTip || !sheet_)
        return QAbstractScrollArea::viewportEvent(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    QToolTip::showText(help->globalPos(), sheet_->tip(onSheet(QPointF(help->pos()))), viewport());
    return true;
}

} // namespace tally::study
