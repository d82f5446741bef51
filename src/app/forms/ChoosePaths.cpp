// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/forms/ChoosePaths.h"

#include "core/forms/Words.h"

#include <QApplication>
#include <QFile>
#include <QFileDialog>

namespace tally {

std::optional<std::string> chooseFolder(const std::string& title) {
    const QString folder = QFileDialog::getExistingDirectory(QApplication::activeWindow(), words(title));
    if (folder.isEmpty())
        return std::nullopt;
    return QFile::encodeName(folder).toStdString();
}

std::vector<std::string> chooseDataFiles(const std::string& title) {
    const QStringList files = QFileDialog::getOpenFileNames(
        QApplication::activeWindow(), words(title), {}, QStringLiteral("data files (*.dat);;All files (*)"));
    std::vector<std::string> paths;
    for (const QString& file : files)
        paths.push_back(QFile::encodeName(file).toStdString());
    return paths;
}

} // namespace tally
