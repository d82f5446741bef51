// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/forms/Recover.h"

#include "control/Recover.h"
#include "core/forms/Words.h"
#include "link/forms/DialogText.h"

namespace tally {

namespace {

constexpr int widestText = 74; // columns

} // namespace

Recover::Recover(const SessionServices& context, QWidget* parent)
    : SessionDialog(context, QStringLiteral("recover"), QStringLiteral("failed battery recovery"), parent),
      label1_(addFixedText(QStringLiteral("Label1"), widestText)) {
    addHint();
    addProgressBar();
    addLog();
    addOk();
    addCancel(QStringLiteral("CancelButton"), tr("Cancel"));
}

void Recover::prompt(const std::string& text) {
    status(text);
}

void Recover::status(const std::string& text) {
    label1_->setText(lines(text));
}

SessionResult<PendingDownload> runRecover(QWidget* parent, const SessionServices& context, Files& files,
                                          const std::string& temporary) {
    Recover dialog(context, parent);
    Session session = dialog.session();
    RecoverSession recover(session);
    if (const auto ready = recover.prepare(); !ready)
        return tl::make_unexpected(ready.error());
    if (!dialog.waitForOk())
        return Session::cancelled();
    dialog.start();
    return recover.RecoverProc(files, temporary);
}

} // namespace tally
