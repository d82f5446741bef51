// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QSet>
#include <QString>

class QMenu;
class QWidget;

namespace tally {

// The letter that reaches a control or menu item besides one marked in its caption; null for none.
QChar accessKeyOf(const QObject& object);
// A caption with that letter marked by "&".
QString withAccessKey(const QString& caption, QChar key);

// Gives every control of a window that is shown an access key: Alt and a letter of its caption or name.
// Captions keep their wording: where they mark no letter, or one that another control has, the key is kept
// beside the caption, and AccessStyle underlines it. Items of an open menu get their letter in the same way.
class AccessKeys : public QObject {
    Q_OBJECT

public:
    explicit AccessKeys(QObject* parent) : QObject(parent) {}

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void look(QWidget& part);
    void assign(QWidget& window);
    void assign(QMenu& menu);
    bool choose(QMenu& menu, int key);

    QSet<const QWidget*> changed_; // windows to be looked at when events are done
};

} // namespace tally
