// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace tally {

// tallyline-cli: runs the command that the arguments name and gives the exit status (0 done, 1 refused or
// failed, 2 wrong usage).
int runProgram(int argc, char** argv);

} // namespace tally
