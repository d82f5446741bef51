// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/language/Tongue.h"

#include "app/language/Patterns.h"

#include <algorithm>

namespace tally {

namespace {

constexpr const char* ours = "Tallyline";
constexpr qsizetype longestRun = 10;   // lines
constexpr qsizetype remembered = 4000; // texts; values under the pointer are always new ones

// "%1 of %2" as an expression that takes the values out.
QRegularExpression expressionOf(const QString& pattern) {
    QString form = QRegularExpression::escape(pattern);
    static const QRegularExpression place(QStringLiteral("\\\\%[1-9]"));
    form.replace(place, QStringLiteral("([^\\n]+?)"));
    return QRegularExpression(QRegularExpression::anchoredPattern(form));
}

qsizetype leadingBreaks(const QString& text) {
    qsizetype count = 0;
    while (count < text.size() && text[count] == QLatin1Char('\n'))
        ++count;
    return count;
}

qsizetype trailingBreaks(const QString& text) {
    qsizetype count = 0;
    while (count < text.size() && text[text.size() - 1 - count] == QLatin1Char('\n'))
        ++count;
    return count;
}

QString withBreaks(QString text) {
    return text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"))
        .replace(QLatin1Char('\r'), QLatin1Char('\n'));
}

} // namespace

QString plainForm(const QString& text) {
    QStringList lines = withBreaks(text).split(QLatin1Char('\n'));
    for (QString& line : lines)
        line = line.simplified();
    return lines.join(QLatin1Char('\n')).trimmed();
}

bool Tongue::learn(const QString& language) {
    said_.clear();
    patterns_.clear();
    if (!load(QStringLiteral(":/language/tallyline_%1.qm").arg(language)))
        return false;
    static const QRegularExpression place(QStringLiteral("%[1-9]"));
    for (const char* const source : patterns()) {
        const QString pattern = QString::fromUtf8(source);
        const QString words = entry(pattern);
        if (!words.isEmpty())
            patterns_.push_back({expressionOf(pattern), words, QString(pattern).remove(place).size()});
    }
    std::stable_sort(patterns_.begin(), patterns_.end(),
                     [](const Pattern& a, const Pattern& b) { return a.fixed > b.fixed; });
    return true;
}

QString Tongue::entry(const QString& plain) const {
    return QTranslator::translate(ours, plain.toUtf8().constData(), nullptr, -1);
}

// The values of a pattern may be words themselves. Their order may differ in the other language.
QString Tongue::byPattern(const QString& plain) const {
    for (const Pattern& pattern : patterns_) {
        const QRegularExpressionMatch match = pattern.form.match(plain);
        if (!match.hasMatch())
            continue;
        QString made;
        for (qsizetype i = 0; i < pattern.words.size(); ++i) {
            const QChar c = pattern.words[i];
            const int number = c == QLatin1Char('%') && i + 1 < pattern.words.size()
                                   ? pattern.words[i + 1].digitValue()
                                   : -1;
            if (number < 1 || number > match.lastCapturedIndex()) {
                made += c;
                continue;
            }
            const QString value = match.captured(number);
            const QString known = entry(plainForm(value));
            made += known.isEmpty() ? value : known;
            ++i;
        }
        return made;
    }
    return {};
}

QString Tongue::whole(const QString& plain) const {
    const QString known = entry(plain);
    return known.isEmpty() ? byPattern(plain) : known;
}

// A report is lines and a notice is sentences, of which several may belong together: the longest run that is
// known is said as a whole. What is not known is left for `rest`.
QStringList Tongue::byRuns(const QStringList& parts, const QString& between, const Rest& rest) const {
    QStringList said;
    for (qsizetype at = 0; at < parts.size();) {
        QString known;
        qsizetype count = std::min(longestRun, parts.size() - at);
        for (; count > 0; --count) {
            // A run that begins or ends with an empty line would lose it.
            if (parts[at].trimmed().isEmpty() || parts[at + count - 1].trimmed().isEmpty())
                continue;
            known = whole(plainForm(parts.mid(at, count).join(between)));
            if (!known.isEmpty())
                break;
        }
        said.append(count > 0 ? known : rest(parts[at]));
        at += std::max<qsizetype>(count, 1);
    }
    return said;
}

QString Tongue::inParts(const QString& text, QStringList* unknown) const {
    const QString lineEnd = QStringLiteral("\n");
    const QString blank = QStringLiteral(" ");
    static const QRegularExpression sentenceEnd(QStringLiteral("(?<=[.!?:;]) +"));
    const Rest note = [unknown](const QString& part) {
        if (unknown)
            unknown->append(part);
        return part;
    };
    const Rest sentences = [&](const QString& line) {
        const QStringList parts = line.split(sentenceEnd, Qt::SkipEmptyParts);
        return parts.size() < 2 ? note(line) : byRuns(parts, blank, note).join(blank);
    };
    return byRuns(text.split(QLatin1Char('\n')), lineEnd, sentences).join(lineEnd);
}

QString Tongue::say(const QString& english) const {
    if (english.isEmpty())
        return english;
    const auto before = said_.constFind(english);
    if (before != said_.cend())
        return *before;
    const QString text = withBreaks(english);
    const QString known = whole(plainForm(text));
    QString said = known.isEmpty() ? inParts(text, nullptr)
                                   : QString(leadingBreaks(text), QLatin1Char('\n')) + known +
                                         QString(trailingBreaks(text), QLatin1Char('\n'));
    if (said_.size() >= remembered)
        said_.clear();
    said_.insert(english, said);
    return said;
}

QStringList Tongue::unknown(const QString& english) const {
    const QString text = withBreaks(english);
    QStringList parts;
    if (whole(plainForm(text)).isEmpty())
        inParts(text, &parts);
    return parts;
}

// Qt asks for words of its own forms under their class names.
QString Tongue::translate(const char* context, const char* source, const char*, int) const {
    const QByteArrayView asked(context);
    if (source == nullptr || (asked != QByteArrayView(ours) && !asked.startsWith("tally::")))
        return {};
    const QString english = QString::fromUtf8(source);
    const QString said = say(english);
    return said == english ? QString() : said;
}

} // namespace tally
