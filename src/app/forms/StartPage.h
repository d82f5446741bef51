// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace tally {

// What the window shows before anything is open: what to do next, as buttons.
class StartPage : public QWidget {
    Q_OBJECT

public:
    explicit StartPage(QWidget* parent = nullptr);
    // Without samples on this machine their button is hidden.
    void setSamples(bool there);
    // Without an archive its button is hidden.
    void setArchive(bool there);
    // Without an instrument link its button is off.
    void setDownload(bool possible);

Q_SIGNALS:
    void openWanted();
    void downloadWanted();
    void sampleWanted();
    void archiveWanted();
    void helpWanted();
};

} // namespace tally
