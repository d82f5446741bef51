// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "archive/ArchiveStore.h"
#include "archive/FoundFile.h"
#include "archive/Place.h"
#include "core/Refusal.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>

namespace tally::archive {

// Why an archive cannot be opened.
struct ArchiveRefusal : Refusal {
    ArchiveRefusal(Refusal refusal, bool missing = false)
        : Refusal(std::move(refusal)), nothingThere(missing) {}
    bool nothingThere; // the place is empty: an archive can be made there
};
using Opened = tl::expected<std::unique_ptr<ArchiveStore>, ArchiveRefusal>;

// Where archives are opened and made, and where the files that go into them are found. May be used from any
// thread; a store that it opens belongs to the thread that asked.
class Archives {
public:
    virtual ~Archives() = default;

    // Refused when there is none, it is of another program or a newer version, or out of reach (within 5 s).
    virtual Opened open(const Place& place) const = 0;
    // Makes an archive where there is none yet; nothing when there is one. Refused as above.
    virtual Expected<void> make(const Place& place) const = 0;
    // Where this user's archive stands when no other is named.
    virtual Place usual() const = 0;
    virtual const ArchiveTools& tools() const = 0;

    // The data files that a path names: itself, or those in a folder and below it. `receive` gives false to
    // stop; `failed` gets what cannot be read.
    virtual void
    eachFile(const std::string& path, const std::function<bool(FoundFile&&)>& receive,
             const std::function<void(const std::string& path, const std::string& reason)>& failed) const = 0;
};

} // namespace tally::archive
