// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <string>
#include <vector>

class QComboBox;
class QListWidget;
class QPushButton;
class QRadioButton;

namespace tally {

// What is to be written of the open recordings, and how.
struct ExportChoice {
    bool part = false;                // what is displayed, not everything
    std::vector<std::size_t> columns; // which of those offered, in their order; never empty when accepted
    bool workbook = false;            // XLSX instead of CSV
    char separator = ',';             // of CSV: ",", ";" or a tab
    char decimal = '.';               // of CSV: "." or ","
    bool shownTime = false;           // of CSV: times as tables show them instead of YYYY-MM-DD HH:MM
};

// "Export Readings": range, columns and form of a table of all open recordings.
class ExportForm : public QDialog {
    Q_OBJECT

public:
    // `whole` and `part` say what each range holds; an empty part is not offered.
    ExportForm(const std::string& whole, const std::string& part, const std::vector<std::string>& columns,
               QWidget* parent = nullptr);
    ExportChoice choice() const;

private:
    QWidget* makeRange(const std::string& whole, const std::string& part);
    QWidget* makeColumns(const std::vector<std::string>& columns);
    QWidget* makeKind();
    QWidget* makeButtons();
    void follow();

    QRadioButton* part_;
    QListWidget* columns_;
    QRadioButton* csv_;
    QRadioButton* workbook_;
    QComboBox* separator_;
    QComboBox* decimal_;
    QComboBox* time_;
    QPushButton* save_;
};

} // namespace tally
