// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QRegularExpression>
#include <QTranslator>
#include <functional>
#include <vector>

namespace tally {

// The form under which a text is looked up: line breaks as one character, no blanks that only lay it out.
QString plainForm(const QString& text);

// The words of one language. English is the source; a text that is composed of words and values is looked up
// by its pattern ("%1 is not there."), else line by line and sentence by sentence. What is not known stays as
// it is.
class Tongue : public QTranslator {
    Q_OBJECT

public:
    // "de", "fr" or "es"; false when the program holds no words of it.
    bool learn(const QString& language);

    // What is shown for an English text. An access key ("&") is part of it.
    QString say(const QString& english) const;
    // The parts of a text that have no words, by lines and sentences.
    QStringList unknown(const QString& english) const;

    QString translate(const char* context, const char* source, const char* disambiguation,
                      int count) const override;

private:
    struct Pattern {
        QRegularExpression form;
        QString words;
        qsizetype fixed; // characters that are no value
    };

    QString entry(const QString& plain) const;
    QString byPattern(const QString& plain) const;
    QString whole(const QString& plain) const;
    using Rest = std::function<QString(const QString& part)>;
    QStringList byRuns(const QStringList& parts, const QString& between, const Rest& rest) const;
    QString inParts(const QString& text, QStringList* unknown) const;

    std::vector<Pattern> patterns_;        // the most telling first
    mutable QHash<QString, QString> said_; // what was looked up before
};

} // namespace tally
