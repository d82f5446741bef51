// SPDX-License-Identifier: GPL-3.0-or-later
#include "Goals.h"

#include "core/Clock.h"
#include "core/Recordings.h"
#include "view/Power.h"
#include "view/Print.h"
#include "view/Printpwr.h"

#include <cmath>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

namespace tally::bench {

namespace {

class StillClock : public Clock {
public:
    ReadingTime localTime() const override { return {}; }
    std::int64_t now() const override { return 0; }
};

// Open files of the largest size with a day curve, and what is made from them.
struct Desk {
    Recordings recordings;
    Range range;
    StillClock clock;
    std::string copy;
    std::vector<float> kilowatts;

    Desk(char letter, bool low, int files) {
        for (std::size_t slot = 0; slot < static_cast<std::size_t>(files); ++slot) {
            FileFacts& info = recordings.gInfo[slot];
            info.modeLetter = letter;
            info.low = low;
            info.path = "phase.dat";
            info.start = toReadingTime({2024, 3, 1, 0, 0});
            info.count = Recordings::maximumReadings;
            auto& readings = recordings.gReadings[slot];
            for (int i = 0; i < info.count; ++i)
                readings.push_back(static_cast<std::int16_t>(
                    2000 + 1500 * std::sin(i / 200.0 + static_cast<double>(slot)) + i * 7919 % 101));
        }
        recordings.ginx = 0;
        range = recordings.all(0);
    }
};

void tableGoal(const std::string& name, char letter, bool low) {
    const auto desk = std::make_shared<Desk>(letter, low, 1);
    const auto table = std::make_shared<Table>(Print(desk->recordings, 0, desk->range));
    desk->copy.resize(table->text.size());
    goal(
        name,
        [desk] {
            const Table made = Print(desk->recordings, 0, desk->range);
            keep(made.text.data());
        },
        // A copy within the cache: it stands for putting so many bytes down, not for making them.
        [desk, table] {
            std::memcpy(desk->copy.data(), table->text.data(), desk->copy.size());
            keep(desk->copy.data());
            benchmark::ClobberMemory();
        },
        12);
}

// Power of each reading and its sum, nothing else.
void plainPower(Desk& desk) {
    const auto& [a, b, c] = desk.recordings.gReadings;
    desk.kilowatts.resize(a.size());
    float sum = 0;
    for (std::size_t i = 0; i < a.size(); ++i) {
        const auto amps = static_cast<float>(a[i] + b[i] + c[i]);
        desk.kilowatts[i] = amps / 3.0F * 1.732F / 10.0F * 13.8F * 1.0F;
        sum += desk.kilowatts[i];
    }
    keep(sum);
    keep(desk.kilowatts.data());
}

void powerGoals() {
    const auto desk = std::make_shared<Desk>('a', true, 3);
    goal(
        "power-of-three-files",
        [desk] {
            const Power power = powerOf(desk->recordings, desk->range, PowerBasis{}).value();
            const Plot plot =
                DisplPlotPwr(desk->recordings, PlotRequest{.range = desk->range}, power, desk->clock);
            keep(plot.series[0].values.data());
        },
        [desk] { plainPower(*desk); }, 4);
}

void powerTableGoal(const std::string& name, char letter, bool low) {
    const auto desk = std::make_shared<Desk>(letter, low, 1);
    const auto power = std::make_shared<Power>(powerOf(desk->recordings, desk->range, PowerBasis{}).value());
    const auto data = std::make_shared<Desk>(letter, low, 1);
    goal(
        name,
        [desk, power] {
            const Table made = Printpwr(desk->recordings, *power);
            keep(made.text.data());
        },
        [data] {
            const Table made = Print(data->recordings, 0, data->range);
            keep(made.text.data());
        },
        1.5);
}

} // namespace

void registerGoals() {
    tableGoal("table-text", 'a', true);
    tableGoal("table-text-high", 'c', false);
    tableGoal("table-text-min-max-avg", 'g', true);
    powerGoals();
    powerTableGoal("power-table", 'a', true);
    powerTableGoal("power-table-high", 'c', false);
}

} // namespace tally::bench
