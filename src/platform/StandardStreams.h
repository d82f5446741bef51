// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace tally {

// Keeps the numbers of the three standard streams taken when a program was started without them: else the
// first files it opens, a serial line or a journal, would get them, and what is told goes there. Reading and
// writing such a stream fails, as it should.
void holdStandardStreams();

} // namespace tally
