// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/forms/Dwnloaditem.h"

#include "core/forms/Words.h"
#include "link/forms/DialogText.h"

namespace tally {

namespace {

constexpr int widestText = 74; // columns

} // namespace

Dwnloaditem::Dwnloaditem(const SessionServices& context, QWidget* parent)
    : SessionDialog(context, QStringLiteral("Dwnloaditem"), tr("DownLoad"), parent),
      prompt_(addFixedText(QStringLiteral("PromptLabel"), widestText)),
      label1_(addText(QStringLiteral("Label1"))),
      label2_(addText(QStringLiteral("Label2"))),
      remaining_(addText(QStringLiteral("RemainingLabel"))) {
    addHint();
    addProgressBar();
    addLog();
    addOk();
    addCancel(QStringLiteral("CancelButton"), tr("Cancel"));
}

void Dwnloaditem::prompt(const std::string& text) {
    prompt_->setText(lines(text));
}

void Dwnloaditem::status(const std::string& text) {
    label1_->setText(lines(text));
}

void Dwnloaditem::progressText(const std::string& text) {
    label2_->setText(lines(text));
}

void Dwnloaditem::remaining(const std::string& text) {
    remaining_->setText(lines(text));
}

SessionResult<PendingDownload> runDownload(QWidget* parent, const SessionServices& context,
                                           const Files& files, const std::string& workingDirectory) {
    Dwnloaditem dialog(context, parent);
    Session session = dialog.session();
    DownloadSession download(session);
    if (const auto ready = download.prepare(files, workingDirectory); !ready)
        return tl::make_unexpected(ready.error());
    if (!dialog.waitForOk())
        return Session::cancelled();
    dialog.start();
    return download.DownLoadProc();
}

} // namespace tally
