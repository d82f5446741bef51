// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Program.h"

int main(int argc, char** argv) {
    return tally::cli::runProgram(argc, argv);
}
