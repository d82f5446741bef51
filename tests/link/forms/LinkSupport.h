// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/Instruments.h"
#include "link/Session.h"
#include "support/MemoryFiles.h"
#include "support/MemoryJournal.h"
#include "support/QueuedPrompt.h"
#include "support/VirtualLine.h"
#include "support/VirtualWaiter.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QTest>
#include <QTimer>

#include <functional>
#include <gtest/gtest.h>

namespace tally::testing {

template <typename Widget = QAbstractButton>
Widget* named(const QObject& form, const char* name) {
    auto* widget = form.findChild<Widget*>(QString::fromLatin1(name));
    EXPECT_NE(widget, nullptr) << name;
    return widget;
}

inline std::string labelText(const QObject& form, const char* name) {
    return named<QLabel>(form, name)->text().toStdString();
}

inline void click(const QObject& form, const char* name) {
    named(form, name)->click();
}

// Runs when the event loop of a shown dialog turns next.
inline void soon(std::function<void()> action) {
    QTimer::singleShot(0, qApp, std::move(action));
}

// The dialog that waits for an answer, by its name.
inline QDialog* shownDialog(const char* name) {
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (widget->isVisible() && widget->objectName() == QString::fromLatin1(name))
            return qobject_cast<QDialog*>(widget);
    ADD_FAILURE() << "not shown: " << name;
    return nullptr;
}

// What the session dialogs work with, in virtual time. `onMessage` sees the windows at the moment of each
// message box.
class SessionBench {
public:
    class WatchedPrompt : public QueuedPrompt {
    public:
        std::function<void(const Message&)> onMessage = [](const Message&) {};
        Answer show(const Message& message) override {
            onMessage(message);
            return QueuedPrompt::show(message);
        }
    };

    VirtualWaiter waiter;
    VirtualLine line{waiter};
    WatchedPrompt prompt;
    InstrumentState instrument;
    MemoryJournal journal;
    MemoryFiles files;
    int callPoint = 0;
    std::vector<std::string> mainStatuses;
    SessionServices context{line,
                            waiter,
                            prompt,
                            instrument,
                            journal,
                            callPoint,
                            [this] { waiter.cancelNow(); },
                            [this](const std::string& text) { mainStatuses.push_back(text); }};

    explicit SessionBench(int type) { applySelection(instrument, type); }
};

// A header of 44 columns: code 1 to 3, mode 4, serial 8 to 11, time 31 to 44.
inline std::string instrumentHeader(const std::string& code, char mode) {
    return code + mode + "   0417" + std::string(19, '.') + "03-15-24 14:05";
}

} // namespace tally::testing
