// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "archive/Questions.h"
#include "cli/Command.h"

#include <string>
#include <vector>

namespace tally::cli {

// --circuit, and --station for a name that several stations have.
struct CircuitOptions {
    std::string circuit;
    std::string station;
    CLI::App* command = nullptr;

    archive::Selection selection() const;
};
CLI::Option* addCircuit(CLI::App& command, CircuitOptions& options);

// The recordings of the circuit that a call names.
struct NamedCircuit {
    std::vector<archive::Entry> entries;
    archive::Circuit circuit; // points into the entries
};
// Empty when there is no such circuit. What is taken together or left out is said on standard error.
NamedCircuit circuitNamed(Context& context, archive::ArchiveStore& store, const CircuitOptions& options);

} // namespace tally::cli
