// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

// The well-known folders of this user and machine, as paths with "/" (bytes; elsewhere than on Windows where
// the environment says so with an absolute path); not made before they are written to.
namespace tally::folders {

std::string config(); // settings
std::string data();   // what must last: journal, help collection
std::string cache();  // what may go

// "Tallyline.ini" in config().
std::string settingsFile();

// Where a recover reads its text back from: never a folder that others can write to. Makes the folder.
std::string recoverFile();

// Makes a folder and those above it, for this user alone; false when that cannot be done.
bool make(const std::string& folder);

struct Volume {
    std::string label;
    std::string root;
};

// Where the user's files can stand: the drives on Windows, elsewhere home and the mounted volumes.
std::vector<Volume> volumes();

} // namespace tally::folders
