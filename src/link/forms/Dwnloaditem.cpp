// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/forms/Dwnloaditem.h"

#include "link/forms/DialogText.h"

namespace tally {

namespace {

constexpr int widestText = 74; // columns

} // namespace

Dwnloaditem::Dwnloaditem(const SessionContext& context, QWidget* parent)
    : SessionDialog(context, QStringLiteral("Dwnloaditem"), tr("DownLoad"), parent),
      prompt_(addFixedText(QStringLiteral("PromptLabel"), widestText)),
      label1_(addText(QStringLiteral("Label1"))),
      label2_(addText(QStringLiteral("Label2"))) {
    addProgressBar();
    addLog();
    addOk();
    addCancel(QStringLiteral("CancelButton"), tr("Cancel"));
}

void Dwnloaditem::prompt(const std::string& text) {
    prompt_->setText(shown(text));
}

void Dwnloaditem::status(const std::string& text) {
    label1_->setText(shown(text));
}

void Dwnloaditem::progressText(const std::string& text) {
    label2_->setText(shown(text));
}

std::optional<PendingDownload> runDownload(QWidget* parent, const SessionContext& context, const Files& files,
                                           const std::string& workingDirectory) {
    Dwnloaditem dialog(context, parent);
    Session session = dialog.session();
    DownloadSession download(session);
    if (!download.mnuItemDownload_Click(files, workingDirectory) || !dialog.waitForOk())
        return {};
    dialog.start();
    return download.DownLoadProc();
}

} // namespace tally
