// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/Dispatcher.h"
#include "app/Services.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tally {

class DefaultFolder;
class ForcedReadings;
class Menus;
class NoticeBar;
class StatusPanels;
class TLY_Downloads;
class Views;

inline constexpr std::string_view openFilter = "data files (*.dat)|*.dat|All files (*.*)|*.*";
inline constexpr std::string_view saveFilter = "data files (*.dat) | *.dat";
inline constexpr std::string_view recentGone = "File not found or disk error";

// What the File menu works with besides the services of every command.
struct FileParts {
    Dispatcher& dispatcher;
    Views& views;
    ForcedReadings& forced;
    TLY_Downloads& downloads;
    DefaultFolder& folder;
    Menus& menus;
    NoticeBar& notices;
    StatusPanels& status;
    std::function<void()> namesChanged; // of the open files
};

// The data files of the File menu: opening, closing, saving.
class TLY_File {
public:
    TLY_File(const Services& services, FileParts parts) : services_(services), parts_(std::move(parts)) {}

    Done mnuItemOpen_Click();
    Done mnuMRU_Click(int index); // 1 to 4
    void mnuItemClose_Click();
    Done mnuItemSave_Click();

    // Opens files one after the other and stops at the first that is refused; a fourth is not opened and said
    // so.
    // A copy out of the archive is no file to come back to.
    enum class Remember { yes, no };
    void openAll(const std::vector<std::string>& paths, Remember remember = Remember::yes);
    // Saves every reading of an open file.
    Done saveWhole(int slot);
    // What is told where readings were saved.
    void onSaved(std::function<void(const std::string& path)> saved) { saved_ = std::move(saved); }
    // The recent files as the settings have them; hidden while three files are open.
    void showMru();
    // A recording that comes with the program; empty when it is not there.
    static std::string sample();

private:
    Done open(const std::string& path, std::string_view whenClosed = {}, Remember remember = Remember::yes);
    Done opened();
    void showIncomplete();
    void reset();
    void savePending();
    Done saveReadings(int slot, const Range& wanted);

    const Services& services_;
    FileParts parts_;
    std::function<void(const std::string& path)> saved_ = [](const std::string&) {};
};

} // namespace tally
