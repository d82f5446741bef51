// SPDX-License-Identifier: GPL-3.0-or-later
// The window in each of its languages: nothing left in English, nothing too long.
#include "Gallery.h"

#include "app/forms/ElidedLabel.h"
#include "app/language/Interpreter.h"
#include "app/language/Speech.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QTabWidget>

#include <map>

namespace tally {
namespace {

constexpr const char* spoken[] = {"de", "fr", "es"};

// What is the same in every language: names of files, types, people and things.
bool isName(const QString& text) {
    static const QRegularExpression name(
        QStringLiteral("^(Tallyline( [\\d.]+)?|Ann|NORTH|Maple|A|V|kW|%|PDF\\.\\.\\.|XLSX\\.\\.\\.|×|"
                       "(\\w+\\.dat(, )?)+( - Tallyline)?|/\\S+( ?/\\S*)*|[Cc]om[1-8]|ttyS\\d|"
                       "HVN\\S*|HVT\\S*|PQV\\S*|PQX\\S*|TZ300|English|Deutsch|Français|Español|"
                       "\\d\\d:\\d\\d  ?\\w+ \\d\\d, \\d\\d)$"));
    return name.match(text.trimmed()).hasMatch();
}

bool hasLetters(const QString& text) {
    static const QRegularExpression letters(QStringLiteral("\\p{L}{2}"));
    return text.contains(letters);
}

bool isSpoken(const Tongue& tongue, const QString& text) {
    const QStringList parts = tongue.unknown(text);
    return isName(text) || std::all_of(parts.begin(), parts.end(),
                                       [](const QString& part) { return !hasLetters(part) || isName(part); });
}

// What a window shows and tells, by place in the tree of widgets and kind.
std::map<QString, QString> texts(QWidget& window) {
    std::map<QString, QString> all;
    const auto add = [&all](const QString& place, const char* kind, const QString& text) {
        if (!text.isEmpty())
            all[place + QLatin1Char(' ') + QString::fromLatin1(kind)] = text;
    };
    add({}, "title", window.windowTitle());
    int number = 0;
    for (QWidget* const widget : window.findChildren<QWidget*>()) {
        ++number;
        if (widget->window() != &window || !widget->isVisible() || widget->property("asWritten").toBool())
            continue;
        const QString place =
            QStringLiteral("%1 %2 %3")
                .arg(number)
                .arg(QString::fromLatin1(widget->metaObject()->className()), widget->objectName());
        add(place, "tip", widget->toolTip());
        add(place, "name", widget->accessibleName());
        if (const auto* const label = qobject_cast<QLabel*>(widget))
            add(place, "text", label->text());
        if (const auto* const button = qobject_cast<QAbstractButton*>(widget))
            add(place, "text", button->text());
        if (const auto* const group = qobject_cast<QGroupBox*>(widget))
            add(place, "text", group->title());
        if (const auto* const line = qobject_cast<QLineEdit*>(widget))
            add(place, "hint", line->placeholderText());
        if (const auto* const tabs = qobject_cast<QTabWidget*>(widget))
            for (int i = 0; i < tabs->count(); ++i)
                add(place, "tab", tabs->tabText(i));
        if (const auto* const box = qobject_cast<QComboBox*>(widget); box && !box->isEditable())
            for (int i = 0; i < box->count(); ++i)
                add(place + QString::number(i), "item", box->itemText(i));
    }
    return all;
}

class Languages : public testing::Gallery {
protected:
    std::map<std::string, std::map<QString, QString>> english();
};

std::map<std::string, std::map<QString, QString>> Languages::english() {
    std::map<std::string, std::map<QString, QString>> all;
    walk([&](QDialog& dialog, const std::string& form) { all[form] = texts(dialog); });
    return all;
}

TEST_F(Languages, EveryTextOfEveryDialogHasWords) {
    const auto source = english();
    for (const char* const language : spoken) {
        Tongue tongue;
        ASSERT_TRUE(tongue.learn(QString::fromLatin1(language)));
        for (const auto& [form, all] : source)
            for (const auto& [place, text] : all)
                EXPECT_TRUE(isSpoken(tongue, text))
                    << language << ", " << form << ", " << place.toStdString() << ": " << text.toStdString();
    }
}

TEST_F(Languages, EveryTextOfThePagesHasWords) {
    std::map<QString, QString> all;
    walkPages([&](const std::string& page) {
        for (const auto& [place, text] : texts(window))
            all[QString::fromStdString(page) + QLatin1Char(' ') + place] = text;
    });
    for (const char* const language : spoken) {
        Tongue tongue;
        ASSERT_TRUE(tongue.learn(QString::fromLatin1(language)));
        for (const auto& [place, text] : all)
            EXPECT_TRUE(isSpoken(tongue, text))
                << language << ", " << place.toStdString() << ": " << text.toStdString();
    }
}

TEST_F(Languages, EveryMenuItemHasWords) {
    for (const char* const language : spoken) {
        Tongue tongue;
        ASSERT_TRUE(tongue.learn(QString::fromLatin1(language)));
        for (const QAction* const action : window.findChildren<QAction*>()) {
            if (action->property("asWritten").toBool())
                continue;
            // A tip of its own, not the one that is made of the caption.
            const bool own = action->toolTip() !=
                             QString(action->text()).remove(QLatin1Char('&')).remove(QStringLiteral("..."));
            for (const QString& text :
                 {action->text(), action->statusTip(), own ? action->toolTip() : QString()})
                EXPECT_TRUE(isSpoken(tongue, text)) << language << ": " << text.toStdString();
        }
    }
}

// What stands there is what the words say, and nothing was said twice.
TEST_F(Languages, DialogsShowTheWordsOfTheLanguage) {
    const auto source = english();
    for (const char* const language : spoken) {
        Tongue tongue;
        ASSERT_TRUE(tongue.learn(QString::fromLatin1(language)));
        Interpreter interpreter(tongue, nullptr);
        qApp->installEventFilter(&interpreter);
        int others = 0;
        walk([&](QDialog& dialog, const std::string& form) {
            for (const auto& [place, text] : texts(dialog)) {
                const auto& all = source.at(form);
                const auto before = all.find(place);
                ASSERT_NE(before, all.end()) << form << " " << place.toStdString();
                EXPECT_EQ(text, tongue.say(before->second)) << form << " " << place.toStdString();
                others += text != before->second;
            }
        });
        EXPECT_GT(others, 100) << language;
    }
}

TEST_F(Languages, NothingIsTooLong) {
    for (const char* const language : spoken) {
        Tongue tongue;
        ASSERT_TRUE(tongue.learn(QString::fromLatin1(language)));
        Interpreter interpreter(tongue, nullptr);
        qApp->installEventFilter(&interpreter);
        walk([&](QDialog& dialog, const std::string& form) {
            EXPECT_LE(dialog.width(), 1366) << language << " " << form;
            EXPECT_LE(dialog.height(), 768 - 40) << language << " " << form; // a title bar above
            for (QWidget* const widget : dialog.findChildren<QWidget*>()) {
                const auto* const label = qobject_cast<QLabel*>(widget);
                const bool cut = (label && !label->wordWrap()) || qobject_cast<QAbstractButton*>(widget);
                if (widget->isVisible() && cut && !widget->objectName().startsWith(QStringLiteral("qt_"))) {
                    EXPECT_LE(widget->sizeHint().width(), widget->width())
                        << language << " " << form << " " << widget->objectName().toStdString();
                }
            }
        });
    }
}

TEST_F(Languages, TheMenuBarSpeaksAndFits) {
    for (const char* const language : spoken) {
        Tongue tongue;
        ASSERT_TRUE(tongue.learn(QString::fromLatin1(language)));
        Interpreter interpreter(tongue, nullptr);
        qApp->installEventFilter(&interpreter);
        TLY own(services);
        own.show();
        QCoreApplication::processEvents();
        EXPECT_EQ(own.menus().item("mnuItemOpen").text(), tongue.say(QStringLiteral("&Open"))) << language;
        EXPECT_LE(own.menuBar()->sizeHint().width(), 1000) << language;
        std::map<QString, int> keys;
        for (const QAction* const action : own.menuBar()->actions()) {
            const QString key = QKeySequence::mnemonic(action->text()).toString();
            EXPECT_TRUE(key.isEmpty() || ++keys[key] == 1)
                << language << ": " << action->text().toStdString();
        }
        for (const QMenu* const menu : own.menuBar()->findChildren<QMenu*>()) {
            std::map<QString, int> inMenu;
            for (const QAction* const action : menu->actions()) {
                const QString key = QKeySequence::mnemonic(action->text()).toString();
                EXPECT_TRUE(key.isEmpty() || ++inMenu[key] == 1)
                    << language << ": " << action->text().toStdString();
            }
        }
    }
}

TEST_F(Languages, ALanguageIsChosenInTheMenuAndHoldsFromTheNextStart) {
    EXPECT_EQ(languageInForce(settings, QLocale(QStringLiteral("fr_CA"))), "fr");
    EXPECT_EQ(languageInForce(settings, QLocale(QStringLiteral("ja_JP"))), "en");
    EXPECT_TRUE(item("language").isChecked());
    click("language_de");
    EXPECT_EQ(settings.get("Settings", "Language"), "de");
    EXPECT_TRUE(item("language_de").isChecked());
    EXPECT_FALSE(item("language").isChecked());
    EXPECT_EQ(prompt.shown.size(), 1u);
    EXPECT_EQ(languageInForce(settings, QLocale(QStringLiteral("fr_CA"))), "de");
    click("language");
    EXPECT_EQ(languageInForce(settings, QLocale(QStringLiteral("es_MX"))), "es");
    settings.set("Settings", "Language", "xx");
    EXPECT_EQ(languageInForce(settings, QLocale(QStringLiteral("es_MX"))), "es");
}

} // namespace
} // namespace tally
