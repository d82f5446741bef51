// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace tally::cli {

// The whole program: reads the arguments, runs the command, gives the exit status.
int runProgram(int argc, char** argv);

} // namespace tally::cli
