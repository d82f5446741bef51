// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;

namespace tally {

// The line in which a text to search is entered. Enter and F3 search on, Shift turns the direction, Escape
// closes.
class FindBar : public QWidget {
    Q_OBJECT

public:
    explicit FindBar(QWidget* parent);
    QString what() const;
    // Says whether the last search found something.
    void setFound(bool found);
    void begin(const QString& preset);

Q_SIGNALS:
    void wanted(bool backwards);
    void typed();
    void closed();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QLineEdit* entry_;
    QLabel* state_;
};

} // namespace tally
