// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Commands.h"
#include "cli/InstrumentLink.h"
#include "cli/Json.h"
#include "link/StatusCheck.h"

#include <algorithm>

namespace tally::cli {

namespace {

struct StatusOptions {
    std::shared_ptr<LinkOptions> link;
    std::shared_ptr<double> wait;
    std::shared_ptr<bool> json;
};

Json asJson(const StatusFields& fields) {
    Json document = {
        {"type", fields.type}, {"serial", fields.serial}, {"state", fields.state}, {"mode", fields.mode}};
    document["interval"] = fields.interval ? Json(*fields.interval) : Json();
    document["whenFull"] = fields.whenFull;
    document["timeOn"] = fields.timeOn;
    document["vbatt"] = fields.vbatt ? Json(*fields.vbatt) : Json();
    document["lowBattery"] = fields.lowBattery;
    return document;
}

int checkStatus(Context& context, const StatusOptions& options) {
    InstrumentLink link(context, *options.link);
    link.panel.hidePrompts();
    Session session(link.services(), link.panel);
    const auto fields = StatusCheckSession(session, waitFor(*options.wait)).StatusCheck();
    if (!fields)
        return link.refused(fields.error());
    if (*options.json) {
        outJson(context, asJson(*fields));
    } else {
        std::string text = fields->text();
        std::replace(text.begin(), text.end(), '\r', '\n');
        context.out(text + "\n");
    }
    return status::done;
}

} // namespace

void addStatus(CLI::App& program, Context& shared) {
    auto options = std::make_shared<StatusOptions>();
    CLI::App& command = addCommand(program, shared, "status", "check the status of an instrument",
                                   [options](Context& context) { return checkStatus(context, *options); });
    options->link = addLink(command);
    options->wait = addWait(command);
    options->json = addJson(command);
}

} // namespace tally::cli
