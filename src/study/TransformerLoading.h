// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "study/Axis.h"

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace tally::study {

// How a transformer is cooled: a small distribution transformer, or oil natural/air natural, oil natural/air
// forced, oil forced, oil directed.
enum class Cooling { distribution, onan, onaf, of, od };
inline constexpr std::array<const char*, 5> coolingNames = {"distribution", "onan", "onaf", "of", "od"};
std::optional<Cooling> coolingOf(std::string_view name);

// Insulation of the winding: ordinary paper, or thermally upgraded.
enum class Paper { normal, upgraded };
inline constexpr std::array<const char*, 2> paperNames = {"normal", "upgraded"};
std::optional<Paper> paperOf(std::string_view name);

// A transformer after IEC 60076-7. Temperatures in °C, rises and gradients in K, time constants in minutes.
struct Transformer {
    double rated = 0; // amps
    double ambient = 20;
    Cooling cooling = Cooling::distribution;
    double topOilRise = 0;    // Δθor, over ambient at rated losses
    double gradient = 0;      // gr, average winding over average oil at rated current
    double hotSpotFactor = 0; // H
    double lossRatio = 0;     // R, load losses at rated current to no-load losses
    double x = 0;             // oil exponent
    double y = 0;             // winding exponent
    double k11 = 0;
    double k21 = 0;
    double k22 = 0;
    double tauOil = 0;
    double tauWinding = 0;
    Paper paper = Paper::normal;

    // Δθhr = H·gr: hot spot over top oil at rated current.
    double hotSpotRise() const { return hotSpotFactor * gradient; }
};

// The usual values of a kind of cooling, without the rated current.
Transformer usualTransformer(Cooling cooling);

struct TemperatureAt {
    double value = 0; // °C
    ReadingTime at;
};

// What a load did to a transformer at constant ambient temperature.
struct TransformerLoading {
    double hours = 0;
    TemperatureAt hotSpotMax;
    TemperatureAt topOilMax;
    double ageing = 0; // mean relative rate; 1 is the rate at 98 °C (of upgraded paper at 110 °C)
    double lossOfLifeHours = 0;
    double kMax = 0; // highest load over rated
};

// With K a load over the rated current, held through its interval, the oil and the hot spot over it follow
//   F = Δθor·[(1 + R·K²)/(1 + R)]^x + ambient and G = Δθhr·K^y
// by difference equations in steps of a minute, from the steady state of the first load:
//   θo += Δt/(k11·τo)·(F − θo), h1 += Δt/(k22·τw)·(k21·G − h1), h2 += Δt·k22/τo·((k21 − 1)·G − h2),
//   hot spot = θo + h1 − h2.
// Ageing is the mean over the steps of 2^((hot spot − 98)/6), of upgraded paper of
// exp(15000/383 − 15000/(hot spot + 273)). A maximum is the earliest value within 10⁻⁶ K of the highest.
// Loads are averages in tenths of amps; at least one.
TransformerLoading transformerLoadingOf(std::span<const std::int32_t> loads, const Axis& axis,
                                        const Transformer& transformer);

} // namespace tally::study
