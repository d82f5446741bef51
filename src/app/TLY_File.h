// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "view/ShownRange.h"

#include <string>
#include <string_view>
#include <vector>

namespace tally {

class Chart;
class ChartToolBar;
class TLY;

inline constexpr std::string_view openFilter = "data files (*.dat)|*.dat|All files (*.*)|*.*";
inline constexpr std::string_view saveFilter = "data files (*.dat) | *.dat";
inline constexpr std::string_view importFilter = "data files (*.chd) | *.chd";
inline constexpr std::string_view chartFilter = "chart files (*.chd) | *.chd";
inline constexpr std::string_view pictureFilter =
    "PNG picture (*.png)|*.png|PDF (*.pdf)|*.pdf|SVG (*.svg)|*.svg";
inline constexpr std::string_view recentGone = "File not found or disk error";

// The File menu but for printing and exports: data files, chart files, pictures.
class TLY_File {
public:
    explicit TLY_File(TLY& window);

    void mnuItemOpen_Click();
    void mnuMRU_Click(int index); // 1 to 4
    void mnuItemClose_Click();
    void mnuItemSave_Click();
    void mnuItemImport_Click();
    void mnuItemExit_Click();

    // Opens files one after the other and stops at the first that is refused; a fourth is not opened and said
    // so.
    void openAll(const std::vector<std::string>& paths);
    void copyShown();
    // The recent files as the settings have them; hidden while three files are open.
    void showMru();
    // Where file dialogs start: the default directory, empty (the current one) when it is not set or gone.
    std::string folder();
    // A recording that comes with the program; empty when it is not there.
    static std::string sample();

private:
    bool open(const std::string& path, std::string_view whenClosed = {});
    ShownRange saveRange() const;
    void buildRange(const ShownRange& range);
    void opened();
    void reset();
    void connectChart(Chart& chart, ChartToolBar& bar);
    void saveChart();
    void savePicture();

    TLY& window_;
};

} // namespace tally
