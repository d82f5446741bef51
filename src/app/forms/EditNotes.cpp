// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/forms/EditNotes.h"

#include "core/forms/Words.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace tally {

EditNotes::EditNotes(const std::string& path, const std::array<std::string, 4>& notes, QWidget* parent)
    : QDialog(parent) {
    setObjectName(QStringLiteral("EditNotes"));
    setWindowTitle(QStringLiteral("Note Editor"));
    constexpr const char* captions[] = {"Location:", "Circuit:", "Name:", "Other:"};
    auto* grid = new QGridLayout(this);
    auto* file = new QLabel(words(path), this);
    file->setObjectName(QStringLiteral("Label5"));
    file->setTextFormat(Qt::PlainText);
    grid->addWidget(file, 0, 0, 1, 3);
    for (int i = 0; i < 4; ++i) {
        auto* label = new QLabel(QString::fromLatin1(captions[i]), this);
        label->setObjectName(QStringLiteral("Label%1").arg(i + 1));
        auto* text = new QLineEdit(words(notes[std::size_t(i)]), this);
        text->setObjectName(QStringLiteral("Text%1").arg(i + 1));
        text->setAccessibleName(label->text());
        label->setBuddy(text);
        texts_[std::size_t(i)] = text;
        grid->addWidget(label, i + 1, 0);
        grid->addWidget(text, i + 1, 1, 1, 2);
    }
    auto* hint =
        new QLabel(QStringLiteral("A comma ends a note when the file is opened again: what follows it "
                                  "moves into the next field."),
                   this);
    hint->setObjectName(QStringLiteral("commaHint"));
    hint->setWordWrap(true);
    grid->addWidget(hint, 5, 1, 1, 2);
    auto* save = new QPushButton(QStringLiteral("save"), this);
    save->setObjectName(QStringLiteral("Command1"));
    save->setDefault(true);
    auto* cancel = new QPushButton(QStringLiteral("cancel"), this);
    cancel->setObjectName(QStringLiteral("Command2"));
    grid->addWidget(save, 6, 1);
    grid->addWidget(cancel, 6, 2);
    connect(save, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    setMinimumWidth(480);
}

std::array<std::string, 4> EditNotes::notes() const {
    std::array<std::string, 4> notes;
    for (std::size_t i = 0; i < 4; ++i)
        notes[i] = texts_[i]->text().toStdString();
    return notes;
}

} // namespace tally
