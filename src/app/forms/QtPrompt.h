// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Prompt.h"

#include <QPointer>
#include <QWidget>

namespace tally {

// Asks and tells with boxes over the active window.
class QtPrompt : public Prompt {
public:
    // The window that boxes belong to when none is active.
    void setWindow(QWidget* window) { window_ = window; }

    Answer show(const Message& message) override;
    std::optional<std::string> input(const InputQuestion& question) override;
    std::optional<std::string> chooseFile(const FileQuestion& question) override;

private:
    QWidget* parent() const;

    QPointer<QWidget> window_;
};

} // namespace tally
