// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>
#include <functional>

class QDialog;

namespace tally {

// The page of the help, with its anchor, that tells of a dialog, by the dialog's name; empty for none.
QString helpPageOf(const QString& dialog);

// F1 in a dialog asks for the page of that dialog.
class DialogHelp : public QObject {
    Q_OBJECT

public:
    using Wanted = std::function<void(QDialog& dialog, const QString& page)>;

    DialogHelp(Wanted wanted, QObject* parent);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    Wanted wanted_;
};

} // namespace tally
