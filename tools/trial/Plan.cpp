// SPDX-License-Identifier: GPL-3.0-or-later
#include "Plan.h"

#include <algorithm>
#include <random>

namespace tally::trial {

namespace {

// A fault, and the kinds of trial that it belongs to: d, s, i, r. `from` to `to` is drawn for its number.
struct Choice {
    const char* name;
    const char* kinds;
    int from;
    int to;
};

const Choice choices[] = {{"low-battery", "dsir", 0, 0},
                          {"noise", "dsir", 1, 60},
                          {"tail", "dsr", 1, 200},
                          {"silent", "dsir", 0, 0},
                          {"wrong-token", "ds", 0, 0},
                          {"binary", "ds", 1, 3000},
                          {"header-only", "dsi", 0, 0},
                          {"header-cut", "dsr", 1, 55},
                          {"bad-time", "dsr", 0, 0},
                          {"no-ctrl-z", "dr", 0, 0},
                          {"double-ctrl-z", "dr", 0, 0},
                          {"two-ctrl-z", "dr", 0, 0},
                          {"early-ctrl-z", "dsr", 0, 1500},
                          {"endless", "d", 0, 0},
                          {"nines", "d", 1, 20},
                          {"over", "d", 1, 5},
                          {"short-line", "d", 1, 12},
                          {"long-line", "d", 1, 12},
                          {"damaged-line", "dr", 1, 12},
                          {"stall", "dr", 1, 1500},
                          {"cable", "dsir", 0, 1500},
                          {"gone", "dsir", 0, 1500},
                          {"no-answer", "i", 0, 0},
                          {"rubbish-answer", "i", 0, 0},
                          {"no-read-back", "i", 0, 0},
                          {"open-read-back", "i", 0, 0},
                          {"read-back-cut", "i", 0, 57}};

class Draw {
public:
    Draw(unsigned seed, int number) : random_(seed * 2654435761U + static_cast<unsigned>(number)) {}
    // Both ends included.
    int from(int first, int last) {
        return first + static_cast<int>(random_() % static_cast<unsigned>(last - first + 1));
    }
    bool oneIn(int n) { return from(1, n) == 1; }
    template <std::size_t N>
    auto of(const char (&all)[N]) {
        return all[from(0, static_cast<int>(N) - 2)];
    }

private:
    std::mt19937 random_;
};

std::string fault(Draw& draw, Kind kind) {
    const char letter = "dsir"[static_cast<int>(kind)];
    for (;;) {
        const Choice& choice = choices[static_cast<std::size_t>(draw.from(0, std::size(choices) - 1))];
        if (std::string(choice.kinds).find(letter) == std::string::npos)
            continue;
        std::string text = choice.name;
        if (choice.to > 0)
            text += "=" + std::to_string(draw.from(choice.from, choice.to));
        if (text.starts_with("stall="))
            text += ":" + std::to_string(draw.from(50, 900));
        return text;
    }
}

void drawConduct(Draw& draw, Plan& plan) {
    if (plan.kind == Kind::init) {
        if (draw.oneIn(2))
            plan.conduct.push_back("--strict");
        if (draw.oneIn(2)) {
            plan.conduct.push_back("--before-answer");
            plan.conduct.push_back(draw.oneIn(2) ? "line" : "memory");
        }
        plan.conduct.push_back("--answer-time");
        plan.conduct.push_back("0." + std::to_string(draw.from(0, 3)));
    }
    if (plan.automatic && draw.oneIn(2)) {
        plan.conduct.push_back("--wrong-rate");
        plan.conduct.push_back("rubbish");
    }
}

bool minMaxAvg(char mode) {
    return mode > 'f';
}

const char* minutes(char mode) {
    const int row = (mode - 'a') % 3;
    return row == 0 ? "15" : row == 1 ? "5" : "1";
}

bool stops(char mode) {
    return (mode - 'a') / 3 % 2 == 1;
}

} // namespace

const char* nameOf(Kind kind) {
    const char* const names[] = {"download", "status", "init", "recover"};
    return names[static_cast<int>(kind)];
}

bool Plan::has(const std::string& fault) const {
    return std::any_of(faults.begin(), faults.end(),
                       [&](const std::string& text) { return text.substr(0, text.find('=')) == fault; });
}

std::vector<std::string> Plan::simulatorOptions() const {
    std::vector<std::string> all = {"--type",
                                    std::to_string(type),
                                    "--count",
                                    std::to_string(count),
                                    "--interval",
                                    minutes(mode),
                                    "--full",
                                    stops(mode) ? "stop" : "loop",
                                    "--record-as",
                                    minMaxAvg(mode) ? "mma" : "avg",
                                    "--clock",
                                    instrumentClock,
                                    "--stopped",
                                    "--seed",
                                    std::to_string(seed + static_cast<unsigned>(number)),
                                    "--speed",
                                    "50",
                                    "--plug",
                                    "0.05",
                                    "--erase-time",
                                    "0.1"};
    if (kind == Kind::recover)
        all.push_back("--battery-failed");
    for (const std::string& fault : faults)
        all.insert(all.end(), {"--fault", fault});
    all.insert(all.end(), conduct.begin(), conduct.end());
    return all;
}

std::vector<std::string> Plan::programOptions(const std::string& device, const std::string& output) const {
    std::vector<std::string> all = {nameOf(kind), "--port", device, "--type",
                                    automatic ? "11" : std::to_string(type)};
    all.insert(all.end(), {"--wait", automatic ? "20" : "1.5"});
    if (kind == Kind::download || kind == Kind::recover)
        all.insert(all.end(), {"-o", output});
    if (kind == Kind::download && keepErrors)
        all.push_back("--yes");
    if (kind == Kind::status)
        all.push_back("--json");
    if (kind == Kind::init)
        all.insert(all.end(), {"--interval", minutes(asks), "--record", minMaxAvg(asks) ? "mma" : "avg",
                               "--full", stops(asks) ? "stop" : "loop", "--yes"});
    return all;
}

std::string Plan::text() const {
    std::string words = "tallyline-sim";
    for (const std::string& option : simulatorOptions())
        words += option.find(' ') == std::string::npos ? " " + option : " \"" + option + "\"";
    words += "\n  tallyline-cli";
    for (const std::string& option : programOptions("DEVICE", "FILE"))
        words += " " + option;
    return words;
}

Plan drawPlan(unsigned seed, int number, Kind kind) {
    Draw draw(seed, number);
    Plan plan;
    plan.seed = seed;
    plan.number = number;
    plan.kind = kind;
    plan.automatic = kind != Kind::recover && draw.oneIn(20);
    constexpr int types[] = {1, 2, 4, 5, 7, 8, 9, 10};
    plan.type = plan.automatic ? draw.from(7, 8) : types[draw.from(0, 7)];
    // An instrument of type 1 knows one mode.
    plan.mode = plan.type == 1 ? 'a' : draw.of("abcdefghijkl");
    plan.asks = draw.of("abcdefghijkl");
    plan.count = 3 * draw.from(1, 130);
    plan.keepErrors = draw.oneIn(2);
    for (int faults = draw.oneIn(4) ? 0 : draw.from(1, 2); faults > 0; --faults)
        plan.faults.push_back(fault(draw, kind));
    drawConduct(draw, plan);
    return plan;
}

} // namespace tally::trial
