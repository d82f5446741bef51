// SPDX-License-Identifier: GPL-3.0-or-later
// What someone without a mouse, or without eyes on the screen, needs of every window.
#include "Gallery.h"

#include "app/forms/Access.h"
#include "app/forms/AccessKeys.h"
#include "app/forms/DialogHelp.h"
#include "app/forms/EyeOrder.h"
#include "app/forms/StatusPanels.h"
#include "support/Places.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QShortcut>
#include <QStatusBar>
#include <QTest>

#include <set>

namespace tally {
namespace {

class Access : public testing::Gallery {
protected:
    void SetUp() override {
        Gallery::SetUp();
        easeAccess(*qApp);
    }
    void TearDown() override {
        for (QObject* filter : {static_cast<QObject*>(qApp->findChild<AccessKeys*>()),
                                static_cast<QObject*>(qApp->findChild<EyeOrder*>())})
            delete filter;
    }
};

// The controls of a window that the user works with; parts of Qt's own controls belong to those.
QList<QWidget*> controls(const QWidget& window) {
    QList<QWidget*> all;
    for (QWidget* const widget : window.findChildren<QWidget*>()) {
        const bool part = widget->objectName().startsWith(QStringLiteral("qt_")) ||
                          qobject_cast<QComboBox*>(widget->parentWidget());
        if (widget->window() == &window && widget->isVisible() && !part &&
            widget->focusPolicy() != Qt::NoFocus)
            all.append(widget);
    }
    return all;
}

std::string told(const QWidget& widget) {
    return std::string(widget.metaObject()->className()) + " " + widget.objectName().toStdString();
}

QString accessibleText(QWidget& widget, QAccessible::Text kind) {
    const QAccessibleInterface* const face = QAccessible::queryAccessibleInterface(&widget);
    return face ? face->text(kind) : QString();
}

bool isEmptyText(const QWidget& control) {
    const auto* const label = qobject_cast<const QLabel*>(&control);
    return label && label->text().isEmpty();
}

// The sequence that reaches a control: its own, or that of the label beside it.
QKeySequence keyOf(const QWidget& control, const QWidget& window) {
    if (const auto* const button = qobject_cast<const QAbstractButton*>(&control))
        return button->shortcut();
    for (const QLabel* const label : window.findChildren<QLabel*>())
        if (label->buddy() == &control && label->isVisible() && label->text().contains(QLatin1Char('&')))
            return QKeySequence::mnemonic(label->text());
    for (const QShortcut* const shortcut : control.findChildren<QShortcut*>())
        if (shortcut->key().toString().startsWith(QStringLiteral("Alt+")))
            return shortcut->key();
    return {};
}

void expectKeys(const QWidget& window, const std::string& form) {
    std::set<QString> taken;
    for (QWidget* const control : controls(window)) {
        const QString key = keyOf(*control, window).toString();
        // A text that is only read is reached by Tab; letters would be wasted on it.
        if (qobject_cast<QLabel*>(control))
            continue;
        EXPECT_FALSE(key.isEmpty()) << form << ": no access key for " << told(*control);
        EXPECT_TRUE(key.isEmpty() || taken.insert(key).second)
            << form << ": " << key.toStdString() << " twice, at " << told(*control);
    }
}

TEST_F(Access, EveryControlOfEveryDialogHasANameForScreenReaders) {
    walk([](QDialog& dialog, const std::string& form) {
        EXPECT_FALSE(dialog.windowTitle().isEmpty()) << form;
        for (QWidget* const control : controls(dialog))
            // A text that is not there yet has nothing to tell.
            EXPECT_FALSE(!isEmptyText(*control) && accessibleText(*control, QAccessible::Name).isEmpty())
                << form << ": " << told(*control);
    });
}

TEST_F(Access, EveryControlOfEveryDialogHasAnAccessKeyOfItsOwn) {
    walk([](QDialog& dialog, const std::string& form) { expectKeys(dialog, form); });
}

void expectMenuKeys(const QMenu& menu) {
    std::set<QChar> taken;
    for (const QAction* const action : menu.actions()) {
        if (action->isSeparator() || !action->isVisible())
            continue;
        const QKeySequence marked = QKeySequence::mnemonic(action->text());
        const QChar key = marked.isEmpty() ? accessKeyOf(*action) : marked.toString().back().toUpper();
        EXPECT_FALSE(key.isNull()) << "no access key for " << action->text().toStdString();
        EXPECT_TRUE(taken.insert(key).second) << "twice in one menu: " << action->text().toStdString();
        if (action->menu())
            expectMenuKeys(*action->menu());
    }
}

TEST_F(Access, EveryMenuItemHasAnAccessKeyOfItsOwnInItsMenu) {
    window.show();
    for (QMenu* const menu : window.menuBar()->findChildren<QMenu*>()) {
        menu->popup({});
        QCoreApplication::processEvents();
    }
    for (const QAction* const action : window.menuBar()->actions())
        if (action->menu())
            expectMenuKeys(*action->menu());
}

// Worked out here from the places alone: what comes next is on the same line to the right, or below, or in a
// column of its own.
TEST_F(Access, TabFollowsTheEyeInEveryDialog) {
    walk([](QDialog& dialog, const std::string& form) {
        QList<QWidget*> order;
        for (QWidget* at = dialog.nextInFocusChain(); at != &dialog; at = at->nextInFocusChain())
            if (at->isVisible() && at->window() == &dialog && (at->focusPolicy() & Qt::TabFocus) &&
                !qobject_cast<QComboBox*>(at->parentWidget()))
                order.append(at);
        for (qsizetype i = 1; i < order.size(); ++i) {
            const QRect before(order[i - 1]->mapTo(&dialog, QPoint()), order[i - 1]->size());
            const QRect next(order[i]->mapTo(&dialog, QPoint()), order[i]->size());
            const bool above = next.bottom() < before.top();
            EXPECT_FALSE(above && next.left() <= before.right())
                << form << ": from " << told(*order[i - 1]) << " up to " << told(*order[i]);
            const bool beside = std::abs(next.center().y() - before.center().y()) <
                                std::min(next.height(), before.height()) / 2;
            EXPECT_FALSE(beside && next.left() < before.left())
                << form << ": from " << told(*order[i - 1]) << " back to " << told(*order[i]);
        }
    });
}

TEST_F(Access, EveryControlOfEveryPageOfTheWindowHasAName) {
    walkPages([this](const std::string& page) {
        for (QWidget* const control : controls(window))
            EXPECT_FALSE(accessibleText(*control, QAccessible::Name).isEmpty())
                << page << ": " << told(*control);
    });
}

TEST_F(Access, StatusPanelsTellWhatTheyShow) {
    QStatusBar bar;
    StatusPanels panels(bar);
    panels.remark(QStringLiteral("Power factor taken as 1."));
    panels.pointer(QStringLiteral("12:15  Mar 15, 24"), QStringLiteral("20.5 A"));
    const std::pair<const char*, const char*> expected[] = {{"PanelRemark", "Power factor taken as 1."},
                                                            {"PanelTime", "12:15  Mar 15, 24"},
                                                            {"PanelValue", "20.5 A"}};
    for (const auto& [name, text] : expected) {
        auto* const panel = bar.findChild<QLabel*>(QString::fromLatin1(name));
        ASSERT_NE(panel, nullptr) << name;
        EXPECT_EQ(accessibleText(*panel, QAccessible::Description), QString::fromLatin1(text));
    }
}

// A letter that no caption marks works all the same: buttons by Alt, items of an open menu by themselves.
TEST_F(Access, KeysBesideTheCaptionWork) {
    QDialog dialog;
    auto* const first = new QPushButton(QStringLiteral("Cancel"), &dialog);
    auto* const second = new QPushButton(QStringLiteral("cancel it"), &dialog);
    second->move(0, 60);
    int firstClicks = 0;
    int secondClicks = 0;
    QObject::connect(first, &QPushButton::clicked, [&] { ++firstClicks; });
    QObject::connect(second, &QPushButton::clicked, [&] { ++secondClicks; });
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    EXPECT_EQ(first->text(), QStringLiteral("Cancel"));
    QTest::keyClick(&dialog, Qt::Key_C, Qt::AltModifier);
    QTest::keyClick(&dialog, Qt::Key_I, Qt::AltModifier);
    // Pressed as long as one sees it, then let go.
    EXPECT_TRUE(QTest::qWaitFor([&] { return firstClicks == 1 && secondClicks == 1; }, 2000));

    QMenu menu;
    QAction* const item = menu.addAction(QStringLiteral("Import"));
    int chosen = 0;
    QObject::connect(item, &QAction::triggered, [&] { ++chosen; });
    menu.popup({});
    QTest::keyClick(&menu, Qt::Key_I);
    EXPECT_EQ(chosen, 1);
    EXPECT_EQ(item->text(), QStringLiteral("Import"));
}

// Pages that lie in a folder of the documents; the first is English.
QStringList helpFolders() {
    const QDir help(QString::fromStdString(::testing::sourceDir()) + QStringLiteral("/docs/help"));
    QStringList folders = {help.path()};
    for (const QString& name : help.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        folders.append(help.filePath(name));
    return folders;
}

TEST_F(Access, EveryDialogHasAPageOfTheHelpInEveryLanguage) {
    walk([](QDialog& dialog, const std::string& form) {
        const QString page = helpPageOf(dialog.objectName());
        ASSERT_FALSE(page.isEmpty()) << form;
        for (const QString& folder : helpFolders()) {
            QFile file(folder + QLatin1Char('/') + page.section(QLatin1Char('#'), 0, 0));
            ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
            const QString anchor = page.section(QLatin1Char('#'), 1);
            EXPECT_TRUE(anchor.isEmpty() ||
                        QString::fromUtf8(file.readAll()).contains(QStringLiteral("id=\"%1\"").arg(anchor)))
                << file.fileName().toStdString() << " has no " << anchor.toStdString();
        }
    });
}

TEST_F(Access, F1InADialogAsksForItsPage) {
    walk([](QDialog& dialog, const std::string& form) {
        QStringList pages;
        const DialogHelp help(
            [&](QDialog& asked, const QString& page) {
                EXPECT_EQ(&asked, &dialog);
                pages.append(page);
            },
            nullptr);
        QWidget* const at = dialog.focusWidget() ? dialog.focusWidget() : &dialog;
        QTest::keyClick(at, Qt::Key_F1);
        EXPECT_EQ(pages, QStringList(helpPageOf(dialog.objectName()))) << form;
    });
}

// The sources name every dialog: one that is missing in the gallery would not be walked through.
TEST_F(Access, TheGalleryHoldsEveryDialogOfTheSources) {
    std::set<std::string> shown = {"SessionDialog"};
    for (const Piece& piece : pieces())
        shown.insert(piece.form);
    const QDir sources(QString::fromStdString(::testing::sourceDir()) + QStringLiteral("/src"));
    static const QRegularExpression form(
        QStringLiteral("class (\\w+) (?:final )?: public (?:QDialog|SessionDialog)\\b"));
    int found = 0;
    for (const char* room : {"app", "app/forms", "link/forms", "control/forms", "view/forms", "survey/forms",
                             "study/forms", "archive/forms"})
        for (const QFileInfo& header :
             QDir(sources.filePath(QString::fromLatin1(room))).entryInfoList({QStringLiteral("*.h")})) {
            QFile file(header.filePath());
            ASSERT_TRUE(file.open(QIODevice::ReadOnly));
            auto matches = form.globalMatch(QString::fromUtf8(file.readAll()));
            while (matches.hasNext()) {
                const std::string name = matches.next().captured(1).toStdString();
                EXPECT_TRUE(shown.count(name)) << name << " is not walked through";
                ++found;
            }
        }
    EXPECT_GE(found, 15);
}

} // namespace
} // namespace tally
