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
class TLY_Downloads;
class TLY_Edit;
class TLY_Export;
class TLY_File;
class TLY_Help;
class TLY_Instrument;
class TLY_Options;
class TLY_Survey;
class TLY_Paper;
class TLY_Power;
class TLY_View;

inline constexpr std::string_view noFileOpen = "Error - No file available. Need to open a file.";

// The main window: menus, notices, chart or text, status bar. What the menu items do stands in one class for
// each menu.
class TLY : public QMainWindow {
    Q_OBJECT

public:
    explicit TLY(const Services& services, QWidget* parent = nullptr);
    ~TLY() override;

    const Services& services() const { return services_; }
    Menus& menus() { return *menus_; }
    Screen& screen() { return *screen_; }
    NoticeBar& notices() { return *notices_; }
    StatusPanels& status() { return *status_; }
    FolderChoice& folderChoice() { return *folderChoice_; }
    Dispatcher& dispatcher() { return dispatcher_; }

    TLY_File& file() { return *file_; }
    TLY_View& view() { return *view_; }
    TLY_Power& power() { return *power_; }
    TLY_Edit& edit() { return *edit_; }
    TLY_Paper& paper() { return *paper_; }
    TLY_Downloads& downloads() { return *downloads_; }
    TLY_Help& help() { return *help_; }

    // Opens files as File > Open does, at most three; shows the plot instead of the summary when asked.
    void openFiles(const std::vector<std::string>& paths, bool plot = false);
    // File names in the title bar.
    void updateTitle();
    // A quiet word that the settings could not be read or written.
    void reportSettings(const std::string& text);

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
    void command(const std::function<void()>& handler);
    void connectStartPage();
    void addShortcuts();
    void placeWindow();

    Services services_;
    Dispatcher dispatcher_;
    std::unique_ptr<StatusPanels> status_;
    Menus* menus_ = nullptr;
    Screen* screen_ = nullptr;
    NoticeBar* notices_ = nullptr;
    FolderChoice* folderChoice_ = nullptr;
    std::unique_ptr<TLY_File> file_;
    std::unique_ptr<TLY_View> view_;
    std::unique_ptr<TLY_Power> power_;
    std::unique_ptr<TLY_Edit> edit_;
    std::unique_ptr<TLY_Paper> paper_;
    std::unique_ptr<TLY_Export> export_;
    std::unique_ptr<TLY_Downloads> downloads_;
    std::unique_ptr<TLY_Instrument> instrument_;
    std::unique_ptr<TLY_Options> options_;
    std::unique_ptr<TLY_Survey> survey_;
    std::unique_ptr<TLY_Help> help_;
    bool painted_ = false;
};

} // namespace tally
