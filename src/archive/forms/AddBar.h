// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "archive/AddRun.h"

#include <QWidget>

class QLabel;
class QProgressBar;
class QPushButton;

namespace tally::archive {

class Adder;

// How far the adding is, with a button that stops it; hidden while nothing is added.
class AddBar : public QWidget {
    Q_OBJECT

public:
    explicit AddBar(Adder& adder, QWidget* parent = nullptr);
    // An adding has begun.
    void begin();

private:
    void progress(const AddProgress& progress);

    Adder& adder_;
    QProgressBar* bar_;
    QLabel* text_;
    QPushButton* stop_;
};

} // namespace tally::archive
