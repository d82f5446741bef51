// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "archive/CircuitGrowth.h"

#include <QWidget>

class QLabel;
class QTableWidget;

namespace tally::archive {

class GrowthPlot;

// Peak and mean of a circuit by year: as bars, and as a table.
class GrowthView : public QWidget {
    Q_OBJECT

public:
    explicit GrowthView(QWidget* parent = nullptr);

    void show(const CircuitGrowth& growth);
    // Shows a text instead.
    void say(const QString& text);

private:
    QLabel* title_;
    GrowthPlot* plot_;
    QTableWidget* table_;
};

// The bars.
class GrowthPlot : public QWidget {
    Q_OBJECT

public:
    explicit GrowthPlot(QWidget* parent = nullptr);
    void show(std::vector<YearOfLoad> years, const QString& unit);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::vector<YearOfLoad> years_;
    QString unit_;
};

} // namespace tally::archive
