// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "archive/Place.h"

#include <string>
#include <vector>

// What differs between the engines; every other statement is the same text on both.
namespace tally::dialect {

// The condition that a text column holds a word, and the value to bind for the word.
std::string holdsWord(archive::Engine engine, const std::string& column);
std::string wordValue(archive::Engine engine, const std::string& word);

// The key column of a table: SQLite keeps rows by it only under this very name.
std::string keyType(archive::Engine engine);

// The type of a text that is sorted by: byte by byte, whatever the language of the server.
std::string nameType(archive::Engine engine);

// The type of a column of bytes.
std::string blobType(archive::Engine engine);

// Statements that an engine needs beside the tables: the index of the words that are searched.
std::vector<std::string> wordIndex(archive::Engine engine);

// After many rows came in: lets the engine look at what it holds.
std::string analyse(archive::Engine engine);

} // namespace tally::dialect
