// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tally::archive {

// Appends a whole number in as few bytes as it needs: seven bits a byte, the sign in the lowest bit, so that
// small ones of either sign take one.
void putNumber(std::string& bytes, std::int64_t number);

// Reads such numbers back.
class NumberReader {
public:
    explicit NumberReader(std::string_view bytes) : bytes_(bytes) {}

    // 0 when there is none; damaged() then tells.
    std::int64_t next();
    bool atEnd() const { return at_ >= bytes_.size(); }
    // A number was asked for that was not there or not whole.
    bool damaged() const { return damaged_; }

private:
    std::string_view bytes_;
    std::size_t at_ = 0;
    bool damaged_ = false;
};

// Readings as the differences between each and the one `stride` before it (1, of triples 3), and back;
// nothing when the bytes are none.
std::string packReadings(const std::vector<std::int16_t>& readings, std::size_t stride);
std::optional<std::vector<std::int16_t>> unpackReadings(std::string_view bytes, std::size_t stride);

} // namespace tally::archive
