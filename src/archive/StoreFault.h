// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Fault.h"

#include <string>

namespace tally::archive {

enum class StoreTrouble {
    full,     // no room left; what was acknowledged is there
    readOnly, // the medium, or the rights of this user
    busy,     // another writer keeps it for too long
    lost,     // the server or the connection to it has gone
    clash,    // two writers got into each other's way; worth another try
    damaged,  // what stands in it is not what was written
    other
};

// A run-time fault of the store, with words that a person can act upon.
class StoreFault : public Fault {
public:
    StoreFault(StoreTrouble trouble, const std::string& description)
        : Fault(number, description), trouble_(trouble) {}
    StoreTrouble trouble() const { return trouble_; }

private:
    static constexpr int number = 57;
    StoreTrouble trouble_;
};

} // namespace tally::archive
