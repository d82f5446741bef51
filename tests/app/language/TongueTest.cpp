// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/language/Tongue.h"

#include "app/language/Interpreter.h"
#include "app/language/Patterns.h"
#include "support/Places.h"

#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>
#include <QXmlStreamReader>

#include <gtest/gtest.h>
#include <map>
#include <set>

namespace tally {
namespace {

constexpr const char* spoken[] = {"de", "fr", "es"};

QString text(const char* utf8) {
    return QString::fromUtf8(utf8);
}

// Source and translation of every entry of a language's file.
std::map<QString, QString> entries(const char* language) {
    QFile file(QString::fromStdString(::testing::sourceDir()) +
               QStringLiteral("/src/app/language/tallyline_%1.ts").arg(QString::fromLatin1(language)));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QXmlStreamReader xml(&file);
    std::map<QString, QString> all;
    QString source;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == QStringLiteral("source"))
            source = xml.readElementText();
        else if (xml.isStartElement() && xml.name() == QStringLiteral("translation")) {
            EXPECT_NE(xml.attributes().value(QStringLiteral("type")), QStringLiteral("unfinished"));
            EXPECT_TRUE(all.emplace(source, xml.readElementText()).second)
                << source.toStdString() << " twice";
        }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return all;
}

// Which values a text takes, and how many access keys it marks.
QString shape(const QString& words) {
    QStringList places;
    int keys = 0;
    for (qsizetype i = 0; i + 1 < words.size(); ++i) {
        if (words[i] == QLatin1Char('%') && words[i + 1].isDigit())
            places.append(words.mid(i, 2));
        if (words[i] == QLatin1Char('&') && words[i + 1] != QLatin1Char(' '))
            ++keys;
    }
    places.sort();
    return places.join(QLatin1Char(' ')) + QStringLiteral(" keys %1").arg(keys);
}

TEST(Tongue, EveryEntryHasWordsWithTheSameValuesAndAccessKeys) {
    const auto german = entries("de");
    EXPECT_GT(german.size(), 500u);
    for (const char* const language : spoken) {
        const auto all = entries(language);
        EXPECT_EQ(all.size(), german.size()) << language;
        for (const auto& [source, words] : all) {
            EXPECT_TRUE(german.count(source)) << language << ": " << source.toStdString();
            EXPECT_FALSE(words.trimmed().isEmpty()) << language << ": " << source.toStdString();
            EXPECT_EQ(shape(words), shape(source)) << language << ": " << words.toStdString();
            EXPECT_EQ(plainForm(source), source) << "looked up in another form";
        }
    }
}

// A text that was said already must not be taken for an English one.
TEST(Tongue, NothingIsSaidTwice) {
    for (const char* const language : spoken) {
        const auto all = entries(language);
        for (const auto& [source, words] : all) {
            const auto again = all.find(words);
            EXPECT_TRUE(again == all.end() || again->second == words)
                << language << ": " << source.toStdString() << ", " << words.toStdString();
        }
    }
}

TEST(Tongue, ThePatternsAreTheEntriesWithValues) {
    std::set<QString> listed;
    for (const char* const pattern : patterns())
        listed.insert(text(pattern));
    std::set<QString> found;
    for (const auto& [source, words] : entries("de"))
        if (source.contains(QStringLiteral("%1")))
            found.insert(source);
    EXPECT_EQ(listed, found);
}

TEST(Tongue, SaysWholeTextsPatternsLinesAndSentences) {
    Tongue tongue;
    ASSERT_TRUE(tongue.learn(text("de")));
    EXPECT_EQ(tongue.say(text("&Open")), text("Ö&ffnen"));
    EXPECT_EQ(tongue.say(text("No response in  2.5 seconds")), text("Keine Antwort in 2.5 Sekunden"));
    // Values that are words are said too, and may stand elsewhere.
    EXPECT_EQ(tongue.say(text("readings 3 to 9 of 40")), text("Messwerte 3 bis 9 von 40"));
    EXPECT_EQ(tongue.say(text("File not found\r\n/d/a.dat")), text("Datei nicht gefunden\n/d/a.dat"));
    EXPECT_EQ(
        tongue.say(text("   Press 'OK'.                   \r\n"
                        "   (If the interface has a transfer switch,  \r\n"
                        "    make sure it's set to 'TRANSFER'.)       ")),
        text("Drücken Sie „OK“.\n(Hat das Interface einen Umschalter,\nmuss er auf „TRANSFER“ stehen.)"));
    EXPECT_EQ(tongue.say(text("Bad data. Try downloading again. Save it now?")),
              text("Schlechte Daten. Lesen Sie noch einmal aus. Jetzt speichern?"));
    EXPECT_EQ(tongue.say(text("Debugging log:\n")), text("Protokoll:\n"));
    EXPECT_EQ(tongue.say(text("/home/ann/Name")), text("/home/ann/Name"));
    EXPECT_EQ(tongue.unknown(text("OK")), QStringList());
    EXPECT_EQ(tongue.unknown(text("Save it now? Or never.\nOK")), QStringList(text("Or never.")));
}

TEST(Tongue, LearnsNoLanguageThatItHasNoWordsOf) {
    Tongue tongue;
    EXPECT_FALSE(tongue.learn(text("xx")));
    EXPECT_EQ(tongue.say(text("&Open")), text("&Open"));
}

TEST(Interpreter, SaysWhatWidgetsShowAndLeavesEntriesAndListsAlone) {
    Tongue tongue;
    ASSERT_TRUE(tongue.learn(text("fr")));
    Interpreter interpreter(tongue, nullptr);
    qApp->installEventFilter(&interpreter);
    QWidget window;
    auto* const down = new QVBoxLayout(&window);
    auto* const label = new QLabel(text("Name:"));
    auto* const button = new QPushButton(text("Cancel"));
    auto* const line = new QLineEdit(text("Cancel"));
    auto* const list = new QListWidget;
    list->addItem(text("Cancel"));
    for (QWidget* const part : {static_cast<QWidget*>(label), static_cast<QWidget*>(button),
                                static_cast<QWidget*>(line), static_cast<QWidget*>(list)})
        down->addWidget(part);
    window.show();
    QCoreApplication::processEvents();
    EXPECT_EQ(label->text(), text("Nom :"));
    EXPECT_EQ(button->text(), text("Annuler"));
    EXPECT_EQ(line->text(), text("Cancel"));
    EXPECT_EQ(list->item(0)->text(), text("Cancel"));
    // A text that changes while it is shown.
    label->setText(text("Other:"));
    QCoreApplication::processEvents();
    EXPECT_EQ(label->text(), text("Autre :"));
}

} // namespace
} // namespace tally
