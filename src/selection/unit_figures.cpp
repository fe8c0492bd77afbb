#include "selection/unit_figures.h"

#include <array>
#include <cmath>

#include "base/number_text.h"
#include "base/text_encoding.h"
#include "selection/compressor.h"

namespace zandrell {
namespace {

constexpr double kFactorWhenNotSet = 1.037;
constexpr double kPowerWhenNotStored = 0.001;  // kW
constexpr double kSensibleShare = 1.23;        // total over sensible capacity of an air cooler
constexpr double kReferenceFinSpacing = 4.5;   // mm
constexpr int kEfficiencyPasses = 3;

// Between a capacity that is rated on the mean and on the inlet temperature difference.
double BasisFactor(const UnitNumbers& unit, const SelectionInputs& shared) {
    if (!EqualIgnoringCase(shared.ModuleTag, "MOLK")) return 1;
    const auto is_first = [](int basis) { return basis == 0 || basis == 1; };
    if (unit.KatBasis == 2 && is_first(shared.KuehlerBasis)) return 1.666;
    return is_first(unit.KatBasis) && shared.KuehlerBasis == 2 ? 0.6 : 1;
}

double PowerForClass(const UnitNumbers& unit) {
    return unit.KatAntrieb <= 0 ? kPowerWhenNotStored : unit.KatAntrieb;
}

void CalculateCooler(const UnitNumbers& unit, const SelectionInputs& shared, UnitFigures& figures) {
    AssignFinite(figures.Q, unit.KatLeistung * shared.LeistFaktor * BasisFactor(unit, shared));
    const double per_power = (unit.KatLeistung / kSensibleShare) / PowerForClass(unit);
    const double spacing = std::sqrt(unit.KatLamelle / kReferenceFinSpacing);
    AssignFinite(figures.class_ratio, std::floor(10 * per_power * spacing) / 10);
}

void CalculateCondenser(const UnitNumbers& unit, const SelectionInputs& shared,
                        UnitFigures& figures) {
    AssignFinite(figures.Q, unit.KatLeistung * shared.LeistFaktor);
    AssignFinite(figures.class_ratio, std::floor(10 * unit.KatLeistung / PowerForClass(unit)) / 10);
}

void CalculateStoredCapacity(const UnitNumbers& unit, SelectionInputs& shared,
                             UnitFigures& figures) {
    const double stored = unit.KatLeistung == 0 ? unit.KatAntrieb : unit.KatLeistung;
    if (shared.LeistFaktor == 0) shared.LeistFaktor = kFactorWhenNotSet;
    AssignFinite(figures.Q, stored * shared.LeistFaktor);
}

// Three passes without a test whether they have settled.
double EfficiencyAtVolume(double volume, const SelectionInputs& shared) {
    const CompressorKind kind{shared.VerdichterArt, shared.VerdichterStufe, shared.KaelteMittel};
    double efficiency = shared.LiefergradBezug;
    for (int pass = 0; pass < kEfficiencyPasses; ++pass) {
        efficiency = VerdichterWirkungsgrad(shared.DruckPc, shared.VerlustPc, shared.DruckPo,
                                            shared.VerlustPo, volume * efficiency, kind);
    }
    return efficiency;
}

void CalculateCompressor(const UnitNumbers& unit, SelectionInputs& shared, UnitFigures& figures) {
    SetCompressorKind(unit.code, shared);
    const double delivered = unit.KatWert * EfficiencyAtVolume(unit.KatWert, shared);
    AssignFinite(figures.Q,
                 (delivered / (shared.Label26 * shared.LiefergradBezug)) * shared.QoSoll);
}

// The kv value is the flow in m3/h of water (1000 kg/m3) at 1 bar, so dp = (V/kv)^2 rho/1000 bar
// with V = 3600 m/rho; 3600^2 = 2.592E9 / (2 x 100) in mbar.
void CalculateLine(const UnitNumbers& unit, const SelectionInputs& shared, UnitFigures& figures) {
    const double m = shared.MassenStrom;
    AssignFinite(figures.pressure_drop, ((2.592e9 / (unit.KatWert * unit.KatWert)) * (m * m)) /
                                            (2 * shared.KatBezug) / 100);
}

void CalculateRegulatingLine(const UnitNumbers& unit, const SelectionInputs& shared,
                             UnitFigures& figures) {
    CalculateLine(unit, shared, figures);
    AssignFinite(figures.opening, std::sqrt(unit.KatAntrieb / figures.pressure_drop) * 100);
}

struct ClassLimit {
    std::string_view name;
    double from_ratio;
};

using ClassLimits = std::array<ClassLimit, 6>;

constexpr ClassLimits kCoolerClasses = {
    {{"A++", 45}, {"A+", 35}, {"A", 27}, {"B", 21}, {"C", 16}, {"D", 12}}};
constexpr ClassLimits kCondenserClasses = {
    {{"A++", 240}, {"A+", 160}, {"A", 110}, {"B", 70}, {"C", 45}, {"D", 30}}};

}  // namespace

UnitNumbers ReadUnit(const KatalogSatz& record) {
    using enum KatalogFeld;
    UnitNumbers unit;
    unit.KatWert = record.Number(KatWert);
    unit.KatWert2 = record.Number(KatWert2);
    unit.KatLeistung = record.Number(KatLeistung);
    unit.KatAntrieb = record.Number(KatAntrieb);
    unit.KatLamelle = record.Number(KatLamelle);
    unit.KatBasis = RoundToInteger(record.Number(KatBasis)).value_or(0);
    unit.code = Trimmed(record[KatLeistung]);
    return unit;
}

void CalculateUnit(const UnitNumbers& unit, SelectionInputs& shared, UnitFigures& figures) {
    switch (FamilyOf(shared.KatalogArt)) {
        case KatalogFamilie::AirCoolers:
            return CalculateCooler(unit, shared, figures);
        case KatalogFamilie::Condensers:
            return CalculateCondenser(unit, shared, figures);
        case KatalogFamilie::StoredCapacity:
            return CalculateStoredCapacity(unit, shared, figures);
        case KatalogFamilie::Compressors:
            return CalculateCompressor(unit, shared, figures);
        case KatalogFamilie::RegulatingComponents:
            return CalculateRegulatingLine(unit, shared, figures);
        case KatalogFamilie::LineComponents:
            return CalculateLine(unit, shared, figures);
        case KatalogFamilie::Unknown:
            return;
    }
}

std::string_view EfficiencyClass(KatalogFamilie family, double class_ratio) {
    const bool cooler = family == KatalogFamilie::AirCoolers;
    if (!cooler && family != KatalogFamilie::Condensers) return {};
    for (const auto& limit : cooler ? kCoolerClasses : kCondenserClasses) {
        if (class_ratio >= limit.from_ratio) return limit.name;
    }
    return "E";
}

double TargetCapacity(const SelectionInputs& shared) {
    switch (FamilyOf(shared.KatalogArt)) {
        case KatalogFamilie::AirCoolers:
            return shared.QoSoll + shared.QoZusatz;
        case KatalogFamilie::Condensers:
            return shared.KatBezug;
        case KatalogFamilie::Compressors:
        case KatalogFamilie::StoredCapacity:
            return shared.QoSoll;
        default:
            return 0;
    }
}

}  // namespace zandrell
