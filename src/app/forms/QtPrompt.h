// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Prompt.h"

#include <QFileDialog>
#include <QPointer>
#include <QWidget>

namespace tally {

// Asks and tells with boxes over the active window.
class QtPrompt : public Prompt {
public:
    QtPrompt() = default;
    ~QtPrompt() override;
    QtPrompt(const QtPrompt&) = delete;
    QtPrompt& operator=(const QtPrompt&) = delete;

    // The window that boxes belong to when none is active.
    void setWindow(QWidget* window) { window_ = window; }

    Answer show(const Message& message) override;
    std::optional<std::string> input(const InputQuestion& question) override;
    std::optional<std::string> chooseFile(const FileQuestion& question) override;

private:
    QWidget* parent() const;
    QFileDialog& fileDialog();

    QPointer<QWidget> window_;
    QPointer<QFileDialog> fileDialog_; // goes with the window it was last shown over
};

} // namespace tally
