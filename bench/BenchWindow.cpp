// SPDX-License-Identifier: GPL-3.0-or-later
#include "Goals.h"
#include "Programs.h"

namespace tally::bench {

// From the start of the program to its first painted frame, the plot in it, and out again, as whole
// processes.
void registerGoals() {
    static const LongFile file;
    goal(
        "window_start_42966",
        [] {
            runToEnd("tallyline", {"--plot", "--quit-after-first-frame", file.path()});
        },
        [] { runToEnd("bench_emptyWindow", {}); }, 1.4);
}

} // namespace tally::bench
