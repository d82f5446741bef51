// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/forms/NoticeBar.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace tally {

namespace {

// Yellow paper with black ink reads the same in light and dark colour schemes.
const QString look = QStringLiteral("QFrame#notice { background: #fff3c4; border-bottom: 1px solid #d8b84a; }"
                                    "QFrame#notice QLabel { color: #1f1a00; }");

} // namespace

NoticeBar::NoticeBar(QWidget* parent) : QWidget(parent), rows_(new QVBoxLayout(this)) {
    setObjectName(QStringLiteral("NoticeBar"));
    setAccessibleName(QStringLiteral("Notices"));
    rows_->setContentsMargins(0, 0, 0, 0);
    rows_->setSpacing(0);
    hide();
}

void NoticeBar::put(const QString& key, const QString& text, const std::vector<NoticeAction>& actions,
                    bool canDismiss) {
    remove(key);
    auto* notice = new QFrame(this);
    notice->setObjectName(QStringLiteral("notice"));
    notice->setProperty("key", key);
    notice->setStyleSheet(look);
    auto* across = new QHBoxLayout(notice);
    across->setContentsMargins(10, 4, 6, 4);
    auto* label = new QLabel(text, notice);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    across->addWidget(label, 1);
    for (const NoticeAction& action : actions) {
        auto* button = new QPushButton(action.text, notice);
        // The action may replace or remove this notice: run it when the click is over.
        connect(button, &QPushButton::clicked, this, action.run, Qt::QueuedConnection);
        across->addWidget(button);
    }
    if (canDismiss) {
        auto* close = new QToolButton(notice);
        close->setText(QStringLiteral("×"));
        close->setAutoRaise(true);
        close->setAccessibleName(QStringLiteral("Dismiss this notice"));
        close->setStyleSheet(QStringLiteral("color: #1f1a00;"));
        connect(
            close, &QToolButton::clicked, this, [this, key] { remove(key); }, Qt::QueuedConnection);
        across->addWidget(close);
    }
    rows_->addWidget(notice);
    show();
}

QWidget* NoticeBar::row(const QString& key) const {
    for (auto* notice : findChildren<QFrame*>(QStringLiteral("notice"), Qt::FindDirectChildrenOnly))
        if (notice->property("key").toString() == key)
            return notice;
    return nullptr;
}

void NoticeBar::remove(const QString& key) {
    delete row(key);
    setVisible(findChild<QFrame*>(QStringLiteral("notice"), Qt::FindDirectChildrenOnly) != nullptr);
}

bool NoticeBar::has(const QString& key) const {
    return row(key) != nullptr;
}

QString NoticeBar::text(const QString& key) const {
    const auto* notice = row(key);
    return notice ? notice->findChild<QLabel*>()->text() : QString();
}

} // namespace tally
