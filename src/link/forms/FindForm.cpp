// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/forms/FindForm.h"

#include "core/forms/Words.h"
#include "link/forms/DialogText.h"

#include <QListWidget>
#include <QPushButton>

namespace tally {

namespace {

const char* const listening = "Leave the cable in the instrument, and a transfer switch at TRANSFER.\r\n"
                              "Nothing is sent to any port. A port takes about 10 seconds.";

std::string heardText(std::size_t count) {
    if (count == 0)
        return "No instrument was heard. Check that its cable sits firmly at both ends and that a transfer "
               "switch is set to TRANSFER, and search again.";
    return count == 1 ? "One instrument was heard." : std::to_string(count) + " instruments were heard.";
}

// Lines of the machine itself may have something else at their other end.
bool mayTryOthers(const std::vector<PortDevice>& others, Prompt& prompt) {
    std::string names;
    for (const PortDevice& port : others)
        names += "  " + port.text() + "\r\n";
    return prompt.show(
               {.text = "No instrument was heard on an adapter. Listen on these ports too?\r\n" + names +
                        "Nothing is sent, but whatever is plugged in there sees its port being opened.",
                .buttons = Buttons::YesNo,
                .defaultAnswer = Answer::No}) == Answer::Yes;
}

} // namespace

FindForm::FindForm(const SessionServices& services, QWidget* parent)
    : SessionDialog(services, QStringLiteral("FindInstrument"), tr("Find Instrument"), parent),
      prompt_(addText(QStringLiteral("PromptLabel"))),
      status_(addText(QStringLiteral("Label1"))),
      list_(new QListWidget) {
    list_->setObjectName(QStringLiteral("Found"));
    list_->setAccessibleName(tr("Instruments that were heard"));
    addWidget(list_);
    addLog();
    addOk();
    findChild<QPushButton*>(QStringLiteral("OK"))->setText(tr("DownLoad"));
    addCancel(QStringLiteral("CancelButton"), tr("Cancel"));
}

void FindForm::prompt(const std::string& text) {
    prompt_->setText(lines(text));
}

void FindForm::status(const std::string& text) {
    status_->setText(lines(text));
}

std::optional<FoundInstrument> FindForm::choose(const std::vector<FoundInstrument>& found) {
    for (const FoundInstrument& one : found)
        list_->addItem(lines(one.text()));
    list_->setCurrentRow(0);
    prompt("");
    status(heardText(found.size()));
    finish();
    auto* ok = findChild<QPushButton*>(QStringLiteral("OK"));
    ok->setVisible(!found.empty());
    ok->setFocus();
    if (!waitForOk() || found.empty())
        return {};
    return found.at(static_cast<std::size_t>(list_->currentRow()));
}

std::optional<FoundInstrument> runFind(QWidget* parent, const SessionServices& services,
                                       const PortCatalogue& catalogue) {
    FindForm form(services, parent);
    FindInstrument search(services, form);
    form.prompt(listening);
    form.start();
    auto found = search.find(portsToTry(catalogue, true));
    const auto others = portsToTry(catalogue, false);
    if (found && found->empty() && !others.empty() && mayTryOthers(others, services.prompt))
        found = search.find(others);
    return found ? form.choose(*found) : std::nullopt;
}

} // namespace tally
