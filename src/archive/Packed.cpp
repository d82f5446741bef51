// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/Packed.h"

#include <limits>

namespace tally::archive {

namespace {

constexpr int bitsPerByte = 7;
constexpr std::uint64_t moreFollow = 0x80;
constexpr int maximumBits = 64;

} // namespace

void putNumber(std::string& bytes, std::int64_t number) {
    auto bits = (static_cast<std::uint64_t>(number) << 1) ^ static_cast<std::uint64_t>(number >> 63);
    while (bits >= moreFollow) {
        bytes += static_cast<char>((bits & (moreFollow - 1)) | moreFollow);
        bits >>= bitsPerByte;
    }
    bytes += static_cast<char>(bits);
}

std::int64_t NumberReader::next() {
    std::uint64_t bits = 0;
    for (int shift = 0; shift < maximumBits && at_ < bytes_.size(); shift += bitsPerByte) {
        const auto byte = static_cast<std::uint64_t>(static_cast<unsigned char>(bytes_[at_++]));
        bits |= (byte & (moreFollow - 1)) << shift;
        if ((byte & moreFollow) == 0)
            return static_cast<std::int64_t>(bits >> 1) ^ -static_cast<std::int64_t>(bits & 1);
    }
    damaged_ = true;
    at_ = bytes_.size();
    return 0;
}

std::string packReadings(const std::vector<std::int16_t>& readings, std::size_t stride) {
    std::string bytes;
    bytes.reserve(readings.size() * 2);
    for (std::size_t at = 0; at < readings.size(); ++at)
        putNumber(bytes, readings[at] - (at < stride ? 0 : readings[at - stride]));
    return bytes;
}

std::optional<std::vector<std::int16_t>> unpackReadings(std::string_view bytes, std::size_t stride) {
    std::vector<std::int16_t> readings;
    readings.reserve(bytes.size());
    NumberReader reader(bytes);
    while (!reader.atEnd()) {
        const auto at = readings.size();
        const std::int64_t value = reader.next() + (at < stride ? 0 : readings[at - stride]);
        if (reader.damaged() || value < std::numeric_limits<std::int16_t>::min() ||
            value > std::numeric_limits<std::int16_t>::max())
            return std::nullopt;
        readings.push_back(static_cast<std::int16_t>(value));
    }
    return readings;
}

} // namespace tally::archive
