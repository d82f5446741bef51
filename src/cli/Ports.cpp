// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Commands.h"
#include "cli/Json.h"
#include "link/PortChoice.h"
#include "platform/PortList.h"

namespace tally::cli {

namespace {

int ports(Context& context, bool json) {
    context.needEventLoop();
    const PortList list;
    Json all = Json::array();
    std::string text;
    for (int number = 1; number <= portCount; ++number) {
        const PortState state = portState(number, list, context.settings());
        text += "COM" + std::to_string(number) + "  " + state.text() + "\n";
        all.push_back({{"port", number},
                       {"device", state.device},
                       {"adapter", state.adapter},
                       {"there", state.presence != PortPresence::notThere},
                       {"free", state.presence == PortPresence::free},
                       {"state", std::string(presenceText(state.presence))}});
    }
    if (json)
        outJson(context, all);
    else
        context.out(text);
    return status::done;
}

} // namespace

void addPorts(CLI::App& program, Context& shared) {
    auto json = std::make_shared<std::shared_ptr<bool>>();
    CLI::App& command = addCommand(program, shared, "ports", "the COM ports and what is behind them",
                                   [json](Context& context) { return ports(context, **json); });
    *json = addJson(command);
}

} // namespace tally::cli
