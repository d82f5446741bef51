// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/forms/SpanPanel.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace tally {
namespace {

QLabel* wrappedLabel(const QString& name, const QString& accessible, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setObjectName(name);
    label->setAccessibleName(accessible);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

} // namespace

SpanPanel::SpanPanel(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("SpanPanel"));
    setAccessibleName(tr("Figures of the span"));
    title_ = wrappedLabel(QStringLiteral("spanTitle"), tr("Span"), this);
    table_ = new QTableWidget(this);
    table_->setObjectName(QStringLiteral("spanTable"));
    table_->setAccessibleName(tr("Figures"));
    table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table_->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table_->setTabKeyNavigation(false);
    remarks_ = wrappedLabel(QStringLiteral("spanRemarks"), tr("Remarks"), this);
    auto* copyButton = new QPushButton(tr("&Copy figures"), this);
    copyButton->setObjectName(QStringLiteral("spanCopy"));
    connect(copyButton, &QPushButton::clicked, this, &SpanPanel::copy);
    auto* closeButton = new QPushButton(tr("C&lose"), this);
    closeButton->setObjectName(QStringLiteral("spanClose"));
    connect(closeButton, &QPushButton::clicked, this, &SpanPanel::closeWanted);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(copyButton);
    buttons->addWidget(closeButton);
    auto* down = new QVBoxLayout(this);
    down->addWidget(title_);
    down->addWidget(table_, 1);
    down->addWidget(remarks_);
    down->addLayout(buttons);
}

void SpanPanel::showFigures(const std::string& title, const std::vector<std::vector<std::string>>& rows,
                            const std::vector<std::string>& remarks, const std::string& text) {
    const auto words = [](const std::string& each) { return QString::fromStdString(each); };
    text_ = words(text);
    title_->setText(words(title));
    QStringList lines;
    for (const std::string& remark : remarks)
        lines.append(words(remark));
    remarks_->setText(lines.join(u'\n'));
    remarks_->setVisible(!lines.isEmpty());
    if (rows.empty()) {
        table_->setRowCount(0);
        table_->setColumnCount(0);
        return;
    }
    table_->setRowCount(int(rows.size()) - 1);
    table_->setColumnCount(int(rows.front().size()) - 1);
    for (int column = 1; column < int(rows.front().size()); ++column)
        table_->setHorizontalHeaderItem(column - 1,
                                        new QTableWidgetItem(words(rows.front()[std::size_t(column)])));
    for (int row = 1; row < int(rows.size()); ++row) {
        const auto& cells = rows[std::size_t(row)];
        table_->setVerticalHeaderItem(row - 1, new QTableWidgetItem(words(cells.front())));
        for (int column = 1; column < int(rows.front().size()); ++column) {
            const bool there = column < int(cells.size());
            auto* item = new QTableWidgetItem(there ? words(cells[std::size_t(column)]) : QString());
            item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            table_->setItem(row - 1, column - 1, item);
        }
    }
    fitColumns();
}

// Three files stand side by side without scrolling; more than that would leave the plot too little room.
void SpanPanel::fitColumns() {
    constexpr int widest = 430;
    const int wanted = table_->verticalHeader()->sizeHint().width() + table_->horizontalHeader()->length() +
                       2 * table_->frameWidth();
    table_->setMinimumWidth(std::min(wanted, widest));
}

void SpanPanel::copy() const {
    QGuiApplication::clipboard()->setText(text_);
}

} // namespace tally
