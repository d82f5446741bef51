// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <tl/expected.hpp>
#include <utility>

namespace tally {

// An expected refusal: the fixed words, what they speak of (a file, folder, port or value; may be empty) and
// what may be done about it (may be empty). All UTF-8.
struct Refusal {
    std::string text;
    std::string subject = {};
    std::string advice = {};

    // As a message box or standard error shows it: the fixed words alone on the first line, the rest under
    // them.
    std::string message() const {
        std::string whole = text;
        for (const std::string& line : {subject, advice})
            if (!line.empty())
                whole += "\r\n" + line;
        return whole;
    }
};

// A value, or why there is none. Run-time faults (overflow, disk) are no refusals: they are thrown as Fault.
template <class Value>
using Expected = tl::expected<Value, Refusal>;

inline tl::unexpected<Refusal> refuse(std::string text, std::string subject = {}, std::string advice = {}) {
    return tl::make_unexpected(Refusal{std::move(text), std::move(subject), std::move(advice)});
}

} // namespace tally
