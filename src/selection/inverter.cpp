#include "selection/inverter.h"

#include <cmath>

#include "base/number_text.h"

namespace zandrell {
namespace {

constexpr double kNominalFrequency = 50;  // Hz

// With two decimals, from the hundredfold figure.
std::optional<double> Shown(double hundredfold) {
    const double cut = std::floor(hundredfold) / 100;
    return std::isfinite(cut) ? std::optional(cut) : std::nullopt;
}

// Too little and too much are yellow, far too little and far too much red.
int CapacityColour(double capacity, double wanted) {
    if (capacity > 1.3 * wanted) return InverterFigures::kRed;
    if (capacity > 1.1 * wanted) return InverterFigures::kYellow;
    if (capacity < 0.85 * wanted) return InverterFigures::kRed;
    return capacity < 0.95 * wanted ? InverterFigures::kYellow : InverterFigures::kGreen;
}

}  // namespace

InverterFigures inverter_rech(int position, SelectionInputs& shared) {
    InverterFigures figures;
    if (shared.InverterNetzFreq <= 0) shared.InverterNetzFreq = kNominalFrequency;
    shared.BetriebsFreq = position;
    const double volume = shared.BetriebsFreq / kNominalFrequency * shared.VolumenNenn;
    figures.Label25 = Shown(volume * 100);
    if (figures.Label25) shared.Label25 = *figures.Label25;
    figures.Label28 =
        Shown((shared.BetriebsFreq / shared.InverterNetzFreq * 100) * shared.LeistungNenn);
    const double required = shared.Label26 * shared.InverterNetzFreq / kNominalFrequency;
    if (0.95 * required < volume) figures.label25_back = InverterFigures::kRed;
    if (shared.LeistungNenn < shared.Label27) figures.label27_back = InverterFigures::kRed;
    AssignFinite(shared.QoFreq, volume / required * shared.QoSoll);
    figures.Label1 = Shown(shared.QoFreq * 100);
    figures.label37_back = CapacityColour(shared.QoFreq, shared.QoSoll);
    return figures;
}

std::optional<InverterFigures> TypedFrequency(double frequency, SelectionInputs& shared,
                                              double& MainsFrequency) {
    if (!(frequency > 0 && frequency < 100)) return std::nullopt;
    shared.BetriebsFreq = frequency;
    if (shared.InverterNetzFreq > 0) MainsFrequency = shared.InverterNetzFreq;
    const double ratio = MainsFrequency / shared.BetriebsFreq;
    InverterFigures figures;
    figures.Label25 = Shown(ratio * shared.VolumenNenn * 100);
    if (figures.Label25) shared.Label25 = *figures.Label25;
    figures.Label28 = Shown(100 * shared.LeistungNenn);
    if (shared.Label26 < ratio * shared.VolumenRef) figures.label25_back = InverterFigures::kRed;
    if (ratio * shared.LeistungNenn < shared.Label27) figures.label27_back = InverterFigures::kRed;
    return figures;
}

}  // namespace zandrell
