// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/forms/StudySide.h"

#include "core/ModeTable.h"
#include "core/Recordings.h"
#include "study/OptionEntries.h"
#include "study/forms/Block.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QSignalBlocker>

namespace tally::study {

namespace {

constexpr const char* section = "Study";
constexpr int fieldWidth = 110; // pixels

} // namespace

StudySide::StudySide(Settings& settings, QWidget* parent) : QWidget(parent), settings_(settings) {
    setObjectName(QStringLiteral("studyOptions"));
    auto* form = new QFormLayout(this);
    window_ = new QComboBox(this);
    window_->setObjectName(QStringLiteral("window"));
    window_->setAccessibleName(QStringLiteral("Demand window in minutes"));
    form->addRow(QStringLiteral("&Window, min"), window_);
    high_ = addField(*form, "high", "&High limit", "Runs of readings above it are marked and listed");
    low_ = addField(*form, "low", "&Low limit", "Runs of readings below it are marked and listed");
    rating_ = addField(*form, "rating", "&Rating, A", "Rated current of the circuit: checks its capacity");
    add_ = addField(*form, "add", "&New load, A", "Load to be connected");
    factor_ = addField(*form, "factor", "&Factor", "On the highest demand of 15 minutes; 1.25 when empty");
    volts_ = addField(*form, "volts", "Line &voltage, V", "Adds the power of the files as a channel");
    pf_ = addField(*form, "pf", "&Power factor", "1 when empty");
    holidays_ = addField(*form, "holidays", "H&olidays", "Dates as YYYY-MM-DD that count as Sundays");
    problem_ = new QLabel(this);
    problem_->setObjectName(QStringLiteral("optionProblem"));
    problem_->setWordWrap(true);
    form->addRow(problem_);
    connect(window_, &QComboBox::currentTextChanged, this, [this](const QString& text) {
        keep("window", text);
        Q_EMIT changed();
    });
}

QLineEdit* StudySide::addField(QFormLayout& form, const char* name, const char* caption, const char* tip) {
    auto* field = new QLineEdit(this);
    field->setObjectName(QString::fromLatin1(name));
    field->setToolTip(QString::fromLatin1(tip));
    field->setMaximumWidth(fieldWidth);
    field->setText(words(settings_.get(section, name)));
    form.addRow(QString::fromLatin1(caption), field);
    connect(field, &QLineEdit::textChanged, this, [this, field](const QString& text) {
        keep(keyOf(field), text);
        Q_EMIT changed();
    });
    return field;
}

void StudySide::keep(const std::string& key, const QString& text) {
    settings_.set(section, key, text.toStdString());
}

std::string StudySide::keyOf(const QLineEdit* field) const {
    const std::string name = field->objectName().toStdString();
    return isOfVolts_ && (field == high_ || field == low_) ? name + "V" : name;
}

void StudySide::fitTo(const Recordings& recordings) {
    const FileFacts& info = recordings.info(0);
    const QSignalBlocker quiet(window_);
    window_->clear();
    for (const int window : demandWindows)
        if (isDemandWindow(window, modeRow(info.modeLetter).minutes))
            window_->addItem(QString::number(window));
    const int kept = window_->findText(words(settings_.get(section, "window")));
    window_->setCurrentIndex(kept >= 0 ? kept : window_->findText(QString::number(usualWindow)));
    const bool amps = info.unit() == 'A';
    isOfVolts_ = !amps;
    for (QLineEdit* field : {high_, low_}) {
        const QSignalBlocker quietField(field);
        field->setText(words(settings_.get(section, keyOf(field))));
    }
    for (QLineEdit* field : {rating_, add_, factor_})
        field->setEnabled(amps);
    for (QLineEdit* field : {volts_, pf_})
        field->setEnabled(amps && !isMinMaxAvg(info.modeLetter));
}

std::optional<std::string> StudySide::entry(const QLineEdit* field) const {
    const QString text = field->text().trimmed();
    return text.isEmpty() || !field->isEnabled() ? std::nullopt : std::optional(text.toStdString());
}

OptionEntries StudySide::entries() const {
    OptionEntries entries;
    entries.window = window_->currentText().toStdString();
    entries.high = entry(high_);
    entries.low = entry(low_);
    entries.rating = entry(rating_);
    // These mean nothing alone, and stay where they are for the next rating or voltage.
    if (entries.rating) {
        entries.add = entry(add_);
        entries.factor = entry(factor_);
    }
    entries.volts = entry(volts_);
    if (entries.volts)
        entries.pf = entry(pf_);
    static const QRegularExpression separators(QStringLiteral("[\\s,;]+"));
    for (const QString& date : holidays_->text().split(separators, Qt::SkipEmptyParts))
        entries.holidays.push_back(date.toStdString());
    return entries;
}

Expected<StudyOptions> StudySide::options() {
    auto options = optionsOf(entries());
    problem_->setText(options ? QString() : words(options.error().text));
    return options;
}

} // namespace tally::study
