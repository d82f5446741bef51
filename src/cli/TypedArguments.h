// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <CLI/CLI.hpp>

#include <string>
#include <vector>

namespace tally::cli {

// The arguments of a call, last one first, as the parser takes them. It would read "[a,b]" as two arguments
// and let nobody type a word that begins with a dash after "--": such arguments are marked as plain words. It
// would take the next argument for the value of "--option=": that is given an empty one.
std::vector<std::string> typedArguments(int argc, const char* const* argv);

// A word of the parser's without its mark.
std::string asTyped(std::string word);

// Lets every option of a command and of those below it take the mark away.
void takePlainWords(CLI::App& command);

} // namespace tally::cli
