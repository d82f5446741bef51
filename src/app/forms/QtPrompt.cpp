// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/forms/QtPrompt.h"

#include "app/forms/MessageBox.h"
#include "core/forms/Words.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QDir>
#include <QLineEdit>

namespace tally {

namespace {

struct NameFilter {
    QString label; // as the dialog lists it
    QString suffix;
};

// "label|pattern|label|pattern" as the filters of the dialog.
QList<NameFilter> nameFilters(const QString& filter) {
    QList<NameFilter> list;
    const QStringList parts = filter.split(QLatin1Char('|'));
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString patterns = parts[i + 1].trimmed().replace(QLatin1Char(';'), QLatin1Char(' '));
        QString label = parts[i].trimmed();
        label = label.left(label.indexOf(QLatin1Char('('))).trimmed();
        label = QCoreApplication::translate("Tallyline", label.toUtf8().constData());
        const QString first = patterns.section(QLatin1Char(' '), 0, 0);
        const QString suffix = first.startsWith(QStringLiteral("*.")) ? first.mid(2) : QString();
        list.append({label + QStringLiteral(" (") + patterns + QLatin1Char(')'),
                     suffix == QStringLiteral("*") ? QString() : suffix});
    }
    return list;
}

QLineEdit* nameField(const QFileDialog& dialog) {
    return dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
}

// Return closes the dialog and leaves the list of names that begin like the one typed: it would take the keys
// of the window below. Without a prefix it does not come late either, when a slow folder has been read.
void endCompletion(const QFileDialog& dialog) {
    const QLineEdit* const name = nameField(dialog);
    if (!name || !name->completer())
        return;
    name->completer()->setCompletionPrefix({});
    name->completer()->popup()->hide();
}

} // namespace

QWidget* QtPrompt::parent() const {
    QWidget* active = QApplication::activeModalWidget();
    return active ? active : window_.data();
}

Answer QtPrompt::show(const Message& message) {
    MessageBox box(message, parent());
    box.exec();
    return box.answer();
}

std::optional<std::string> QtPrompt::input(const InputQuestion& question) {
    InputBox box(question, parent());
    if (box.exec() != QDialog::Accepted)
        return std::nullopt;
    return box.entered().toStdString();
}

QtPrompt::~QtPrompt() {
    delete fileDialog_.data();
}

// Qt keeps memory for every file dialog that was shown, so that one serves all questions.
QFileDialog& QtPrompt::fileDialog() {
    if (!fileDialog_) {
        fileDialog_ = new QFileDialog(parent());
        fileDialog_->setObjectName(QStringLiteral("FileDialog"));
    } else if (fileDialog_->parentWidget() != parent()) {
        fileDialog_->setParent(parent(), fileDialog_->windowFlags());
    }
    // The name that was chosen the time before.
    if (QLineEdit* const name = nameField(*fileDialog_))
        name->clear();
    fileDialog_->setDefaultSuffix({});
    return *fileDialog_;
}

std::optional<std::string> QtPrompt::chooseFile(const FileQuestion& question) {
    const QString usual = question.save ? QStringLiteral("Save as") : QStringLiteral("Open");
    QFileDialog& dialog = fileDialog();
    dialog.setAcceptMode(question.save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setWindowTitle(question.title.empty() ? usual : words(question.title));
    dialog.setFileMode(question.save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    const QString folder = words(question.folder);
    dialog.setDirectory(folder.isEmpty() || !QDir(folder).exists() ? QDir::currentPath() : folder);
    const QList<NameFilter> filters = nameFilters(words(question.filter));
    QStringList labels;
    for (const NameFilter& filter : filters)
        labels.append(filter.label);
    dialog.setNameFilters(labels);
    const auto follow = [&](const QString& label) {
        dialog.setDefaultSuffix(filters.value(labels.indexOf(label)).suffix);
    };
    // Ends with this question.
    const QObject asking;
    if (question.save && !filters.isEmpty()) {
        follow(labels.first());
        QObject::connect(&dialog, &QFileDialog::filterSelected, &asking, follow);
    }
    if (!question.name.empty())
        dialog.selectFile(words(question.name));
    const int ended = dialog.exec();
    endCompletion(dialog);
    if (ended != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return dialog.selectedFiles().first().toStdString();
}

} // namespace tally
