// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/ArchiveChoice.h"

namespace tally::archive {

namespace {

constexpr const char* section = "Archive";
constexpr const char* placeKey = "place";
constexpr const char* automaticKey = "automatic";

} // namespace

Place ArchiveChoice::place() const {
    const std::string kept = settings_.get(section, placeKey);
    const auto place = parsePlace(kept);
    return kept.empty() || !place ? usual_ : *place;
}

void ArchiveChoice::choose(const Place& place) {
    settings_.set(section, placeKey, place.text());
}

ArchiveChoice::Automatic ArchiveChoice::automatic() const {
    const std::string kept = settings_.get(section, automaticKey);
    return kept == "on" ? Automatic::on : kept == "off" ? Automatic::off : Automatic::notAsked;
}

void ArchiveChoice::setAutomatic(bool on) {
    settings_.set(section, automaticKey, on ? "on" : "off");
}

} // namespace tally::archive
