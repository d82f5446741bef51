// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/language/Tongue.h"

#include <QObject>

class QAction;
class QWidget;

namespace tally {

// Stands at the border of the widgets: forms and rooms speak English, and what a widget shows is put into the
// language in force when it is shown and when it changes. Entries, lists and documents are left alone: they
// are data. A widget with the property "asWritten" is left alone too.
class Interpreter : public QObject {
    Q_OBJECT

public:
    Interpreter(const Tongue& tongue, QObject* parent);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void interpret(QWidget& widget);
    void interpretOwn(QWidget& widget);
    void interpret(QAction& action);

    const Tongue& tongue_;
};

} // namespace tally
