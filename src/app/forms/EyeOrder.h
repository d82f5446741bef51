// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QWidget;

namespace tally {

// Lets Tab go through a dialog as the eye does: line by line from the top, each from the left; what stands
// together in a frame stays together.
class EyeOrder : public QObject {
    Q_OBJECT

public:
    explicit EyeOrder(QObject* parent) : QObject(parent) {}

    bool eventFilter(QObject* watched, QEvent* event) override;
};

// The controls of a window that Tab reaches, as the eye finds them.
QList<QWidget*> inEyeOrder(const QWidget& window);

} // namespace tally
