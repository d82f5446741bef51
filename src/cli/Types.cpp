// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Commands.h"
#include "cli/Json.h"
#include "core/Numbers.h"
#include "link/Instruments.h"

namespace tally::cli {

namespace {

std::string padded(std::string text, std::size_t width) {
    text.resize(std::max(width, text.size()), ' ');
    return text;
}

int types(Context& context, bool json) {
    Json all = Json::array();
    std::string text;
    for (int code = 1; code <= highestType; ++code) {
        InstrumentState instrument;
        applySelection(instrument, code);
        const std::string name = InstrumentName(code);
        all.push_back({{"code", code},
                       {"name", name},
                       {"settings", instrument.portSettings},
                       {"samples", instrument.maxSamples}});
        // The type without a display name goes by what its option says.
        text += padded(std::to_string(code), 4) +
                padded(name.empty() ? std::string(optionCaption(code)) : name, 20) +
                padded(instrument.portSettings, 14) + std::to_string(instrument.maxSamples) + "\n";
    }
    if (json)
        outJson(context, all);
    else
        context.out(text);
    return status::done;
}

} // namespace

void addTypes(CLI::App& program, Context& shared) {
    auto json = std::make_shared<std::shared_ptr<bool>>();
    CLI::App& command =
        addCommand(program, shared, "types", "the instrument types: code, name, line, samples",
                   [json](Context& context) { return types(context, **json); });
    *json = addJson(command);
}

} // namespace tally::cli
