// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/DataText.h"
#include "core/Files.h"

#include <cstddef>
#include <string>

namespace tally {

// How many bytes of a file are read at most; many times what the readings of one file take.
inline constexpr std::size_t maximumDataBytes = std::size_t{16} << 20;

// What a file begins with, and whether it goes on.
struct DataBytes {
    std::string bytes;
    bool cutShort = false;
};

// Throws file faults.
DataBytes readDataBytes(const Files& files, const std::string& path);

// What is wrong with a text that is no recording, and what may be done.
std::string dataAdvice(DataRefusal refusal);

} // namespace tally
