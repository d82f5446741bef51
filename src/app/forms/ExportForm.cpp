// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/forms/ExportForm.h"

#include "core/forms/Words.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

namespace tally {

namespace {

constexpr int listRows = 6;

QRadioButton* radio(const QString& name, const QString& text) {
    auto* button = new QRadioButton(text);
    button->setObjectName(name);
    return button;
}

QComboBox* choices(const QString& name, const QStringList& texts) {
    auto* box = new QComboBox;
    box->setObjectName(name);
    box->addItems(texts);
    return box;
}

} // namespace

ExportForm::ExportForm(const std::string& whole, const std::string& part,
                       const std::vector<std::string>& columns, QWidget* parent)
    : QDialog(parent),
      part_(radio(QStringLiteral("rangePart"), words(part))),
      columns_(new QListWidget),
      csv_(radio(QStringLiteral("kindCsv"), QStringLiteral("Te&xt for any spreadsheet (CSV)"))),
      workbook_(radio(QStringLiteral("kindWorkbook"), QStringLiteral("&Workbook with a chart (XLSX)"))),
      separator_(choices(QStringLiteral("separator"),
                         {QStringLiteral("Comma"), QStringLiteral("Semicolon"), QStringLiteral("Tab")})),
      decimal_(choices(QStringLiteral("decimal"), {QStringLiteral("Point"), QStringLiteral("Comma")})),
      time_(choices(QStringLiteral("time"),
                    {QStringLiteral("2024-03-31 14:15"), QStringLiteral("14:15  Mar 31, 24")})),
      save_(new QPushButton(QStringLiteral("&Save As..."))) {
    setObjectName(QStringLiteral("ExportForm"));
    setWindowTitle(QStringLiteral("Export Readings"));
    auto* column = new QVBoxLayout(this);
    column->addWidget(makeRange(whole, part));
    column->addWidget(makeColumns(columns));
    column->addWidget(makeKind());
    column->addWidget(makeButtons());
    connect(columns_, &QListWidget::itemChanged, this, &ExportForm::follow);
    connect(csv_, &QRadioButton::toggled, this, &ExportForm::follow);
    // Where the comma is the decimal sign, spreadsheets take the semicolon for the separator.
    connect(decimal_, &QComboBox::activated, this, [this](int decimal) {
        if (decimal == 1 && separator_->currentIndex() == 0)
            separator_->setCurrentIndex(1);
    });
    follow();
}

QWidget* ExportForm::makeRange(const std::string& whole, const std::string& part) {
    auto* group = new QGroupBox(QStringLiteral("Range"));
    auto* rows = new QVBoxLayout(group);
    auto* all = radio(QStringLiteral("rangeWhole"), words(whole));
    rows->addWidget(all);
    rows->addWidget(part_);
    part_->setVisible(!part.empty());
    QRadioButton* const usual = part.empty() ? all : part_;
    usual->setChecked(true);
    usual->setFocus();
    return group;
}

QWidget* ExportForm::makeColumns(const std::vector<std::string>& columns) {
    auto* group = new QGroupBox(QStringLiteral("Columns"));
    auto* rows = new QVBoxLayout(group);
    columns_->setObjectName(QStringLiteral("columns"));
    columns_->setAccessibleName(QStringLiteral("Columns"));
    for (const std::string& name : columns) {
        auto* item = new QListWidgetItem(words(name), columns_);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Checked);
    }
    columns_->setCurrentRow(0);
    columns_->setFixedHeight(columns_->sizeHintForRow(0) * listRows + 2 * columns_->frameWidth());
    rows->addWidget(columns_);
    return group;
}

QWidget* ExportForm::makeKind() {
    auto* group = new QGroupBox(QStringLiteral("File"));
    auto* form = new QFormLayout(group);
    form->addRow(csv_);
    form->addRow(QStringLiteral("Se&parator"), separator_);
    form->addRow(QStringLiteral("&Decimal sign"), decimal_);
    form->addRow(QStringLiteral("&Time"), time_);
    form->addRow(workbook_);
    csv_->setChecked(true);
    return group;
}

QWidget* ExportForm::makeButtons() {
    auto* row = new QWidget;
    auto* buttons = new QHBoxLayout(row);
    buttons->setContentsMargins(0, 0, 0, 0);
    save_->setObjectName(QStringLiteral("Command1"));
    save_->setDefault(true);
    auto* cancel = new QPushButton(QStringLiteral("Cancel"));
    cancel->setObjectName(QStringLiteral("Command2"));
    buttons->addStretch(1);
    buttons->addWidget(save_);
    buttons->addWidget(cancel);
    connect(save_, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    return row;
}

void ExportForm::follow() {
    for (QComboBox* box : {separator_, decimal_, time_})
        box->setEnabled(csv_->isChecked());
    save_->setEnabled(!choice().columns.empty());
}

ExportChoice ExportForm::choice() const {
    ExportChoice choice;
    choice.part = part_->isChecked();
    for (int i = 0; i < columns_->count(); ++i)
        if (columns_->item(i)->checkState() == Qt::Checked)
            choice.columns.push_back(std::size_t(i));
    choice.workbook = workbook_->isChecked();
    choice.separator = ",;\t"[separator_->currentIndex()];
    choice.decimal = ".,"[decimal_->currentIndex()];
    choice.shownTime = time_->currentIndex() == 1;
    return choice;
}

} // namespace tally
