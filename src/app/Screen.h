// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "view/Plot.h"

#include <QStackedWidget>
#include <string>

class QAction;
class QLabel;
class QToolBar;

namespace tally {

class Chart;
class ChartToolBar;
class SpanPanel;
class StartPage;
class TextView;

// The middle of the main window: the start page, the chart with its buttons, or a text with its buttons.
// Chart and text view are made when they are first needed.
class Screen : public QStackedWidget {
    Q_OBJECT

public:
    explicit Screen(QWidget* parent = nullptr);

    StartPage& start() { return *start_; }
    Chart& chart();
    ChartToolBar& chartBar();
    TextView& text();
    SpanPanel& spanPanel();

    enum class Page { start, chart, text, other };
    Page page() const;

    // `displaying` is the name that follows "Displaying ".
    void showPlot(const Plot& plot, bool onePage);
    void showText(const std::string& heading, const std::string& text, const std::string& displaying);
    // Shows a page that the window brings along; the screen owns it from then on.
    void showPage(QWidget* page, const std::string& displaying);
    // Which part of a file is shown, beside a button that shows all; empty for the whole.
    void setPart(const QString& part);
    // Takes chart and text away and shows the start page.
    void reset();
    const std::string& displaying() const { return displaying_; }

Q_SIGNALS:
    void chartMade(); // its signals can be connected
    void printText();
    void previewText();
    void showAllWanted();
    // A button of a view: "Plot", "Table", "Summary", "Power" or "Study".
    void viewWanted(const QString& view);
    void wasReset(); // nothing is open any more
    void changed();  // something else is shown

private:
    void makeChart();
    void makeText();
    void setDisplaying(QLabel* label, const std::string& name);
    void addPart(QToolBar* bar, const char* name);
    void addViews(QToolBar* bar, const QString& page);
    QToolBar* viewBar();
    QAction* addTextButton(QToolBar* bar, const char* name, const char* caption, const char* tip);

    StartPage* start_;
    QWidget* chartPage_ = nullptr;
    QWidget* textPage_ = nullptr;
    Chart* chart_ = nullptr;
    ChartToolBar* chartBar_ = nullptr;
    SpanPanel* spanPanel_ = nullptr;
    TextView* text_ = nullptr;
    QLabel* chartLabel_ = nullptr;
    QLabel* textLabel_ = nullptr;
    std::string displaying_;
    QString part_;
    QList<QAction*> parts_; // what says the part and shows all, of each line of buttons
};

} // namespace tally
