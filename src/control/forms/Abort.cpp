// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/forms/Abort.h"

#include "control/Initialize.h"
#include "control/KnownDownloads.h"
#include "control/MemoryLasts.h"
#include "control/ModeLetter.h"
#include "control/forms/InitInst.h"
#include "core/forms/Words.h"
#include "link/forms/DialogText.h"

namespace tally {

namespace {

constexpr int widestText = 60; // columns

} // namespace

Abort::Abort(const SessionServices& context, QWidget* parent)
    : SessionDialog(context, QStringLiteral("Abort"), tr("Initialize"), parent),
      label1_(addFixedText(QStringLiteral("Label1"), widestText)) {
    label1_->setText(QStringLiteral("NO REPONSE"));
    addHint();
    addLog();
    addCancel(QStringLiteral("Command1"), QStringLiteral("CANCEL"));
}

void Abort::prompt(const std::string& text) {
    status(text);
}

void Abort::status(const std::string& text) {
    label1_->setText(lines(text));
    if (!isVisible())
        start();
}

void runInitialize(QWidget* parent, const SessionServices& services) {
    Abort dialog(services, parent);
    Session session = dialog.session();
    if (!prepareInitialize(session))
        return;
    ModeChoice choice;
    {
        const auto lasts = [&services](const ModeChoice& asked) {
            return memoryLasts(asked, services.instrument.maxSamples, services.waiter.localTime());
        };
        InitInst options(knownDownloads(services.journal.list()), lasts, parent);
        if (options.exec() != QDialog::Accepted)
            return;
        choice = options.choice();
    }
    InitializeSession(services, dialog).Initialize(modeLetter(choice));
}

} // namespace tally
