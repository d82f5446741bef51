// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Command.h"

#include <CLI/CLI.hpp>

namespace tally::cli {

namespace {

struct Word {
    std::string text;
    std::string description;
};

// A command with its place ("export csv"; empty for the program) and the words that may follow it.
struct Place {
    std::string path;
    std::vector<Word> commands;
    std::vector<Word> options;
};

// The first line of a description, without what a shell would take for its own.
std::string plainWords(const std::string& text) {
    std::string plain = text.substr(0, text.find('\n'));
    for (char& sign : plain)
        if (std::string_view("'\"\\`$:").find(sign) != std::string_view::npos)
            sign = ' ';
    return plain;
}

void collect(const CLI::App& app, const std::string& path, std::vector<Place>& places) {
    Place place{path, {}, {}};
    for (const CLI::App* command : app.get_subcommands([](const CLI::App*) { return true; }))
        place.commands.push_back({command->get_name(), plainWords(command->get_description())});
    for (const CLI::Option* option : app.get_options())
        for (const std::string& name : option->get_lnames())
            place.options.push_back({"--" + name, plainWords(option->get_description())});
    places.push_back(place);
    for (const CLI::App* command : app.get_subcommands([](const CLI::App*) { return true; }))
        collect(*command, path.empty() ? command->get_name() : path + " " + command->get_name(), places);
}

// The shell code that walks the words typed so far down to the command they name.
std::string walk(const std::vector<Place>& places, const std::string& label) {
    std::string known;
    for (const Place& place : places)
        if (!place.path.empty())
            known += (known.empty() ? "" : "|") + ("'" + place.path + "'");
    return "        case \"${place:+$place }$word\" in\n        " + label + known +
           ") place=${place:+$place }$word ;;\n        esac\n";
}

std::string bash(const std::vector<Place>& places) {
    std::string script = "_tallyline_cli() {\n    local place= word words= i\n"
                         "    for ((i = 1; i < COMP_CWORD; i++)); do\n        word=${COMP_WORDS[i]}\n" +
                         walk(places, "") + "    done\n    case \"$place\" in\n";
    for (const Place& place : places) {
        script += "    '" + place.path + "') words='";
        for (const auto* list : {&place.commands, &place.options})
            for (const Word& word : *list)
                script += word.text + " ";
        script += "' ;;\n";
    }
    return script +
           "    esac\n    local typed=${COMP_WORDS[COMP_CWORD]}\n"
           "    mapfile -t COMPREPLY < <(compgen -W \"$words\" -- \"$typed\")\n"
           "    [ -n \"$place\" ] && mapfile -t -O ${#COMPREPLY[@]} COMPREPLY < <(compgen -f -- \"$typed\")\n"
           "    return 0\n}\ncomplete -o filenames -F _tallyline_cli tallyline-cli\n";
}

std::string zsh(const std::vector<Place>& places) {
    std::string script = "#compdef tallyline-cli\n"
                         "local place= word\nlocal -a candidates\n"
                         "for word in ${words[2,CURRENT-1]}; do\n" +
                         walk(places, "(") + "done\ncase \"$place\" in\n";
    for (const Place& place : places) {
        script += "('" + place.path + "') candidates=(";
        for (const auto* list : {&place.commands, &place.options})
            for (const Word& word : *list)
                script += "'" + word.text + ":" + word.description + "' ";
        script += ") ;;\n";
    }
    return script + "esac\n_describe 'tallyline-cli' candidates\n[[ -n $place ]] && _files\nreturn 0\n";
}

// The condition under which fish offers what may follow a place.
std::string fishCondition(const Place& place) {
    if (place.path.empty())
        return "__fish_use_subcommand";
    std::string condition;
    for (std::size_t from = 0; from < place.path.size();) {
        const std::size_t to = std::min(place.path.find(' ', from), place.path.size());
        condition += (condition.empty() ? "" : "; and ") +
                     ("__fish_seen_subcommand_from " + place.path.substr(from, to - from));
        from = to + 1;
    }
    return condition;
}

std::string fish(const std::vector<Place>& places) {
    std::string script;
    for (const Place& place : places) {
        const std::string start = "complete -c tallyline-cli -n '" + fishCondition(place) + "'";
        for (const Word& word : place.commands)
            script += start + (place.path.empty() ? " -f" : "") + " -a " + word.text + " -d '" +
                      word.description + "'\n";
        for (const Word& word : place.options)
            script += start + " -l " + word.text.substr(2) + " -d '" + word.description + "'\n";
    }
    return script;
}

} // namespace

void addCompletion(CLI::App& program, Context& shared) {
    auto shell = std::make_shared<std::string>();
    CLI::App& command = addCommand(
        program, shared, "completion", "print the completion of commands for a shell",
        [shell, &program](Context& context) {
            std::vector<Place> places;
            collect(program, "", places);
            context.out(*shell == "bash" ? bash(places) : *shell == "zsh" ? zsh(places) : fish(places));
            return status::done;
        });
    command.add_option("SHELL", *shell, "bash, zsh or fish")
        ->required()
        ->check(CLI::IsMember({"bash", "zsh", "fish"}));
}

} // namespace tally::cli
