// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/MenuStates.h"

#include <QHash>
#include <QObject>
#include <array>
#include <functional>
#include <string>
#include <string_view>

class QAction;
class QMenuBar;

namespace tally {

// The menu tree as actions, named after their controls, switched by the table of menu states.
class Menus : public QObject {
    Q_OBJECT

public:
    Menus(QMenuBar& bar, QObject* parent);

    QAction& item(std::string_view name) const; // the first entry for the recent files
    // What an item does; an item without a handler stays disabled whatever the table says.
    void handle(std::string_view name, std::function<void()> handler);
    void handleMru(const std::function<void(int index)>& handler); // 1 to 4

    void apply(MenuEvent event);
    // One row of the table by hand, where a rule lies outside it.
    void set(std::string_view name, bool on);
    // Puts every item into its state again: a menu that its bar enables enables its own item.
    void refreshAll();

    // Captions of the recent files; empty ones and, when `shown` is false, all are hidden.
    void showMru(const std::array<std::string, 4>& paths, bool shown);
    std::string mruPath(int index) const;

private:
    void refresh(std::string_view name);
    QAction* mru(int index) const;

    struct Item {
        QAction* action = nullptr;
        bool wanted = true;
        bool handled = false;
    };
    QHash<QString, Item> items_;
    QList<QAction*> mru_;
};

} // namespace tally
