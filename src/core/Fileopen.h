// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Files.h"
#include "core/Recordings.h"
#include "core/Refusal.h"

#include <string>
#include <tl/expected.hpp>

namespace tally {

// cannotRead: the file is there, but the system does not give it out; badFile: what stands in it is no
// recording.
enum class OpenProblem { modeMixing, notVoltage, notFound, cannotRead, badFile, slotsFull };

inline constexpr const char* fileNotFoundText = "File not found";
inline constexpr const char* badFileText = "Error in processing file";

// Why a file was not opened, and what the message box says about it.
struct OpenRefusal : Refusal {
    OpenProblem why = OpenProblem::badFile;
};

// Reads a data file and its notes into the first free slot and makes it current; gives the slot.
// `voltageOnly` refuses current recordings. Refused, nothing has changed. The recent list and the menus are
// the caller's.
tl::expected<int, OpenRefusal> Fileopen(Recordings& recordings, const Files& files, const std::string& path,
                                        bool voltageOnly = false);

// What is said of a file without its end mark, without its name; empty for a whole one.
std::string incompleteNotice(const FileFacts& info);

} // namespace tally
