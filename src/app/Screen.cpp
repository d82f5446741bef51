// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Screen.h"

#include "app/forms/ElidedLabel.h"
#include "app/forms/StartPage.h"
#include "core/forms/Words.h"
#include "view/forms/Chart.h"
#include "view/forms/ChartToolBar.h"
#include "view/forms/SpanPanel.h"
#include "view/forms/TextView.h"

#include <QAction>
#include <QLabel>
#include <QSplitter>
#include <QToolBar>
#include <QVBoxLayout>

namespace tally {

namespace {

// Lines of buttons, with the name of what is shown at the right end of the first, and the view below.
QLabel* layOut(QWidget* page, const QList<QToolBar*>& bars, QWidget* view, const QString& labelName) {
    QToolBar* bar = bars.front();
    auto* down = new QVBoxLayout(page);
    down->setContentsMargins(0, 0, 0, 0);
    down->setSpacing(0);
    // Long names must not push buttons off the line.
    auto* label = new ElidedLabel(bar);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    label->setObjectName(labelName);
    label->setContentsMargins(8, 0, 8, 0);
    bar->addWidget(label);
    for (QToolBar* each : bars)
        down->addWidget(each);
    down->addWidget(view, 1);
    return label;
}

} // namespace

Screen::Screen(QWidget* parent) : QStackedWidget(parent), start_(new StartPage(this)) {
    setObjectName(QStringLiteral("Screen"));
    addWidget(start_);
}

Chart& Screen::chart() {
    if (!chart_)
        makeChart();
    return *chart_;
}

ChartToolBar& Screen::chartBar() {
    chart();
    return *chartBar_;
}

SpanPanel& Screen::spanPanel() {
    chart();
    return *spanPanel_;
}

TextView& Screen::text() {
    if (!text_)
        makeText();
    return *text_;
}

void Screen::makeChart() {
    chartPage_ = new QWidget(this);
    chart_ = new Chart(chartPage_);
    chart_->setObjectName(QStringLiteral("ChartFX1"));
    chartBar_ = new ChartToolBar(chartPage_);
    QToolBar* views = viewBar();
    addPart(views, "chartShowAll");
    auto* beside = new QSplitter(chartPage_);
    beside->setObjectName(QStringLiteral("chartAndSpan"));
    beside->setChildrenCollapsible(false);
    beside->addWidget(chart_);
    spanPanel_ = new SpanPanel(beside);
    spanPanel_->hide();
    beside->addWidget(spanPanel_);
    beside->setStretchFactor(0, 1);
    chartLabel_ = layOut(chartPage_, {views, chartBar_}, beside, QStringLiteral("displayingChart"));
    addWidget(chartPage_);
    Q_EMIT chartMade();
}

void Screen::makeText() {
    textPage_ = new QWidget(this);
    text_ = new TextView(textPage_);
    text_->setObjectName(QStringLiteral("TextView"));
    auto* bar = new QToolBar(textPage_);
    bar->setObjectName(QStringLiteral("TextToolBar"));
    bar->setAccessibleName(QStringLiteral("Text"));
    connect(addTextButton(bar, "textPrint", "Print", "Print this text"), &QAction::triggered, this,
            &Screen::printText);
    connect(addTextButton(bar, "textPreview", "Preview", "See the pages before they are printed"),
            &QAction::triggered, this, &Screen::previewText);
    connect(addTextButton(bar, "textCopy", "Copy", "Copy the selection, or everything"), &QAction::triggered,
            text_, [this] { text_->copy(); });
    connect(addTextButton(bar, "textFind", "Find", "Search this text (Ctrl+F)"), &QAction::triggered, text_,
            [this] { text_->showFindBar(); });
    addViews(bar, QStringLiteral("text"));
    addPart(bar, "textShowAll");
    textLabel_ = layOut(textPage_, {bar}, text_, QStringLiteral("displayingText"));
    addWidget(textPage_);
}

void Screen::addPart(QToolBar* bar, const char* name) {
    auto* label = new QLabel(bar);
    label->setObjectName(QStringLiteral("partShown"));
    label->setContentsMargins(8, 0, 4, 0);
    parts_.append(bar->addWidget(label));
    QAction* all = addTextButton(bar, name, "Show all", "Leave the zoom and show every reading");
    connect(all, &QAction::triggered, this, &Screen::showAllWanted);
    parts_.append(all);
    setPart(part_);
}

QToolBar* Screen::viewBar() {
    auto* bar = new QToolBar(chartPage_);
    bar->setObjectName(QStringLiteral("ViewToolBar"));
    bar->setAccessibleName(QStringLiteral("Views"));
    addViews(bar, QStringLiteral("chart"));
    return bar;
}

void Screen::addViews(QToolBar* bar, const QString& page) {
    bar->addSeparator();
    for (const auto& [view, tip] : {std::pair{"Plot", "Plot all readings of the open files"},
                                    {"Table", "The readings of a file"},
                                    {"Summary", "The facts of a file"},
                                    {"Power", "Kilowatts of the open files"},
                                    {"Study", "Demand, duration, phases and capacity of the open files"}}) {
        const QString name = QString::fromLatin1(view);
        QAction* action = addTextButton(bar, (page + name).toLatin1().constData(), view, tip);
        connect(action, &QAction::triggered, this, [this, name] { Q_EMIT viewWanted(name); });
    }
    bar->addSeparator();
}

void Screen::setPart(const QString& part) {
    part_ = part;
    for (QAction* action : std::as_const(parts_))
        action->setVisible(!part.isEmpty());
    for (QLabel* label : findChildren<QLabel*>(QStringLiteral("partShown")))
        label->setText(part);
}

QAction* Screen::addTextButton(QToolBar* bar, const char* name, const char* caption, const char* tip) {
    QAction* action = bar->addAction(QString::fromLatin1(caption));
    action->setObjectName(QString::fromLatin1(name));
    action->setToolTip(QString::fromLatin1(tip));
    action->setStatusTip(QString::fromLatin1(tip));
    return action;
}

Screen::Page Screen::page() const {
    if (chartPage_ && currentWidget() == chartPage_)
        return Page::chart;
    if (textPage_ && currentWidget() == textPage_)
        return Page::text;
    return currentWidget() == start_ ? Page::start : Page::other;
}

void Screen::setDisplaying(QLabel* label, const std::string& name) {
    displaying_ = name;
    label->setText(QStringLiteral("Displaying ") + words(name));
}

void Screen::showPlot(const Plot& plot, bool onePage) {
    chart().showPlot(plot);
    chart_->setOnePage(onePage);
    chartBar_->setOnePage(onePage);
    chartBar_->setHasPlot(true);
    setDisplaying(chartLabel_, plot.displaying);
    setCurrentWidget(chartPage_);
    chart_->setFocus();
    Q_EMIT changed();
}

void Screen::showText(const std::string& heading, const std::string& text, const std::string& displaying) {
    this->text().setText(words(heading), words(text));
    setDisplaying(textLabel_, displaying);
    setCurrentWidget(textPage_);
    text_->setFocus();
    Q_EMIT changed();
}

void Screen::showPage(QWidget* page, const std::string& displaying) {
    if (indexOf(page) < 0)
        addWidget(page);
    displaying_ = displaying;
    setCurrentWidget(page);
    page->setFocus();
    Q_EMIT changed();
}

void Screen::reset() {
    if (chart_) {
        chart_->clear();
        chart_->setOnePage(false);
        chartBar_->setOnePage(false);
        chartBar_->setHasPlot(false);
    }
    if (text_)
        text_->setText({}, {});
    displaying_.clear();
    setPart({});
    setCurrentWidget(start_);
    Q_EMIT wasReset();
    Q_EMIT changed();
}

} // namespace tally
