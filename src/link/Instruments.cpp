// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/Instruments.h"

#include "core/Fault.h"

#include <array>
#include <charconv>

namespace tally {

namespace {

struct InstrumentType {
    std::string_view caption;
    std::string_view name; // as reports show it; the second type has none
};

// In the order of their codes.
constexpr std::array<InstrumentType, highestType + 1> types = {{{"", "(no instrument selected)"},
                                                                {"HVN40/80", "HVN40/80"},
                                                                {"HVN500/550", ""},
                                                                {"HVT550", "HVT550"},
                                                                {"PQV", "PQV"},
                                                                {"PQV-D", "PQV-D"},
                                                                {"TZ300", "TZ300"},
                                                                {"PQX-K4", "PQX-K4"},
                                                                {"PQX-K4-W", "PQX-K4-W"},
                                                                {"Custom", "Custom"},
                                                                {"PQX (the original model)", "PQX"},
                                                                {"PQX-K4 Auto Select", "PQX-K4-AutoDetect"}}};

const char* const slowSettings = "9600,N,8,1";
const char* const fastSettings = "115200,N,8,1";

void force(InstrumentState& instrument, const std::string& settings, std::int32_t samples, bool cableFirst) {
    instrument.portSettings = settings;
    instrument.maxSamples = samples;
    instrument.gCableFirst = cableFirst;
}

} // namespace

std::string InstrumentName(int code) {
    if (code == -1)
        throw fault::divisionByZero();
    return code < 0 || code > highestType ? std::string()
                                          : std::string(types[static_cast<std::size_t>(code)].name);
}

std::string_view optionCaption(int code) {
    return code < 1 || code > highestType ? std::string_view()
                                          : types[static_cast<std::size_t>(code)].caption;
}

void applySelection(InstrumentState& instrument, int code) {
    if (code < 0 || code > highestType)
        throw fault::subscript();
    instrument.instSelection = static_cast<std::int16_t>(code);
    switch (code) {
    case 0:
        break;
    case 1:
    case 10:
        force(instrument, slowSettings, 2091, false);
        break;
    case 8:
        force(instrument, fastSettings, 42966, true);
        break;
    case customType:
        force(instrument, instrument.portSettingsCustom, instrument.maxSamplesCustom, true);
        break;
    case autoSelectType:
        if (instrument.instAutoCurrent == 7)
            force(instrument, slowSettings, 10710, true);
        else
            force(instrument, fastSettings, 42966, true);
        break;
    default:
        force(instrument, slowSettings, 10710, code == 7);
    }
}

void TypeChoice::apply(std::optional<int> code) {
    applySelection(instrument_, code.value_or(instrument_.instSelection));
}

void TypeChoice::cancel() {
    instrument_.instSelection = before_.instSelection;
    force(instrument_, before_.portSettings, before_.maxSamples, before_.gCableFirst);
}

bool hasOwnProperties(const InstrumentState& instrument) {
    return instrument.instSelection == customType;
}

void setProperties(InstrumentState& instrument, const std::string& settings, std::int32_t samples) {
    if (!hasOwnProperties(instrument))
        return;
    instrument.portSettings = instrument.portSettingsCustom = settings;
    instrument.maxSamples = instrument.maxSamplesCustom = samples;
}

bool isVoltageRecorder(int code) {
    return code == 3 || code == 6;
}

std::optional<int> typeFromText(std::string_view text) {
    int code = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), code);
    if (error == std::errc() && end == text.data() + text.size())
        return code >= 1 && code <= highestType ? std::optional(code) : std::nullopt;
    for (code = 1; code <= highestType; ++code) {
        const InstrumentType& type = types[static_cast<std::size_t>(code)];
        if (!text.empty() && (text == type.name || text == type.caption))
            return code;
    }
    return {};
}

} // namespace tally
