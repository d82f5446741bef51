// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace tally {

// Bytes, as against text.
struct Blob {
    std::string bytes;
};

// What is bound to a statement or stands in a row: nothing, a whole number, text (UTF-8), bytes.
using SqlValue = std::variant<std::monostate, std::int64_t, std::string, Blob>;
using SqlRow = std::vector<SqlValue>;

// Rows for one table, values in the order of the columns.
struct SqlRows {
    const char* table;
    std::vector<const char*> columns;
    std::vector<SqlRow> rows;
};

} // namespace tally
