// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

namespace tally {

// The About box with the user name.
class About : public QDialog {
    Q_OBJECT

public:
    explicit About(const QString& userName, QWidget* parent = nullptr);
};

} // namespace tally
