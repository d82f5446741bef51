// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

namespace tally {

// One line of plain text that takes the room there is: what does not fit is left out at its end and stands in
// the tool tip.
class ElidedLabel : public QLabel {
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;
};

} // namespace tally
