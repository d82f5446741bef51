// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/forms/ChartToolBar.h"

#include "view/Display.h"

#include <QAction>

namespace tally {

ChartToolBar::ChartToolBar(QWidget* parent) : QToolBar(parent) {
    setObjectName(QStringLiteral("ChartToolBar"));
    setWindowTitle(tr("Chart"));
    setAccessibleName(windowTitle());
    setToolButtonStyle(Qt::ToolButtonTextOnly);
    open = add(QStringLiteral("chartOpen"), tr("Open chart"), tr("Open a chart file"));
    save = add(QStringLiteral("chartSave"), tr("Save chart"), tr("Save the chart as a chart file"));
    picture = add(QStringLiteral("chartPicture"), tr("Picture"), tr("Save the chart as PNG, PDF or SVG"));
    copy = add(QStringLiteral("chartCopy"), tr("Copy"), tr("Copy the chart as a picture"));
    addSeparator();
    print = add(QStringLiteral("chartPrint"), tr("Print"), tr("Print the chart on one page"));
    preview = add(QStringLiteral("chartPreview"), tr("Preview"), tr("Show how the chart will be printed"));
    addSeparator();
    addNote = add(QStringLiteral("chartAddNote"), tr("Add note"), tr("Put a text on the chart"));
    clearNotes =
        add(QStringLiteral("chartClearNotes"), tr("Clear notes"), tr("Take all texts off the chart"));
    addSeparator();
    zoomIn = add(QStringLiteral("chartZoomIn"), QStringLiteral("+"), tr("Enlarge the picture"));
    zoomOut = add(QStringLiteral("chartZoomOut"), QString(QChar(0x2212)), tr("Reduce the picture"));
    reset = add(QStringLiteral("chartReset"), tr("Whole"), tr("Show the whole plot"));
    figures = add(QStringLiteral("chartFigures"), tr("Figures"), tr("Figures of the marked span"));
    figures->setCheckable(true);
    setHasPlot(false);
}

QAction* ChartToolBar::add(const QString& name, const QString& text, const QString& tip) {
    QAction* action = addAction(text);
    action->setObjectName(name);
    action->setToolTip(tip);
    QWidget* button = widgetForAction(action);
    button->setObjectName(name + QStringLiteral("Button"));
    button->setAccessibleName(tip);
    return action;
}

void ChartToolBar::setOnePage(bool on) {
    print->setText(on ? QString::fromStdString(std::string(onePageButton)) : tr("Print"));
}

void ChartToolBar::setHasPlot(bool has) {
    for (QAction* action :
         {save, picture, copy, print, preview, addNote, clearNotes, zoomIn, zoomOut, reset, figures})
        action->setEnabled(has);
}

} // namespace tally
