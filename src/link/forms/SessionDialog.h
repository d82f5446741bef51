// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/Panel.h"
#include "link/Session.h"

#include <QDialog>

class QEventLoop;
class QHBoxLayout;
class QLabel;
class QProgressBar;
class QPushButton;
class QVBoxLayout;

namespace tally {

// The dialog of a session with an instrument. It lives on the stack of its command: shown, waited for and
// closed there, so that no session ever runs inside a slot. While the session runs, Cancel, Escape and
// closing only request a cancel.
class SessionDialog : public QDialog, public Panel {
    Q_OBJECT

public:
    // `parent` is the main window: it gets the hourglass.
    SessionDialog(const SessionServices& services, const QString& name, const QString& title,
                  QWidget* parent);

    // The session of this dialog.
    Session session();
    // Shows the dialog until OK is pressed; false for Cancel, Escape, closing or the end of the application.
    bool waitForOk();
    // From here on the session runs; OK is gone.
    void start();
    // The session is over; closing the dialog closes it.
    void finish() { running_ = false; }

    void appendLog(const std::string& text) override;
    void progressVisible(bool visible) override;
    void progress(int value) override;
    void busy(bool busy) override;
    void mainStatus(const std::string& text) override;
    void progressText(const std::string&) override {}
    void hint(const std::string& text) override;

    void reject() override;

protected:
    // Parts of a dialog, from top to bottom.
    QLabel* addText(const QString& name);
    // A text that is laid out with blanks, at most so many columns wide.
    QLabel* addFixedText(const QString& name, int columns);
    void addWidget(QWidget* widget);
    // What to check while nothing comes.
    void addHint();
    void addProgressBar();
    void addLog();
    void addOk();
    void addCancel(const QString& name, const QString& caption);

private:
    QHBoxLayout& buttonRow();

    const SessionServices& services_;
    QVBoxLayout* down_;
    QHBoxLayout* buttons_ = nullptr;
    QLabel* log_ = nullptr;
    QLabel* hint_ = nullptr;
    QProgressBar* bar_ = nullptr;
    QPushButton* ok_ = nullptr;
    QEventLoop* waiting_ = nullptr; // for OK
    bool okPressed_ = false;
    bool running_ = false;
};

} // namespace tally
