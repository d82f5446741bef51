// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Menus.h"

#include "app/MenuTree.h"
#include "core/forms/Words.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <stdexcept>
#include <utility>

namespace tally {

namespace {

QAction* addMenu(QWidget& parent, const QString& name, const QString& caption, QMenu*& made) {
    made = new QMenu(caption, &parent);
    made->setObjectName(name);
    return made->menuAction();
}

// A long path with its middle left out: where it begins and the name of its file are what tells it from
// others.
QString shortened(const QString& path) {
    constexpr qsizetype longest = 60;
    constexpr qsizetype beginning = 20;
    if (path.size() <= longest)
        return path;
    return path.first(beginning) + QChar(u'\u2026') + path.last(longest - beginning - 1);
}

} // namespace

Menus::Menus(QMenuBar& bar, QObject* parent) : QObject(parent) {
    std::array<QMenu*, 4> open{};
    for (const MenuEntry& entry : menuTree()) {
        const QString name = words(entry.name);
        QWidget* under = entry.level == 0 ? static_cast<QWidget*>(&bar) : open[std::size_t(entry.level) - 1];
        if (entry.lineAbove)
            static_cast<QMenu*>(under)->addSeparator();
        QAction* action = entry.submenu
                              ? addMenu(*under, name, words(entry.caption), open[std::size_t(entry.level)])
                              : new QAction(words(entry.caption), parent);
        action->setObjectName(name);
        action->setStatusTip(words(entry.tip));
        if (!entry.shortcut.empty())
            action->setShortcut(QKeySequence(words(entry.shortcut)));
        // About and Exit stay where they are on every system.
        action->setMenuRole(QAction::NoRole);
        under->addAction(action);
        if (entry.name == mruName) {
            mru_.append(action);
            action->setProperty("Index", int(mru_.size()));
        }
        if (!items_.contains(name))
            items_.insert(name, {action, true, entry.submenu || entry.name == mruName});
    }
    for (auto it = items_.cbegin(); it != items_.cend(); ++it)
        it->action->setEnabled(it->handled);
}

QAction& Menus::item(std::string_view name) const {
    const auto found = items_.constFind(words(name));
    if (found == items_.cend())
        throw std::logic_error("no menu item " + std::string(name));
    return *found->action;
}

void Menus::handle(std::string_view name, std::function<void()> handler) {
    connect(&item(name), &QAction::triggered, this, [run = std::move(handler)] { run(); });
    items_[words(name)].handled = true;
    refresh(name);
}

void Menus::handleMru(const std::function<void(int)>& handler) {
    for (int index = 1; index <= mruEntries; ++index)
        connect(mru(index), &QAction::triggered, this, [handler, index] { handler(index); });
}

void Menus::apply(MenuEvent event) {
    for (const MenuStateRow& row : menuStates())
        if (row.at(event) != Switch::keep)
            set(row.item, row.at(event) == Switch::on);
}

void Menus::set(std::string_view name, bool on) {
    items_[words(name)].wanted = on;
    refresh(name);
}

void Menus::refresh(std::string_view name) {
    const Item& entry = items_[words(name)];
    entry.action->setEnabled(entry.wanted && entry.handled);
}

void Menus::refreshAll() {
    for (const Item& entry : std::as_const(items_))
        entry.action->setEnabled(entry.wanted && entry.handled);
}

QAction* Menus::mru(int index) const {
    return mru_.at(index - 1);
}

void Menus::showMru(const std::array<std::string, 4>& paths, bool shown) {
    for (int index = 1; index <= mruEntries; ++index) {
        const std::string& path = paths[std::size_t(index) - 1];
        // "&" would mark an access key.
        mru(index)->setText(shortened(words(path)).replace(QLatin1Char('&'), QStringLiteral("&&")));
        mru(index)->setStatusTip(words(path));
        mru(index)->setData(QByteArray::fromStdString(path));
        mru(index)->setVisible(shown && !path.empty());
    }
}

std::string Menus::mruPath(int index) const {
    return mru(index)->data().toByteArray().toStdString();
}

} // namespace tally
