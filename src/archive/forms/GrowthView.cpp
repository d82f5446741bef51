// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/forms/GrowthView.h"

#include "core/forms/Words.h"

#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>
#include <QVBoxLayout>

namespace tally::archive {

GrowthView::GrowthView(QWidget* parent)
    : QWidget(parent),
      title_(new QLabel(this)),
      plot_(new GrowthPlot(this)),
      table_(new QTableWidget(0, 5, this)) {
    title_->setObjectName(QStringLiteral("growthTitle"));
    title_->setTextFormat(Qt::PlainText);
    title_->setWordWrap(true);
    table_->setObjectName(QStringLiteral("growthTable"));
    table_->setAccessibleName(QStringLiteral("Growth by year"));
    table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table_->verticalHeader()->hide();
    table_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    table_->setFixedWidth(420);
    auto* below = new QHBoxLayout;
    below->addWidget(plot_, 1);
    below->addWidget(table_);
    auto* down = new QVBoxLayout(this);
    down->addWidget(title_);
    down->addLayout(below, 1);
    say(QStringLiteral("Choose a recording in the list: the growth of its circuit is shown here."));
}

void GrowthView::say(const QString& text) {
    title_->setText(text);
    table_->setRowCount(0);
    table_->hide();
    plot_->show({}, {});
}

void GrowthView::show(const CircuitGrowth& growth) {
    const QString unit(QLatin1Char(growth.unit));
    title_->setText(words(growth.circuit) +
                    (growth.station.empty() ? QString() : QStringLiteral(", ") + words(growth.station)) +
                    QStringLiteral(": %1 recording(s)").arg(growth.recordings));
    table_->setHorizontalHeaderLabels({QStringLiteral("Year"), QStringLiteral("Peak %1").arg(unit),
                                       QStringLiteral("Mean %1").arg(unit), QStringLiteral("Days"),
                                       QStringLiteral("Change %")});
    table_->setRowCount(int(growth.years.size()));
    for (std::size_t row = 0; row < growth.years.size(); ++row) {
        const auto texts = yearTexts(growth.years[row]);
        for (std::size_t column = 0; column < texts.size(); ++column) {
            auto* item = new QTableWidgetItem(words(texts[column]));
            item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            table_->setItem(int(row), int(column), item);
        }
    }
    table_->show();
    plot_->show(growth.years, unit);
}

} // namespace tally::archive
