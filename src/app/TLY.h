// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/Dispatcher.h"
#include "app/Services.h"

#include <QMainWindow>
#include <memory>
#include <string>
#include <vector>

namespace tally {

class FolderChoice;
class Menus;
class NoticeBar;
class Screen;
class StatusPanels;
struct Commands;

// The main window: menus, notices, chart or text, status bar. What the menu items do stands in one class for
// each menu.
class TLY : public QMainWindow {
    Q_OBJECT

public:
    explicit TLY(const Services& services, QWidget* parent = nullptr);
    ~TLY() override;

    Menus& menus() { return *menus_; }
    Screen& screen() { return *screen_; }
    NoticeBar& notices() { return *notices_; }
    FolderChoice& folderChoice() { return *folderChoice_; }
    Dispatcher& dispatcher() { return dispatcher_; }
    // Where the help is looked for instead of beside the program.
    void setHelpFile(const QString& path);

    // Opens files as File > Open does, at most three; shows the plot instead of the summary when asked.
    void openFiles(const std::vector<std::string>& paths, bool plot = false);
    // A quiet word that the settings could not be read or written.
    void reportSettings(const std::string& text);
    // The journal of downloads has a problem to tell.
    void journalChanged();

Q_SIGNALS:
    void firstFrame(); // the window has been painted for the first time

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void layOut();
    void connectMenus();
    void connectMoreMenus();
    template <class Handler>
    std::function<void()> command(Handler handler);
    void connectStartPage();
    void connectTexts();
    void addShortcuts();
    void placeWindow();
    bool mayClose();
    // The names of what is shown in the title bar.
    void updateTitle();
    QString nameInTitle(const std::string& path) const;

    Services services_;
    Dispatcher dispatcher_;
    std::unique_ptr<StatusPanels> status_;
    Menus* menus_ = nullptr;
    Screen* screen_ = nullptr;
    NoticeBar* notices_ = nullptr;
    FolderChoice* folderChoice_ = nullptr;
    std::unique_ptr<Commands> commands_;
    bool painted_ = false;
};

} // namespace tally
