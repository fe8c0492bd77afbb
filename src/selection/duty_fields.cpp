#include "selection/duty_fields.h"

#include "base/delimited_text.h"
#include "base/number_text.h"
#include "base/text_encoding.h"

namespace zandrell {
namespace {

constexpr std::string_view kDutyFile = "selection.dat";

constexpr unsigned Bit(KatalogFamilie family) { return 1U << static_cast<unsigned>(family); }

using D = SelectionDuty;

constexpr unsigned kCoolers = Bit(KatalogFamilie::AirCoolers);
constexpr unsigned kCondensers = Bit(KatalogFamilie::Condensers);
constexpr unsigned kCompressors = Bit(KatalogFamilie::Compressors);
constexpr unsigned kStored = Bit(KatalogFamilie::StoredCapacity);
constexpr unsigned kValves = Bit(KatalogFamilie::RegulatingComponents);
// Their power is known, or estimated.
constexpr unsigned kPowered = kCoolers | kCondensers | kCompressors;

}  // namespace

constexpr std::array<DutyRow, 18> kDutyRows = {{
    {"Capacity", "CapacityLabel", Caption::RefrigeratingCapacity, " /[kW]", &D::capacity},
    {"AddedLoad", "AddedLoadLabel", Caption::AddedLoad, " /[kW]", &D::added_load, kCoolers},
    {"Rejection", "RejectionLabel", Caption::HeatRejection, " /[kW]", &D::heat_rejection,
     kCondensers},
    {"Evaporating", "EvaporatingLabel", Caption::Evaporation, " to /[°C]", &D::evaporating},
    {"Condensing", "CondensingLabel", Caption::Condensation, " tc /[°C]", &D::condensing},
    {"Superheat", "SuperheatLabel", Caption::Superheat, " /[K]", &D::superheat},
    {"Subcooling", "SubcoolingLabel", Caption::Subcooling, " /[K]", &D::subcooling},
    {"LossSuction", "LossSuctionLabel", Caption::PressureDrop, " po /[mbar]", &D::loss_suction,
     kCompressors},
    {"LossDischarge", "LossDischargeLabel", Caption::PressureDrop, " pc /[mbar]",
     &D::loss_discharge, kCompressors},
    {"MeanDifference", "MeanDifferenceLabel", Caption::MeanDifference, " /[K]", &D::mean_difference,
     kCoolers},
    {"RatingBasis", "RatingBasisLabel", Caption::RatingBasis, " /[0-2]", &D::rating_basis,
     kCoolers},
    {"Correction", "CorrectionLabel", Caption::CorrectionFactor, " /[-]", &D::correction,
     kCoolers | kCondensers | kStored},
    {"Efficiency", "EfficiencyLabel", Caption::ReferenceEfficiency, " /[-]", &D::efficiency,
     kCompressors},
    {"OpeningLimit", "OpeningLimitLabel", Caption::OpeningLimit, " /[%]", &D::opening, kValves},
    {"Mains", "MainsLabel", Caption::MainsFrequencyWord, " /[Hz]", &D::mains_frequency,
     kCompressors},
    {"Price", "PriceLabel", Caption::ElectricityPrice, " /[$/kWh]", &D::price, kPowered},
    {"Hours", "HoursLabel", Caption::OperatingHours, " /[h/a]", &D::hours, kPowered},
    {"EmissionFactor", "EmissionFactorLabel", Caption::EmissionFactor, " /[kg/kWh]", &D::emission,
     kPowered},
}};

bool IsAskedFor(const DutyRow& row, KatalogFamilie family) {
    return (row.families & Bit(family)) != 0;
}

bool IsDutyNumber(const std::string& text) {
    const std::string word = Trimmed(text);
    const auto digit = word.find_first_of("0123456789");
    return digit != std::string::npos && digit <= 2 &&
           word.find_first_not_of("0123456789.,-+") == std::string::npos &&
           word.find_last_of("-+") + 1 <= 1;
}

void ReadDuty(const DataFiles& files, SelectionDuty& duty) {
    const FileText file = files.OpenForInput(kDutyFile);
    DelimitedReader items(file.text);
    for (std::string name, value; items.ReadText(name) && items.ReadText(value);) {
        if (name == "Refrigerant") duty.refrigerant = value;
        if (name == "Kind") duty.KatalogArt = RoundToInteger(ToDouble(value)).value_or(0);
        for (const DutyRow& row : kDutyRows) {
            if (row.name == name && IsDutyNumber(value)) duty.*row.value = ToDouble(value);
        }
    }
    if (FamilyOf(duty.KatalogArt) == KatalogFamilie::Unknown) {
        duty.KatalogArt = SelectionDuty().KatalogArt;
    }
}

FileStatus WriteDuty(const DataFiles& files, const SelectionDuty& duty) {
    DelimitedWriter writer;
    const auto item = [&](std::string_view name, const std::string& value) {
        writer.Text(name).Text(value).EndLine();
    };
    item("Kind", TrimmedNumberText(duty.KatalogArt));
    item("Refrigerant", duty.refrigerant);
    for (const DutyRow& row : kDutyRows) item(row.name, TrimmedNumberText(duty.*row.value));
    return files.OpenForOutput(kDutyFile, writer.Result());
}

}  // namespace zandrell
