// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Refusal.h"
#include "core/Settings.h"

#include <QWidget>

#include <optional>
#include <string>

class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;

namespace tally {
struct Recordings;
}

namespace tally::study {

struct OptionEntries;
struct StudyOptions;

// The options of a study as fields; what is typed is kept in the settings at once. An empty field is an
// option not given.
class StudySide : public QWidget {
    Q_OBJECT

public:
    // Fills the fields from the section "Study". The settings must outlive it.
    explicit StudySide(Settings& settings, QWidget* parent = nullptr);

    // Offers the demand windows that fit the interval of the open files, and only the options that they
    // allow.
    void fitTo(const Recordings& recordings);
    // The options as they stand. When a field makes no sense they are refused, and a line says why.
    Expected<StudyOptions> options();

Q_SIGNALS:
    void changed();

private:
    QLineEdit* addField(QFormLayout& form, const char* name, const char* caption, const char* tip);
    std::optional<std::string> entry(const QLineEdit* field) const;
    OptionEntries entries() const;
    void keep(const std::string& key, const QString& text);
    // Where a field is kept: the limits of volts apart from those of amps.
    std::string keyOf(const QLineEdit* field) const;

    Settings& settings_;
    bool isOfVolts_ = false; // the open files
    QComboBox* window_;
    QLineEdit* high_;
    QLineEdit* low_;
    QLineEdit* rating_;
    QLineEdit* add_;
    QLineEdit* factor_;
    QLineEdit* volts_;
    QLineEdit* pf_;
    QLineEdit* holidays_;
    QLabel* problem_;
};

} // namespace tally::study
