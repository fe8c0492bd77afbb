#include "kernel/real_air_wet_bulb.h"

#include <algorithm>
#include <cmath>

#include "base/unit_factors.h"
#include "kernel/air_state.h"
#include "kernel/real_air_fits.h"
#include "kernel/real_air_polynomial.h"
#include "kernel/real_air_table.h"
#include "kernel/root.h"

namespace zandrell {
namespace {

constexpr double kCloseEnough = 1e-11;  // kJ/kg

// kJ/kg that water gains by being pressed together from saturation to p_bar.
double Pressed(double volume_cm3_per_mol, double t, double p_bar) {
    constexpr double kMolarMass = 18.015268;  // g/mol
    return volume_cm3_per_mol * 1e-6 * (1e5 * p_bar - RealSaturationPressure(t)) / kMolarMass;
}

double LiquidEnthalpy(double t, double p_bar) {
    return FitAt(real_air::kLiquidEnthalpy, FitVariable(t)) +
           Pressed(FitAt(real_air::kLiquidVolume, FitVariable(t)), t, p_bar);
}

double IceEnthalpy(double t, double p_bar) {
    return FitAt(real_air::kIceEnthalpy, FitVariable(t)) +
           Pressed(FitAt(real_air::kIceVolume, FitVariable(t)), t, p_bar);
}

double Excess(const SaturatedRealAir& saturated, double x, double enthalpy) {
    return enthalpy - saturated.enthalpy + (saturated.x - x) * 0.001 * saturated.condensed_enthalpy;
}

enum class Bulb { Iced, Wet };

// The wet bulbs of one state.
class BulbSearch {
  public:
    BulbSearch(double t, double x, double enthalpy, double p_bar)
        : t_(t), x_(x), enthalpy_(enthalpy), p_bar_(p_bar) {}

    std::optional<WetBulb> Find() const {
        // Where both are solutions they lie within about 1 K of 0 degC.
        constexpr double kAway = 1.5, kBetween = 1;
        const auto guess = Guessed(t_ < 0 ? Bulb::Iced : Bulb::Wet);
        const bool wet_alone = guess && guess->t > kAway;
        const bool iced_alone = guess && (t_ < 0 || guess->t < -kAway);
        if (wet_alone) {
            if (const auto wet = Near(guess, kBetween, kRealAirHighest)) return WetBulb{*wet, {}};
        }
        if (iced_alone) {
            const auto iced = Near(t_ < 0 ? guess : Guessed(Bulb::Iced), kRealAirLowest,
                                   t_ < 0 ? kIceUpTo : -kBetween);
            if (iced) return WetBulb{*iced, {}};
        }
        const auto iced = Iced(), wet = Wet(guess);
        if (!iced) return wet ? std::optional(WetBulb{*wet, {}}) : std::nullopt;
        return WetBulb{*iced, wet};
    }

  private:
    static constexpr double kRounding = 1e-9;  // kJ/kg; saturated air is its own wet bulb

    struct Guess {
        double t = 0;
        Course course;  // of what the state has more than air saturated at t
    };

    // In ideal gases with the usual rise of the saturation pressure, some hundredths of a kelvin
    // off. Empty where vapour makes most of the pressure.
    std::optional<Guess> Guessed(Bulb bulb) const {
        constexpr int kMostSteps = 10;
        constexpr double kGood = 0.0004;  // K, more than what a step leaves
        constexpr double kRatio = kRealAirRatio / 1000;
        constexpr double kGasConstant = kGasConstantSteam / 1000;  // kJ/(kg K)
        constexpr double kMostVapour = 0.8;                        // of the pressure
        const bool ice = bulb == Bulb::Iced;
        const double heat = ice ? 1.0063 : 1.006;  // of air, kJ/(kg K)
        const double latent_at_0 = ice ? 2834.4 : 2500.9, latent_slope = ice ? -0.25 : -2.34;
        const double latent_bend = ice ? 0 : -0.00094;
        const double water_at_0 = ice ? -333.4 : 0, water_slope = ice ? 2.07 : 4.19;
        const auto& table = RealAirTable::Get();
        const double per_pascal =
                         1 / kPascalPerBar * (1 + RealAirTable::kUsualEnhancement * p_bar_),
                     x = x_ / 1000;
        double at = std::clamp(t_ - 5, kRealAirLowest, 60.0);
        for (int i = 0; i < kMostSteps; ++i) {
            const double vapour = per_pascal * table.SaturationPressureAt(at);
            if (!(vapour < kMostVapour * p_bar_)) return std::nullopt;
            const double air = p_bar_ - vapour, per_T = 1 / (at + kKelvinOffset);
            const double latent = latent_at_0 + (latent_slope + latent_bend * at) * at;
            const double water = water_at_0 + water_slope * at;
            // Clausius and Clapeyron: the slope of the logarithm of the pressure.
            const double steep = latent / kGasConstant * per_T * per_T;
            // The excess, its slope and half the second derivative, times `air` to the first,
            // second and third power, which spares divisions one after the other.
            const double carried = kRatio * latent * vapour;
            const double excess = (enthalpy_ - heat * at - x * water) * air - carried;
            const double rise = carried * steep * p_bar_, slope = heat * air * air + rise;
            const double curve = 0.5 * rise * (steep * (p_bar_ + vapour) - 2 * per_T * air);
            // Halley's step, as long as from far above the bend does not turn it round.
            const double square = slope * slope, bent = curve * excess;
            const double step = excess * air * slope / std::max(square + bent, 0.5 * square);
            at = std::clamp(at + step, kRealAirLowest, kRealAirHighest);
            if (std::abs(bent * bent * step) < kGood * square * square)
                return Guess{at, {-slope / (air * air), curve / (slope * air)}};
        }
        return std::nullopt;
    }

    std::optional<double> Near(const std::optional<Guess>& guess, double low, double high) const {
        if (!guess) return std::nullopt;
        constexpr double kClose = 1e-9;  // K
        return RootByCourse(std::clamp(guess->t, low, high), guess->course, low, high, kClose,
                            [&](double at) {
                                constexpr double kUnknown = 1e9;
                                const auto saturated = EvaluateSaturatedAir(at, p_bar_);
                                return saturated ? Excess(*saturated, x_, enthalpy_) : kUnknown;
                            });
    }

    // What the state has more than air saturated at `bulb` over this water, 0 where there is none.
    template <typename Water>
    double Above(double bulb, Water water) const {
        auto saturated = EvaluateSaturatedAir(bulb, p_bar_);
        if (!saturated) return 0;
        saturated->condensed_enthalpy = water(bulb, p_bar_);
        return Excess(*saturated, x_, enthalpy_);
    }

    std::optional<double> Iced() const {
        const auto above = [&](double bulb) { return Above(bulb, IceEnthalpy); };
        const double most = t_ > kIceUpTo ? kIceUpTo : HighestSaturated();
        if (!(above(most) <= kRounding)) return std::nullopt;
        if (const auto near = Near(Guessed(Bulb::Iced), kRealAirLowest, kIceUpTo)) return near;
        if (!(above(kRealAirLowest) >= 0)) return std::nullopt;
        return RootOfFalling(kRealAirLowest, most, kCloseEnough, above);
    }

    std::optional<double> Wet(const std::optional<Guess>& guess) const {
        constexpr double kOffIce = kIceUpTo + 1e-6;
        const auto above = [&](double bulb) { return Above(bulb, LiquidEnthalpy); };
        if (!(t_ > kIceUpTo && above(kIceUpTo) >= -kRounding)) return std::nullopt;
        if (const auto near = Near(guess, kOffIce, kRealAirHighest)) return near;
        const double highest = HighestSaturated();
        if (!(highest > kIceUpTo && above(highest) <= kRounding)) return std::nullopt;
        return RootOfFalling(kIceUpTo, highest, kCloseEnough, above);
    }

    // The highest temperature up to that of the state with saturated air that the model knows.
    double HighestSaturated() const {
        if (EvaluateRealAir(1, t_, p_bar_)) return t_;
        constexpr double kMostVapour = 0.9;  // of the pressure
        return std::min(t_,
                        RealDewPoint(kMostVapour * 1e5 * p_bar_, p_bar_).value_or(kRealAirLowest));
    }

    double t_, x_, enthalpy_, p_bar_;
};

}  // namespace

double CondensedEnthalpy(double t, double p_bar) {
    return t <= kIceUpTo ? IceEnthalpy(t, p_bar) : LiquidEnthalpy(t, p_bar);
}

std::optional<double> AboveWetBulb(double t_wet, double x, double enthalpy, double p_bar) {
    const auto saturated = EvaluateSaturatedAir(t_wet, p_bar);
    if (!saturated) return std::nullopt;
    return Excess(*saturated, x, enthalpy);
}

std::optional<WetBulb> RealWetBulb(double t, double x, double enthalpy, double p_bar) {
    if (!RealAirKnows(t, p_bar)) return std::nullopt;
    return BulbSearch(t, x, enthalpy, p_bar).Find();
}

}  // namespace zandrell
