// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

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
    // The options as they stand; nothing, and a line that says why, when a field makes no sense.
    std::optional<StudyOptions> options();

Q_SIGNALS:
    void changed();

private:
    QLineEdit* addField(QFormLayout& form, const char* name, const char* caption, const char* tip);
    std::optional<std::string> entry(const QLineEdit* field) const;
    OptionEntries entries() const;
    void keep(const QString& key, const QString& text);

    Settings& settings_;
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
