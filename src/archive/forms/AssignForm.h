// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "archive/Kept.h"

#include <QDialog>

class QLineEdit;

namespace tally::archive {

// "Assign": another station and circuit for some recordings.
class AssignForm : public QDialog {
    Q_OBJECT

public:
    // Begins with the names that all of them share.
    explicit AssignForm(const std::vector<Entry>& entries, QWidget* parent = nullptr);
    std::string station() const;
    std::string circuit() const;

private:
    QLineEdit* station_;
    QLineEdit* circuit_;
};

} // namespace tally::archive
