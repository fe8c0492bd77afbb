#include "selection/duty_choice.h"

namespace zandrell {
namespace {

std::optional<double> FromZero(double surplus) {
    return surplus >= 0 ? std::optional(surplus) : std::nullopt;
}

bool IsWithinOpening(const UnitFigures& figures, const SelectionInputs& shared) {
    return shared.OeffnungMax <= 0 || figures.opening <= shared.OeffnungMax;
}

std::string NotSet(std::initializer_list<std::pair<const char*, double>> inputs) {
    for (const auto& [name, value] : inputs) {
        if (!(value > 0)) return std::string(name) + " must be above 0";
    }
    return {};
}

}  // namespace

std::string MissingInput(const SelectionInputs& shared) {
    switch (FamilyOf(shared.KatalogArt)) {
        case KatalogFamilie::Compressors:
            return NotSet({{"QoSoll", shared.QoSoll},
                           {"DruckPo", shared.DruckPo},
                           {"DruckPc", shared.DruckPc},
                           {"DruckPo less VerlustPo", shared.DruckPo - shared.VerlustPo / 1000},
                           {"LiefergradBezug", shared.LiefergradBezug},
                           {"Label26", shared.Label26}});
        case KatalogFamilie::RegulatingComponents:
        case KatalogFamilie::LineComponents:
            return NotSet({{"MassenStrom", shared.MassenStrom}, {"KatBezug", shared.KatBezug}});
        case KatalogFamilie::Unknown:
            return "there is no kind " + std::to_string(shared.KatalogArt);
        default:
            return {};
    }
}

std::optional<double> Surplus(const UnitNumbers& unit, const UnitFigures& figures,
                              const SelectionInputs& shared, double largest_pressure_drop) {
    switch (FamilyOf(shared.KatalogArt)) {
        case KatalogFamilie::Unknown:
            return {};
        case KatalogFamilie::RegulatingComponents:
            if (!IsWithinOpening(figures, shared)) return {};
            return FromZero(figures.pressure_drop - unit.KatAntrieb);
        case KatalogFamilie::LineComponents:
            if (unit.KatWert == 0) return {};  // its pressure drop is that of another unit
            return FromZero(largest_pressure_drop - figures.pressure_drop);
        default:
            return FromZero(figures.Q - TargetCapacity(shared));
    }
}

}  // namespace zandrell
