// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/InstrumentState.h"
#include "link/InstrumentWait.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace tally {

// How an initialization waits for the response header on an opened port; `waitFor` bounds the wait for the
// first character (milliseconds).
WaitPolicy responsePolicy(const InstrumentState& instrument, std::int64_t waitFor = Waiter::never);

// The words about a response (bytes) that is no header.
std::string fragmentText(const std::string& fragment);

inline constexpr std::size_t tokenLength = 3; // the model code, whose last character says how to command
extern const char* const terminating;         // the port closed under an initialization

} // namespace tally
