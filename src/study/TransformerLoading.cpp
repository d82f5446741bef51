// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/TransformerLoading.h"

#include <algorithm>
#include <cmath>

namespace tally::study {

namespace {

// A row of the table of the standard: Δθor, Δθhr, H, R, x, y, k11, k21, k22, τo, τw.
struct Row {
    double topOilRise, hotSpotRise, hotSpotFactor, lossRatio, x, y, k11, k21, k22, tauOil, tauWinding;
};
constexpr std::array<Row, coolingNames.size()> rows = {{{55, 23, 1.1, 5, 0.8, 1.6, 1, 1, 2, 180, 4},
                                                        {52, 26, 1.3, 6, 0.8, 1.3, 0.5, 2, 2, 210, 10},
                                                        {52, 26, 1.3, 6, 0.8, 1.3, 0.5, 2, 2, 150, 7},
                                                        {56, 22, 1.3, 6, 1, 1.3, 1, 1.3, 1, 90, 7},
                                                        {49, 29, 1.3, 6, 1, 2, 1, 1, 1, 90, 7}}};

// A step is at most half the smallest time constant; that of the table is a winding of 7 minutes.
constexpr double stepMinutes = 1;
static_assert(std::all_of(rows.begin(), rows.end(), [](const Row& row) {
    return 2 * stepMinutes <=
           std::min({row.k11 * row.tauOil, row.k22 * row.tauWinding, row.tauOil / row.k22});
}));

constexpr double forgivenKelvin = 1e-6;

template <typename Kind, std::size_t count>
std::optional<Kind> kindOf(const std::array<const char*, count>& names, std::string_view name) {
    const auto found = std::find(names.begin(), names.end(), name);
    if (found == names.end())
        return std::nullopt;
    return static_cast<Kind>(found - names.begin());
}

// The state of the model.
struct Heat {
    double oil = 0;
    double h1 = 0;
    double h2 = 0;
    double hotSpot() const { return oil + h1 - h2; }
};

class Model {
public:
    explicit Model(const Transformer& of)
        : of_(of),
          oilShare_(stepMinutes / (of.k11 * of.tauOil)),
          h1Share_(stepMinutes / (of.k22 * of.tauWinding)),
          h2Share_(stepMinutes * of.k22 / of.tauOil) {}

    // K of a load; the losses do not know which way a current flows.
    double factor(std::int32_t load) const { return std::fabs(load / 10.0 / of_.rated); }

    void setLoad(std::int32_t load) {
        const double k = factor(load);
        oil_ =
            of_.topOilRise * std::pow((1 + of_.lossRatio * k * k) / (1 + of_.lossRatio), of_.x) + of_.ambient;
        winding_ = of_.hotSpotRise() * std::pow(k, of_.y);
    }
    Heat steady() const { return {oil_, of_.k21 * winding_, (of_.k21 - 1) * winding_}; }
    void step(Heat& heat) const {
        heat.oil += oilShare_ * (oil_ - heat.oil);
        heat.h1 += h1Share_ * (of_.k21 * winding_ - heat.h1);
        heat.h2 += h2Share_ * ((of_.k21 - 1) * winding_ - heat.h2);
    }
    double ageing(double hotSpot) const {
        if (of_.paper == Paper::upgraded)
            return std::exp(15000.0 / 383 - 15000 / (hotSpot + 273));
        return std::exp2((hotSpot - 98) / 6);
    }

private:
    const Transformer& of_;
    double oilShare_;
    double h1Share_;
    double h2Share_;
    double oil_ = 0;     // what the oil goes towards
    double winding_ = 0; // what the winding over it goes towards
};

// Goes through the loads; visit(heat, minutes since the start) at the start and after each step.
template <typename Visit>
void run(std::span<const std::int32_t> loads, const Axis& axis, const Transformer& transformer, Visit visit) {
    Model model(transformer);
    model.setLoad(loads.front());
    Heat heat = model.steady();
    std::int64_t minute = 0;
    visit(heat, minute);
    for (const std::int32_t load : loads) {
        model.setLoad(load);
        for (int step = 0; step < axis.interval; ++step) {
            model.step(heat);
            visit(heat, ++minute);
        }
    }
}

// The first value close to the highest one.
struct Earliest {
    double highest;
    std::int64_t minute = -1;
    void see(double value, std::int64_t now) {
        if (minute < 0 && value >= highest - forgivenKelvin)
            minute = now;
    }
};

} // namespace

std::optional<Cooling> coolingOf(std::string_view name) {
    return kindOf<Cooling>(coolingNames, name);
}

std::optional<Paper> paperOf(std::string_view name) {
    return kindOf<Paper>(paperNames, name);
}

Transformer usualTransformer(Cooling cooling) {
    const Row& row = rows[static_cast<std::size_t>(cooling)];
    Transformer usual;
    usual.cooling = cooling;
    usual.topOilRise = row.topOilRise;
    usual.gradient = row.hotSpotRise / row.hotSpotFactor;
    usual.hotSpotFactor = row.hotSpotFactor;
    usual.lossRatio = row.lossRatio;
    usual.x = row.x;
    usual.y = row.y;
    usual.k11 = row.k11;
    usual.k21 = row.k21;
    usual.k22 = row.k22;
    usual.tauOil = row.tauOil;
    usual.tauWinding = row.tauWinding;
    return usual;
}

TransformerLoading transformerLoadingOf(std::span<const std::int32_t> loads, const Axis& axis,
                                        const Transformer& transformer) {
    const Model model(transformer);
    TransformerLoading loading;
    double hotSpot = -INFINITY;
    double oil = -INFINITY;
    double aged = 0;
    std::int64_t steps = 0;
    run(loads, axis, transformer, [&](const Heat& heat, std::int64_t minute) {
        hotSpot = std::max(hotSpot, heat.hotSpot());
        oil = std::max(oil, heat.oil);
        steps = minute;
        if (minute > 0)
            aged += model.ageing(heat.hotSpot());
    });
    // Which value is close to the highest is only known once that is: the same way once more.
    Earliest hottest{hotSpot};
    Earliest hottestOil{oil};
    run(loads, axis, transformer, [&](const Heat& heat, std::int64_t minute) {
        hottest.see(heat.hotSpot(), minute);
        hottestOil.see(heat.oil, minute);
    });
    loading.hours = static_cast<double>(axis.minutes(loads.size())) / 60;
    loading.hotSpotMax = {hotSpot, axis.start + hottest.minute};
    loading.topOilMax = {oil, axis.start + hottestOil.minute};
    loading.ageing = aged / static_cast<double>(steps);
    loading.lossOfLifeHours = loading.ageing * loading.hours;
    for (const std::int32_t load : loads)
        loading.kMax = std::max(loading.kMax, model.factor(load));
    return loading;
}

} // namespace tally::study
