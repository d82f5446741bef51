// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMainWindow>
#include <memory>

class QHelpEngine;
class QTemporaryDir;
class QTabWidget;
class QTextBrowser;
class QUrl;

namespace tally {

// The help viewer: contents and search beside the pages.
class HelpWindow : public QMainWindow {
    Q_OBJECT

public:
    // Null with a message in `why` when the file is missing or is no help file.
    static std::unique_ptr<HelpWindow> make(const QString& helpFile, QString* why);
    ~HelpWindow() override;

    // A page by its file name ("file.html"); the first page for none.
    void showPage(const QString& page = {});

private:
    HelpWindow(std::unique_ptr<QTemporaryDir> own, std::unique_ptr<QHelpEngine> engine,
               const QString& nameSpace);

    void addContents(QTabWidget& side);
    void addSearch(QTabWidget& side);
    void addButtons();
    void go(const QUrl& url);

    std::unique_ptr<QTemporaryDir> own_; // the collection's folder where the per-user one cannot be used
    std::unique_ptr<QHelpEngine> engine_;
    QString nameSpace_;
    QTextBrowser* pages_;
};

// Opens the help file in its viewer, which is raised when it is there already, at a page by its file name.
// False with a message in `why` when the file is missing or damaged.
bool WinHelpA(QWidget& window, const QString& helpFile, QString* why, const QString& page = {});

} // namespace tally
