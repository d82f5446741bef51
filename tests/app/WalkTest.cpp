// SPDX-License-Identifier: GPL-3.0-or-later
// Random walks through the commands of the window, held against a plain model after each step. The
// environment variable TALLYLINE_WALKS asks for more walks, TALLYLINE_WALK_SEED for others.
#include "WalkDesk.h"

#include <cstdlib>
#include <random>

namespace tally::testing {
namespace {

constexpr int stepsOfAWalk = 50;
constexpr unsigned usualWalks = 80;

unsigned asked(const char* variable, unsigned otherwise) {
    const char* value = std::getenv(variable);
    return value == nullptr ? otherwise : unsigned(std::atoi(value));
}

struct Failure {
    std::size_t steps = 0; // taken, the failing one included
    std::string what;
};

std::optional<Failure> walk(const std::vector<Step>& steps) {
    WalkDesk desk;
    for (std::size_t i = 0; i < steps.size(); ++i)
        if (std::string what = desk.take(steps[i]); !what.empty())
            return Failure{i + 1, what};
    return std::nullopt;
}

// Leaves out whatever the failure does not need.
std::vector<Step> shortest(std::vector<Step> steps, Failure& failure) {
    steps.resize(failure.steps);
    for (bool shorter = true; shorter;) {
        shorter = false;
        for (std::size_t i = 0; i < steps.size(); ++i) {
            std::vector<Step> fewer = steps;
            fewer.erase(fewer.begin() + std::ptrdiff_t(i));
            if (const auto again = walk(fewer)) {
                fewer.resize(again->steps);
                steps = fewer;
                failure = *again;
                shorter = true;
                break;
            }
        }
    }
    return steps;
}

std::vector<Step> randomSteps(std::mt19937& random) {
    std::vector<Step> steps = {{Act::open, unsigned(random())}};
    while (int(steps.size()) < stepsOfAWalk) {
        // Marking and zooming belong together more often than chance has it.
        const auto act = Act(random() % acts);
        steps.push_back({act, unsigned(random())});
        if (act == Act::mark && random() % 2 == 0)
            steps.push_back({Act::zoom, 0});
    }
    return steps;
}

TEST(Walk, WhatIsShownIsAlwaysWhatAPlainModelSays) {
    const unsigned seed = asked("TALLYLINE_WALK_SEED", 1);
    const unsigned walks = asked("TALLYLINE_WALKS", usualWalks);
    for (unsigned number = 0; number < walks; ++number) {
        std::mt19937 random(seed + number);
        const std::vector<Step> steps = randomSteps(random);
        auto failure = walk(steps);
        if (!failure)
            continue;
        const std::string text = textOf(shortest(steps, *failure));
        FAIL() << "seed " << seed + number << ": " << failure->what << "\nafter " << text;
    }
}

} // namespace
} // namespace tally::testing
