// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ReceptionFile.h"

#include <algorithm>
#include <cstring>

namespace tally {

namespace {

constexpr std::size_t mapped = 4 * FileMap::step; // a whole memory, with what came before it
constexpr std::size_t minimumRoom = 32768;        // more than a line gives at once

} // namespace

bool ReceptionFile::create(const std::string& path) {
    close();
    size_ = 0;
    mayMap_ = true;
    return file_.create(path);
}

std::span<char> ReceptionFile::room() {
    if (!isOpen() || !mayMap_)
        return {};
    std::size_t used = static_cast<std::size_t>(size_ - start_);
    if (map_.place().size() < used + minimumRoom) {
        start_ = size_ / FileMap::step * FileMap::step;
        used = static_cast<std::size_t>(size_ - start_);
        mayMap_ = map_.map(file_.descriptor(), start_, mapped);
        if (!mayMap_)
            leaveMap();
    }
    return mayMap_ ? map_.place().subspan(used) : std::span<char>();
}

// From here on characters are written one piece after the other.
void ReceptionFile::leaveMap() {
    map_.release();
    file_.cut(size_);
}

bool ReceptionFile::append(std::string_view characters) {
    while (!characters.empty()) {
        const std::size_t used = static_cast<std::size_t>(size_ - start_);
        const bool there = !map_.place().empty() && characters.data() == map_.place().data() + used;
        const std::span<char> place = there ? map_.place().subspan(used) : room();
        if (place.empty()) {
            if (!file_.write(characters))
                return false;
            size_ += characters.size();
            return true;
        }
        const std::size_t count = std::min(characters.size(), place.size());
        if (!there)
            std::memcpy(place.data(), characters.data(), count);
        size_ += count;
        characters.remove_prefix(count);
    }
    return true;
}

void ReceptionFile::close() {
    if (!map_.place().empty())
        leaveMap();
    file_.close();
    start_ = 0;
}

std::string_view withoutFilling(std::string_view bytes) {
    if (bytes.size() % FileMap::step == 0)
        while (bytes.ends_with('\0'))
            bytes.remove_suffix(1);
    return bytes;
}

} // namespace tally
