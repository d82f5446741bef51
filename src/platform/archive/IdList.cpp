// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/archive/IdList.h"

#include <algorithm>
#include <array>

namespace tally {

namespace {

constexpr std::array<std::size_t, 4> lengths = {1, 8, 64, 512};

std::string placesFor(std::size_t count) {
    std::string list = "(?";
    for (std::size_t at = 1; at < count; ++at)
        list += ", ?";
    return list + ")";
}

} // namespace

void inPortions(const std::vector<archive::Id>& ids,
                const std::function<void(const std::string& list, const SqlRow& values)>& ask) {
    for (std::size_t begin = 0; begin < ids.size();) {
        const std::size_t left = std::min(ids.size() - begin, lengths.back());
        const std::size_t length = *std::lower_bound(lengths.begin(), lengths.end(), left);
        SqlRow values;
        for (std::size_t at = 0; at < length; ++at)
            values.emplace_back(ids[begin + std::min(at, left - 1)]);
        ask(placesFor(length), values);
        begin += left;
    }
}

} // namespace tally
