// SPDX-License-Identifier: GPL-3.0-or-later
#include "Goals.h"

int main(int argc, char** argv) {
    return tally::bench::runGoals(argc, argv);
}
