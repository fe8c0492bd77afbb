#include "selection/economizer.h"

#include <cmath>

#include "base/number_text.h"

namespace zandrell {
namespace {

constexpr double kLeastApproach = 8;  // K that half the way to the intermediate liquid loses

double WithEconomizer(double vapour, SelectionInputs& inputs, EconomizerState& eco) {
    double subcooling = 0, flow = 0, pressure_share = 0;
    AssignFinite(subcooling,
                 ((eco.HFluessig - eco.HZwischen) / (2 * eco.CpFluessig)) - kLeastApproach);
    const double difference = vapour - (eco.HFluessig - eco.CpFluessig * subcooling);
    AssignFinite(flow, inputs.QoSoll / difference);
    AssignFinite(eco.EcoLeistung, flow * subcooling * eco.CpFluessig);
    AssignFinite(eco.EcoMassenStrom, eco.EcoLeistung / difference);
    AssignFinite(eco.EcoDruck, std::sqrt(eco.DruckMitte1 * eco.DruckMitte2));
    AssignFinite(pressure_share, eco.DruckMitte2 / eco.EcoDruck);
    AssignFinite(eco.EcoAnteil, (inputs.QoSoll - pressure_share * eco.EcoLeistung) / inputs.QoSoll);
    AssignFinite(flow, flow / eco.EcoAnteil);
    AssignFinite(eco.EcoUnterkuehlung, std::floor(subcooling * 10) / 10);
    return flow;
}

}  // namespace

double MassenStromRechnen(double fallback, double capacity, SelectionInputs& inputs,
                          EconomizerState& eco) {
    const double vapour = eco.HDampf + eco.Ueberhitzung * eco.CpDampf;
    double flow = 0;
    if (eco.EcoStufe >= 1 && eco.EcoStufe <= 9) {
        inputs.QoSoll = capacity;
        flow = WithEconomizer(vapour, inputs, eco);
    } else {
        AssignFinite(
            flow, inputs.QoSoll / (vapour - (eco.HFluessig - eco.CpFluessig * eco.Unterkuehlung)));
    }
    return flow == 0 ? fallback : flow;
}

}  // namespace zandrell
