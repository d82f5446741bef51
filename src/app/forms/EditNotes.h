// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <array>
#include <string>

class QLineEdit;

namespace tally {

// "Note Editor": the four note fields of a file. exec() gives Accepted for "save".
class EditNotes : public QDialog {
    Q_OBJECT

public:
    EditNotes(const std::string& path, const std::array<std::string, 4>& notes, QWidget* parent = nullptr);
    std::array<std::string, 4> notes() const;

private:
    std::array<QLineEdit*, 4> texts_{};
};

} // namespace tally
