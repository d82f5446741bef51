// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/StudyJson.h"

namespace tally::cli {

namespace {

Json timeJson(ReadingTime time) {
    return formatTime(time, "%Y-%m-%dT%H:%M");
}

template <typename Value>
Json orNull(const std::optional<Value>& value) {
    return value ? Json(*value) : Json(nullptr);
}

Json valueOrNull(const std::optional<study::LoadAt>& load) {
    return load ? Json(load->value) : Json(nullptr);
}
Json timeOrNull(const std::optional<study::LoadAt>& load) {
    return load ? timeJson(load->at) : Json(nullptr);
}

Json demandJson(const study::Demand& demand) {
    return {{"window", demand.blocks.window},
            {"block",
             {{"max", valueOrNull(demand.block)},
              {"at", timeOrNull(demand.block)},
              {"windows", demand.blocks.count}}},
            {"rolling", {{"max", valueOrNull(demand.rolling)}, {"at", timeOrNull(demand.rolling)}}}};
}

Json runsJson(const std::vector<study::Run>& runs) {
    Json list = Json::array();
    for (const study::Run& run : runs)
        list.push_back({{"start", timeJson(run.start)},
                        {"end", timeJson(run.end)},
                        {"minutes", run.minutes},
                        {"peak", run.peak.value},
                        {"peakAt", timeJson(run.peak.at)}});
    return list;
}

Json limitsJson(const study::Limits& limits) {
    return {{"above", runsJson(limits.above)},
            {"minutesAbove", limits.minutesAbove},
            {"below", runsJson(limits.below)},
            {"minutesBelow", limits.minutesBelow}};
}

Json slotsJson(const study::TypicalDay& day, double study::DaySlot::*figure) {
    Json list = Json::array();
    for (const study::DaySlot& slot : day.slots)
        list.push_back(slot.readings > 0 ? Json(slot.*figure) : Json(nullptr));
    return list;
}

Json daysJson(const study::TypicalDays& days) {
    Json kinds = Json::object();
    for (std::size_t kind = 0; kind < days.size(); ++kind)
        kinds[study::dayKindNames[kind]] = {{"days", days[kind].days},
                                            {"mean", slotsJson(days[kind], &study::DaySlot::mean)},
                                            {"min", slotsJson(days[kind], &study::DaySlot::min)},
                                            {"max", slotsJson(days[kind], &study::DaySlot::max)},
                                            {"p10", slotsJson(days[kind], &study::DaySlot::p10)},
                                            {"p90", slotsJson(days[kind], &study::DaySlot::p90)}};
    return kinds;
}

Json channelJson(const study::Channel& channel, const study::ChannelFigures& figures) {
    return {{"name", channel.name},
            {"unit", std::string(study::unitName(channel.unit))},
            {"mean", figures.level.mean},
            {"max", figures.level.max.value},
            {"maxAt", timeJson(figures.level.max.at)},
            {"min", figures.level.min.value},
            {"minAt", timeJson(figures.level.min.at)},
            {"loadFactor", orNull(figures.demand.loadFactor)},
            {"lossFactor", orNull(figures.demand.lossFactor)},
            {"demand", demandJson(figures.demand)},
            {"duration", figures.duration},
            {"limits", limitsJson(figures.limits)},
            {"days", daysJson(figures.days)}};
}

Json phasesJson(const study::Phases& phases) {
    const study::Unbalance& unbalance = phases.unbalance;
    Json neutral = nullptr;
    if (phases.neutral)
        neutral = {{"max", phases.neutral->max.value},
                   {"maxAt", timeJson(phases.neutral->max.at)},
                   {"mean", phases.neutral->mean}};
    return {{"unbalance",
             {{"max", valueOrNull(unbalance.max)},
              {"maxAt", timeOrNull(unbalance.max)},
              {"mean", orNull(unbalance.mean)},
              {"p95", orNull(unbalance.p95)},
              {"atPeak", orNull(unbalance.atPeak)},
              {"counted", unbalance.counted}}},
            {"neutral", neutral}};
}

Json diversityJson(const study::Diversity& diversity) {
    return {{"sumOfPeaks", orNull(diversity.sumOfPeaks)},
            {"peakOfSum", valueOrNull(diversity.peakOfSum)},
            {"peakOfSumAt", timeOrNull(diversity.peakOfSum)},
            {"diversityFactor", orNull(diversity.diversityFactor)},
            {"coincidenceFactor", orNull(diversity.coincidenceFactor)}};
}

Json capacityJson(const study::Capacity& capacity, const std::string& channel) {
    return {{"demand", capacity.demand.value},
            {"at", timeJson(capacity.demand.at)},
            {"channel", channel},
            {"required", capacity.required},
            {"rating", capacity.rating},
            {"spare", capacity.spare},
            {"ok", capacity.ok},
            {"days", capacity.days},
            {"enoughDays", capacity.enoughDays}};
}

Json flagsJson(const study::Study& study) {
    Json list = Json::array();
    for (const study::Flag& flag : study.flags)
        list.push_back({{"channel", study.channels[flag.file].name},
                        {"kind", study::flagNames[static_cast<std::size_t>(flag.kind)]},
                        {"start", timeJson(flag.start)},
                        {"end", timeJson(flag.end)},
                        {"readings", flag.readings},
                        {"value", flag.value}});
    return list;
}

} // namespace

Json jsonOf(const study::Study& study) {
    Json channels = Json::array();
    for (std::size_t i = 0; i < study.channels.size(); ++i)
        channels.push_back(channelJson(study.channels[i], study.figures[i]));
    return {{"span",
             {{"start", timeJson(study.axis.start)},
              {"end", timeJson(study.axis.end())},
              {"interval", study.axis.interval},
              {"points", study.axis.points}}},
            {"channels", channels},
            {"phases", study.phases ? phasesJson(*study.phases) : Json(nullptr)},
            {"diversity", study.diversity ? diversityJson(*study.diversity) : Json(nullptr)},
            {"capacity", study.capacity
                             ? capacityJson(*study.capacity, study.channels[study.capacity->file].name)
                             : Json(nullptr)},
            {"flags", flagsJson(study)}};
}

Json jsonOf(const study::TransformerLoading& loading, const study::Axis& axis,
            const study::Transformer& transformer) {
    const auto nameOf = [](const auto& names, auto kind) { return names[static_cast<std::size_t>(kind)]; };
    return {{"start", timeJson(axis.start)},
            {"end", timeJson(axis.end())},
            {"hours", loading.hours},
            {"hotSpotMax", loading.hotSpotMax.value},
            {"hotSpotMaxAt", timeJson(loading.hotSpotMax.at)},
            {"topOilMax", loading.topOilMax.value},
            {"topOilMaxAt", timeJson(loading.topOilMax.at)},
            {"ageing", loading.ageing},
            {"lossOfLifeHours", loading.lossOfLifeHours},
            {"kMax", loading.kMax},
            {"parameters",
             {{"rated", transformer.rated},
              {"ambient", transformer.ambient},
              {"cooling", nameOf(study::coolingNames, transformer.cooling)},
              {"topOilRise", transformer.topOilRise},
              {"gradient", transformer.gradient},
              {"hotSpotFactor", transformer.hotSpotFactor},
              {"hotSpotRise", transformer.hotSpotRise()},
              {"lossRatio", transformer.lossRatio},
              {"x", transformer.x},
              {"y", transformer.y},
              {"k11", transformer.k11},
              {"k21", transformer.k21},
              {"k22", transformer.k22},
              {"tauOil", transformer.tauOil},
              {"tauWinding", transformer.tauWinding},
              {"paper", nameOf(study::paperNames, transformer.paper)}}}};
}

} // namespace tally::cli
