// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/forms/Recover.h"

#include "control/Recover.h"
#include "link/forms/DialogText.h"

namespace tally {

namespace {

constexpr int widestText = 74; // columns

} // namespace

Recover::Recover(const SessionContext& context, QWidget* parent)
    : SessionDialog(context, QStringLiteral("recover"), QStringLiteral("failed battery recovery"), parent),
      label1_(addFixedText(QStringLiteral("Label1"), widestText)) {
    addProgressBar();
    addLog();
    addOk();
    addCancel(QStringLiteral("CancelButton"), tr("Cancel"));
}

void Recover::prompt(const std::string& text) {
    status(text);
}

void Recover::status(const std::string& text) {
    label1_->setText(shown(text));
}

std::optional<PendingDownload> runRecover(QWidget* parent, const SessionContext& context, Files& files,
                                          const std::string& temporary) {
    Recover dialog(context, parent);
    Session session = dialog.session();
    RecoverSession recover(session);
    if (!recover.mnuItemRecover_Click() || !dialog.waitForOk())
        return {};
    dialog.start();
    return recover.RecoverProc(files, temporary);
}

} // namespace tally
