// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <CLI/CLI.hpp>

#include <string>

namespace tally::cli {

// A positional argument as a usage line names it: "FILE", "FILE [FILE [FILE]]", "FILE...".
std::string positionalText(const CLI::Option& option);

// The help page, with positional arguments named so.
class HelpText : public CLI::Formatter {
public:
    std::string make_option_usage(const CLI::Option* option) const override;
};

} // namespace tally::cli
