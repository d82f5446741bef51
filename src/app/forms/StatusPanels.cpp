// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/forms/StatusPanels.h"

#include <QLabel>
#include <QStatusBar>

namespace tally {

namespace {

QLabel* panel(const QString& name, const QString& accessible, int characters) {
    auto* label = new QLabel;
    label->setObjectName(name);
    label->setAccessibleName(accessible);
    label->setTextFormat(Qt::PlainText);
    label->setMinimumWidth(label->fontMetrics().averageCharWidth() * characters);
    return label;
}

} // namespace

StatusPanels::StatusPanels(QStatusBar& bar)
    : remark_(panel(QStringLiteral("PanelRemark"), QStringLiteral("Remark"), 0)),
      time_(panel(QStringLiteral("PanelTime"), QStringLiteral("Time under the pointer"), 22)),
      value_(panel(QStringLiteral("PanelValue"), QStringLiteral("Value under the pointer"), 14)) {
    // A long remark must not widen the window.
    remark_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    bar.addWidget(remark_, 1);
    bar.addPermanentWidget(time_);
    bar.addPermanentWidget(value_);
}

// A screen reader tells the name of the panel, then what it shows.
void StatusPanels::put(QLabel& panel, const QString& text) {
    panel.setText(text);
    panel.setAccessibleDescription(text);
}

void StatusPanels::remark(const QString& text) {
    text_ = text;
    showRemark();
}

void StatusPanels::say(const QString& word) {
    word_ = word;
    showRemark();
}

void StatusPanels::showRemark() {
    const QString& shown = word_.isEmpty() ? text_ : word_;
    put(*remark_, shown);
    remark_->setToolTip(shown);
}

void StatusPanels::pointer(const QString& time, const QString& value) {
    put(*time_, time);
    put(*value_, value);
}

} // namespace tally
