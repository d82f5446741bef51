// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "archive/Day.h"
#include "archive/FoundFile.h"
#include "core/ReadingTime.h"

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

namespace tally::bench {

inline constexpr std::uint64_t maximumBytes = std::uint64_t{1} << 24;

// Made-up recordings of feeders: 28 days of quarters of an hour, 42 of them to a circuit over years with
// gaps, with notes, written into a folder a circuit. The same every time.
class Samples {
public:
    Samples(std::string folder, int count) : folder_(std::move(folder)) {
        for (int number = 0; number < count; ++number)
            write(number);
    }

    const std::string& folder() const { return folder_; }
    double textBytes() const { return textBytes_; }
    static std::string circuit(int number) { return "Feeder " + std::to_string(number) + " Maple Road"; }
    static int seasonFrom() { return *archive::parseDay("2012-06-01"); }
    static int seasonTo() { return *archive::parseDay("2012-08-31"); }

    archive::FoundFile file(int number) const {
        const std::string folder = "circuit" + std::to_string(number / perCircuit);
        const std::string name = "r" + std::to_string(number) + ".dat";
        return {folder_ + "/" + folder + "/" + name, {folder, name}};
    }
    std::string notes(int number) const {
        const int circuitNumber = number / perCircuit;
        return "Station " + std::to_string(circuitNumber / 8) + "\r\n" + circuit(circuitNumber) +
               "\r\nphase " + "RWB"[number % 3] + "\r\nrecording " + std::to_string(number) + "\r\n";
    }

private:
    static constexpr int perCircuit = 42;
    static constexpr int readings = 2688;

    void write(int number) {
        const archive::FoundFile found = file(number);
        std::filesystem::create_directories(std::filesystem::path(found.path).parent_path());
        const std::string text = dataText(number);
        textBytes_ += static_cast<double>(text.size());
        std::ofstream(found.path, std::ios::binary) << text;
        std::ofstream(found.path.substr(0, found.path.size() - 3) + "not", std::ios::binary) << notes(number);
    }

    static std::string dataText(int number) {
        const int place = number % perCircuit;
        // 28 days and a gap that grows now and then.
        const ReadingTime first =
            toReadingTime({2009, 1, 1, 0, 0}) + (std::int64_t{place} * 32 + place / 7 * 11) * 1440;
        const ReadingTime last = first + std::int64_t{15} * (readings + 1);
        std::string text = "\"\r\n\n\nPQXa   " + std::to_string(1000 + number % 9000) + std::string(19, ' ') +
                           headerTime(last) + "   Vbatt 3E8\r";
        std::uint32_t random = static_cast<std::uint32_t>(number) * 2654435761U + 12345U;
        for (int i = 0; i < readings; ++i) {
            random = random * 1664525U + 1013904223U;
            const double hour = ((readings - i) % 96) / 4.0;
            const double load = 40 + 25 * std::sin((hour - 9) * 0.2618) + place * 0.5 + (random >> 24) / 64.0;
            char field[16];
            std::snprintf(field, sizeof field, "%5.1f", load);
            text += (i > 0 && i % 10 == 0 ? "\n\r" : "");
            text += field;
        }
        return text + "\x1a\"\r\n";
    }

    std::string folder_;
    double textBytes_ = 0;
};

} // namespace tally::bench
