// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/Panel.h"

#include <string>

namespace tally {

// A panel whose status label remembers its text, so that a trace can be added to whatever stands there.
class LabelKeeper : public Panel {
public:
    explicit LabelKeeper(Panel& panel) : panel_(panel) {}

    void append(const std::string& text) { status(label_ + text); }

    void status(const std::string& text) override {
        label_ = text;
        panel_.status(text);
    }
    void prompt(const std::string& text) override { panel_.prompt(text); }
    void progressText(const std::string& text) override { panel_.progressText(text); }
    void appendLog(const std::string& text) override { panel_.appendLog(text); }
    void progressVisible(bool visible) override { panel_.progressVisible(visible); }
    void progress(int value) override { panel_.progress(value); }
    void hint(const std::string& text) override { panel_.hint(text); }
    void busy(bool busy) override { panel_.busy(busy); }
    void mainStatus(const std::string& text) override { panel_.mainStatus(text); }

private:
    Panel& panel_;
    std::string label_;
};

} // namespace tally
