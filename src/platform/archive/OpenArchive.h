// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "archive/Archives.h"
#include "archive/Place.h"
#include "core/Refusal.h"
#include "platform/archive/Schema.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace tally {

// What is told beside the work, e.g. that an older archive was brought up to date.
using Tell = std::function<void(const std::string& text)>;

// Opens the archive at a place. Refused when there is none, it is of another program or a newer version, or
// out of reach (within 5 s). An older one is brought up to date first. A read-only medium is opened for
// reading.
archive::Opened openArchive(const archive::Place& place, const archive::ArchiveTools& tools,
                            const Tell& tell = {}, const Schema& schema = Schema::current());

// Makes an archive where there is none yet; nothing when there is one. Its recordings are split over
// `partitions` when some are given (PostgreSQL only). Refused as above.
Expected<void> initArchive(const archive::Place& place, const std::vector<archive::Place>& partitions = {},
                           const Schema& schema = Schema::current());

// Where the archive of this user stands when no other is named.
archive::Place defaultPlace();

} // namespace tally
