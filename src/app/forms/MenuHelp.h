// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <functional>

class QMenu;
class QMenuBar;

namespace tally {

// F1 in an open menu: closes the menu and asks for the help of it. An open menu takes all keys, so the
// shortcut of the window does not see this one.
class MenuHelp : public QObject {
    Q_OBJECT

public:
    // `wanted` gets the name of the menu of the bar, also from a submenu.
    MenuHelp(QMenuBar& bar, std::function<void(const QString& menu)> wanted, QObject* parent);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::function<void(const QString&)> wanted_;
};

} // namespace tally
