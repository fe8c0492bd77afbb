#include "selection/compressor.h"

#include <cmath>
#include <string>

#include "base/number_text.h"
#include "base/text_encoding.h"

namespace zandrell {
namespace {

constexpr double kMillibarPerBar = 1000;
constexpr double kBendOfRatio = 4.85;     // the pressure ratio at which the straight lines meet
constexpr double kSmallestFullSize = 6;   // below it the gaps of a machine cost efficiency
constexpr double kLossPerSizeStep = 1.8;  // per cent

// The factor that falls from 1 + 1/divisor at ratio 0 through 1 at the bend.
double RatioFactor(double ratio, double divisor) {
    return 1 + ((kBendOfRatio - ratio) / kBendOfRatio) / divisor;
}

double EfficiencyOfFirstFamily(double ratio, double size) {
    const double divisor = ratio > kBendOfRatio ? 6.5 : 10;
    return RatioFactor(ratio, divisor) * 0.796 * (1 - 1 / (1.2 * std::pow(size, 0.92) + 10));
}

double EfficiencyOfSecondFamily(double ratio, double size, int VerdichterArt,
                                const std::string& refrigerant) {
    double base = VerdichterArt == 3 ? 0.835 : 0.855;
    if (refrigerant == "R22" || refrigerant == "R407C") base = 0.855;
    const bool steep = ratio > kBendOfRatio;
    const double factor = steep ? base : base + (kBendOfRatio - ratio) / 50;
    return RatioFactor(ratio, steep ? 85 : 30) * factor * (1 - 1 / (7 * size + 10));
}

double StepFactor(int VerdichterStufe) {
    if (VerdichterStufe == 1) return 1.03;
    return VerdichterStufe == 3 ? 0.982 : 1.02;
}

double RefrigerantFactor(const std::string& refrigerant) {
    if (refrigerant == "CO2" || refrigerant == "R744") return 0.88;
    return refrigerant == "R23" ? 0.83 : 1;
}

}  // namespace

double VerdichterWirkungsgrad(double pc, double dpc, double po, double dpo, double capacity,
                              const CompressorKind& kind) {
    const std::string refrigerant = UpperCase(Trimmed(kind.KaelteMittel));
    double ratio = 0;
    AssignFinite(ratio, (pc + dpc / kMillibarPerBar) / (po - dpo / kMillibarPerBar));
    double efficiency = 0;
    if (kind.VerdichterArt == 0 || kind.VerdichterArt == 1) {
        AssignFinite(efficiency, EfficiencyOfFirstFamily(ratio, capacity));
    } else if (kind.VerdichterArt >= 2 && kind.VerdichterArt <= 5) {
        AssignFinite(efficiency,
                     EfficiencyOfSecondFamily(ratio, capacity, kind.VerdichterArt, refrigerant));
    }
    AssignFinite(efficiency, efficiency * StepFactor(kind.VerdichterStufe));
    AssignFinite(efficiency, efficiency * RefrigerantFactor(refrigerant));
    if (capacity <= kSmallestFullSize) {
        const double missing = kSmallestFullSize - capacity;
        AssignFinite(efficiency, efficiency * (1 - kLossPerSizeStep * missing / 100));
    }
    return efficiency;
}

void SetCompressorKind(std::string_view code, SelectionInputs& shared) {
    const std::string trimmed = UpperCase(Trimmed(code));
    if (trimmed.empty()) return;
    shared.VerdichterArt = trimmed.front() == 'S' ? 3 : 1;
    const char step = trimmed.back();
    shared.VerdichterStufe = step >= '1' && step <= '3' ? step - '0' : 2;
}

}  // namespace zandrell
