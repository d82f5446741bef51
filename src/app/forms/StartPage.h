// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>
#include <QWidget>
#include <utility>
#include <vector>

class QLabel;
class QVBoxLayout;

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
    // Without an instrument link its buttons are off.
    void setDownload(bool possible);
    // Without a simulated instrument beside the program its button is hidden.
    void setSimulated(bool there);
    // The recent files: what a button says, and the path that it opens.
    void setRecent(const std::vector<std::pair<QString, QString>>& files);
    // What waits to be saved; empty for nothing.
    void setUnsaved(const QStringList& downloads);

Q_SIGNALS:
    void aboutToShow();
    void openWanted();
    void recentWanted(const QString& path);
    void downloadWanted();
    void findWanted();
    void simulatedWanted();
    void sampleWanted();
    void archiveWanted();
    void helpWanted();

protected:
    void showEvent(QShowEvent* event) override;

private:
    QVBoxLayout* recent_;
    QLabel* unsaved_;
};

} // namespace tally
