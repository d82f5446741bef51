// SPDX-License-Identifier: GPL-3.0-or-later
#include "Goals.h"
#include "Programs.h"

namespace tally::bench {

void registerGoals() {
    static const LongFile file;
    goal(
        "cli_info_42966",
        [] {
            runToEnd("tallyline-cli", {"info", file.path()});
        },
        [] { runToEnd("bench_emptyCli", {}); }, 1.3);
}

} // namespace tally::bench
