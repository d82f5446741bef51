// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/TypedArguments.h"

#include <algorithm>

namespace tally::cli {

namespace {

// No argument of a call can hold this character.
constexpr char mark = '\0';

// An option in its long form with nothing behind its equals sign.
bool isGivenNothing(const std::string& typed) {
    return typed.starts_with("--") && typed.find('=') == typed.size() - 1;
}

} // namespace

std::string asTyped(std::string word) {
    return !word.empty() && word.front() == mark ? word.substr(1) : word;
}

std::vector<std::string> typedArguments(int argc, const char* const* argv) {
    std::vector<std::string> words;
    bool plain = false;
    for (int at = 1; at < argc; ++at) {
        const std::string typed = argv[at];
        const bool bracketed = typed.size() > 1 && typed.front() == '[' && typed.back() == ']';
        if (!plain && typed == "--")
            plain = true;
        else if (!plain && isGivenNothing(typed))
            words.insert(words.end(), {typed.substr(0, typed.size() - 1), std::string()});
        else
            words.push_back(plain || bracketed ? mark + typed : typed);
    }
    std::reverse(words.begin(), words.end());
    return words;
}

void takePlainWords(CLI::App& command) {
    for (CLI::Option* option : command.get_options())
        if (option->get_items_expected_max() > 0)
            option->transform(asTyped, "");
    for (CLI::App* below : command.get_subcommands([](CLI::App*) { return true; }))
        takePlainWords(*below);
}

} // namespace tally::cli
