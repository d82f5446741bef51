// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/forms/AssignForm.h"

#include "core/forms/Words.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>

#include <algorithm>

namespace tally::archive {

namespace {

QString shared(const std::vector<Entry>& entries, std::string Belonging::*name) {
    const std::string& first = entries.front().belonging.*name;
    const bool all = std::all_of(entries.begin(), entries.end(),
                                 [&](const Entry& entry) { return entry.belonging.*name == first; });
    return all ? words(first) : QString();
}

} // namespace

AssignForm::AssignForm(const std::vector<Entry>& entries, QWidget* parent)
    : QDialog(parent),
      station_(new QLineEdit(shared(entries, &Belonging::station), this)),
      circuit_(new QLineEdit(shared(entries, &Belonging::circuit), this)) {
    setObjectName(QStringLiteral("ArchiveAssign"));
    setWindowTitle(QStringLiteral("Assign"));
    station_->setObjectName(QStringLiteral("assignStation"));
    circuit_->setObjectName(QStringLiteral("assignCircuit"));
    auto* what =
        new QLabel(QStringLiteral("%1 recording(s) get this station and circuit.\nThe files themselves are "
                                  "not altered; without an assignment the names are those of the notes.")
                       .arg(entries.size()),
                   this);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    auto* form = new QFormLayout(this);
    form->addRow(what);
    form->addRow(QStringLiteral("&Station"), station_);
    form->addRow(QStringLiteral("&Circuit"), circuit_);
    form->addRow(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    resize(440, 0);
}

std::string AssignForm::station() const {
    return station_->text().toStdString();
}

std::string AssignForm::circuit() const {
    return circuit_->text().toStdString();
}

} // namespace tally::archive
