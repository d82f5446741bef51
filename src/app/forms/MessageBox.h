// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Prompt.h"

#include <QDialog>

namespace tally {

// A message box that keeps every blank and line break of its text; texts padded with blanks are shown in a
// fixed-width font. Escape answers Cancel or No, with OK alone OK.
class MessageBox : public QDialog {
    Q_OBJECT

public:
    explicit MessageBox(const Message& message, QWidget* parent = nullptr);
    Answer answer() const { return answer_; }

protected:
    void showEvent(QShowEvent* event) override;

private:
    void addButtons(const Message& message, QLayout& layout);

    Answer answer_;
};

// An input box: one line or, with choices, an editable list.
class InputBox : public QDialog {
    Q_OBJECT

public:
    explicit InputBox(const InputQuestion& question, QWidget* parent = nullptr);
    QString entered() const;
};

} // namespace tally
