// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/Process.h"

#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace tally::faults {

// What all trials share: their folder, their dice, and how many of them went wrong.
class Desk {
public:
    Desk(std::uint32_t seed, bool brief) : isBrief(brief), dice_(seed) {}

    testing::TemporaryFolder folder;
    const bool isBrief; // some trials of each kind only
    int bad = 0;

    // A number from `low` to `high`.
    int roll(int low, int high) { return std::uniform_int_distribution(low, high)(dice_); }
    // Says what went wrong, and counts it.
    void wrong(const std::string& what);
    // One line of the figures: how many trials, and what they showed.
    void figure(const std::string& name, int trials, const std::string& result) const;

private:
    std::mt19937 dice_;
};

// Lets the programs that are started while it lives meet a fault on files whose path holds a text.
class Fault {
public:
    Fault(const Desk& desk, const std::string& rules, const std::string& path);
    ~Fault();
    Fault(const Fault&) = delete;
    Fault& operator=(const Fault&) = delete;

    std::uint64_t struck() const { return number(0); }
    // How many characters they have read from terminals so far.
    std::uint64_t characters() const { return number(1); }

private:
    std::uint64_t number(int which) const;
    std::string seen_;
};

// The kinds of trial.
void tryWriters(Desk& desk);
void tryArchives(Desk& desk);
void tryKills(Desk& desk);
void tryUnplugging(Desk& desk);
void trySlowDisk(Desk& desk);
void tryParallelStarts(Desk& desk);

// What a trial starts as a process of its own: "settings FILE", "chart FILE",
// "starts FOLDER COUNT", "pause FOLDER".
int runInside(const std::vector<std::string>& arguments);

} // namespace tally::faults
