// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/forms/Status.h"

#include "core/forms/Words.h"
#include "link/forms/DialogText.h"

namespace tally {

namespace {

constexpr int resultWidth = 120; // characters of the longest line, in a font of uneven letters

} // namespace

Status::Status(const SessionServices& context, QWidget* parent)
    : SessionDialog(context, QStringLiteral("status"), tr("Status Check"), parent),
      result_(addText(QStringLiteral("Label2"))),
      label1_(addText(QStringLiteral("Label1"))) {
    setMinimumWidth(result_->fontMetrics().averageCharWidth() * resultWidth);
    addHint();
    addLog();
    addCancel(QStringLiteral("Command2"), tr("Cancel"));
}

void Status::prompt(const std::string& text) {
    result_->setText(lines(text));
}

void Status::status(const std::string& text) {
    label1_->setText(lines(text));
}

SessionResult<StatusFields> runStatusCheck(QWidget* parent, const SessionServices& context) {
    Status dialog(context, parent);
    Session session = dialog.session();
    StatusCheckSession check(session);
    check.prepare();
    dialog.start();
    return check.StatusCheck();
}

} // namespace tally
