// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/CircuitOptions.h"

#include "cli/ArchivePlace.h"

#include <algorithm>

namespace tally::cli {

using archive::Circuit;

archive::Selection CircuitOptions::selection() const {
    archive::Selection selection;
    if (command->count("--circuit") > 0)
        selection.circuit = circuit;
    if (command->count("--station") > 0)
        selection.station = station;
    return selection;
}

CLI::Option* addCircuit(CLI::App& command, CircuitOptions& options) {
    options.command = &command;
    command.add_option("--station", options.station,
                       "the station, where several have a circuit of this name");
    return command.add_option("--circuit", options.circuit, "the whole name of the circuit");
}

NamedCircuit circuitNamed(Context& context, archive::ArchiveStore& store, const CircuitOptions& options) {
    NamedCircuit named;
    named.entries = store.find(options.selection());
    const std::vector<Circuit> circuits = archive::circuitsOf(named.entries, archiveTools());
    const auto amps = [](const Circuit& circuit) { return circuit.front()->unit == 'A'; };
    const bool anyAmps = std::any_of(circuits.begin(), circuits.end(), amps);
    std::string stations;
    for (const Circuit& circuit : circuits) {
        if (anyAmps && !amps(circuit))
            continue;
        named.circuit.insert(named.circuit.end(), circuit.begin(), circuit.end());
        stations += (stations.empty() ? "" : ", ") + circuit.front()->belonging.station;
    }
    if (circuits.size() > 1)
        context.warn("Circuit " + options.circuit + " stands at several stations (" + stations +
                     "), which are taken together; name one with --station");
    if (named.circuit.size() < named.entries.size())
        context.warn("Circuit " + options.circuit + " has recordings of volts too; they are left out");
    return named;
}

} // namespace tally::cli
