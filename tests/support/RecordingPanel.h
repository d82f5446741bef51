// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/Panel.h"

#include <string>
#include <vector>

namespace tally::testing {

// Keeps everything that a session shows, in order.
class RecordingPanel : public Panel {
public:
    std::vector<std::string> prompts;
    std::vector<std::string> statuses;
    std::vector<std::string> progressTexts;
    std::vector<std::string> mainStatuses;
    std::vector<std::string> hints;
    std::vector<std::string> remainders;
    std::vector<int> values; // of the progress bar
    std::string log;
    bool visible = false;
    bool isBusy = false;

    void prompt(const std::string& text) override { prompts.push_back(text); }
    void status(const std::string& text) override { statuses.push_back(text); }
    void progressText(const std::string& text) override { progressTexts.push_back(text); }
    void appendLog(const std::string& text) override { log += text; }
    void progressVisible(bool on) override { visible = on; }
    void progress(int value) override { values.push_back(value); }
    void remaining(const std::string& text) override { remainders.push_back(text); }
    void hint(const std::string& text) override { hints.push_back(text); }
    void busy(bool on) override { isBusy = on; }
    void mainStatus(const std::string& text) override { mainStatuses.push_back(text); }
};

} // namespace tally::testing
