// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Json.h"

#include "cli/Command.h"
#include "core/Numbers.h"

namespace tally::cli {

std::shared_ptr<bool> addJson(CLI::App& command) {
    auto json = std::make_shared<bool>(false);
    command.add_flag("--json", *json, "print one JSON document");
    return json;
}

namespace {

void outLine(Context& context, const Json& document) {
    Json named = {{"path", context.documentPath()}};
    const bool keyed = document.is_object();
    if (keyed && !document.contains("path"))
        named.update(document);
    else if (!keyed)
        named["result"] = document;
    const Json& line = keyed && document.contains("path") ? document : named;
    context.out(line.dump(-1, ' ', false, Json::error_handler_t::replace) + "\n");
}

} // namespace

void outJson(Context& context, const Json& document) {
    if (!context.documentPath().empty()) {
        outLine(context, document);
        return;
    }
    // A byte that is no character becomes a replacement character rather than an error.
    context.out(document.dump(2, ' ', false, Json::error_handler_t::replace) + "\n");
}

double inUnits(std::int32_t tenths) {
    return static_cast<double>(tenths) / 10.0;
}

double shortest(float value) {
    return Val(plain(value));
}

} // namespace tally::cli
