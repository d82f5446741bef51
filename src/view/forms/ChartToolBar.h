// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QToolBar>

namespace tally {

// The buttons of the chart, "ChartToolBar"; the window connects the actions. Object names: chartSave,
// chartOpen, chartPicture, chartCopy, chartPrint, chartPreview, chartAddNote, chartClearNotes, chartZoomIn,
// chartZoomOut, chartReset, chartFigures.
class ChartToolBar : public QToolBar {
    Q_OBJECT

public:
    explicit ChartToolBar(QWidget* parent = nullptr);

    QAction* save;    // a chart file
    QAction* open;    // a chart file
    QAction* picture; // PNG, PDF, SVG
    QAction* copy;    // to the clipboard
    QAction* print;   // "print on one page" while the one-page plot is on
    QAction* preview;
    QAction* addNote;
    QAction* clearNotes;
    QAction* zoomIn;
    QAction* zoomOut;
    QAction* reset;
    QAction* figures; // of the span, on and off

    void setOnePage(bool on);
    // Everything but open needs a plot.
    void setHasPlot(bool has);

private:
    QAction* add(const QString& name, const QString& text, const QString& tip);
};

} // namespace tally
