// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <string>

class QLineEdit;
class QRadioButton;

namespace tally {

// "Force Readings": a value and which readings of the range get it. exec() gives Accepted for OK.
class ForceRdgs : public QDialog {
    Q_OBJECT

public:
    // `file` is the path of the file that is changed, `last` the value entered last, as plain text; `range`
    // names the readings of the range.
    ForceRdgs(const std::string& file, const std::string& last, const std::string& range,
              QWidget* parent = nullptr);

    std::string value() const;
    bool leftmost() const;
    bool rightmost() const;

private:
    QLineEdit* value_;
    QRadioButton* all_;
    QRadioButton* left_;
    QRadioButton* right_;
};

} // namespace tally
