// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/forms/FindBar.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

namespace tally {
namespace {

QToolButton* button(const QString& name, const QString& text, const QString& tip, QHBoxLayout& layout) {
    auto* made = new QToolButton;
    made->setObjectName(name);
    made->setText(text);
    made->setToolTip(tip);
    made->setAccessibleName(tip);
    made->setAutoRaise(true);
    layout.addWidget(made);
    return made;
}

} // namespace

FindBar::FindBar(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("findBar"));
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Window);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(6, 3, 6, 3);
    auto* label = new QLabel(tr("Find"));
    entry_ = new QLineEdit;
    entry_->setObjectName(QStringLiteral("findText"));
    entry_->setAccessibleName(tr("Text to find"));
    entry_->setClearButtonEnabled(true);
    label->setBuddy(entry_);
    layout->addWidget(label);
    layout->addWidget(entry_, 1);
    auto* previous =
        button(QStringLiteral("findPrevious"), QString(QChar(0x25B2)), tr("Find previous"), *layout);
    auto* next = button(QStringLiteral("findNext"), QString(QChar(0x25BC)), tr("Find next"), *layout);
    state_ = new QLabel;
    state_->setObjectName(QStringLiteral("findState"));
    layout->addWidget(state_);
    auto* close =
        button(QStringLiteral("findClose"), QString(QChar(0x2715)), tr("Close the find bar"), *layout);
    connect(previous, &QToolButton::clicked, this, [this] { Q_EMIT wanted(true); });
    connect(next, &QToolButton::clicked, this, [this] { Q_EMIT wanted(false); });
    connect(close, &QToolButton::clicked, this, &FindBar::closed);
    connect(entry_, &QLineEdit::textEdited, this, &FindBar::typed);
}

QString FindBar::what() const {
    return entry_->text();
}

void FindBar::setFound(bool found) {
    state_->setText(found || what().isEmpty() ? QString() : tr("Not found"));
}

void FindBar::begin(const QString& preset) {
    if (!preset.isEmpty())
        entry_->setText(preset);
    setFound(true);
    show();
    entry_->setFocus();
    entry_->selectAll();
}

void FindBar::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_F3:
        Q_EMIT wanted(event->modifiers().testFlag(Qt::ShiftModifier));
        return;
    case Qt::Key_Escape:
        Q_EMIT closed();
        return;
    default:
        QWidget::keyPressEvent(event);
    }
}

} // namespace tally
