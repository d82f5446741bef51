// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "archive/Place.h"
#include "core/Settings.h"

namespace tally::archive {

// What the user chose about the archive, kept in the settings. A place never holds a password.
class ArchiveChoice {
public:
    // `usual`: where the archive stands as long as no other place was chosen.
    ArchiveChoice(Settings& settings, Place usual) : settings_(settings), usual_(std::move(usual)) {}

    Place place() const;
    void choose(const Place& place);

    // Whether downloads and saves go in by themselves: nobody was asked yet, no, yes.
    enum class Automatic { notAsked, off, on };
    Automatic automatic() const;
    void setAutomatic(bool on);

private:
    Settings& settings_;
    Place usual_;
};

} // namespace tally::archive
