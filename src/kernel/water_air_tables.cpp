#include "kernel/water_air_tables.h"

#include <algorithm>
#include <cmath>

#include "base/delimited_text.h"
#include "base/number_text.h"
#include "kernel/state_table.h"

namespace zandrell {
namespace {

// Fills tables in the order of the file and counts what it found.
class TableReader {
  public:
    explicit TableReader(std::string_view text) : reader_(text) {}

    void Number(double& target) {
        if (reader_.ReadNumber(target)) ++count_;
    }
    template <typename Row>
    void Elements(Row& row, std::size_t first, std::size_t last) {
        for (std::size_t i = first; i <= last; ++i) Number(row[i]);
    }
    int Count() const { return count_; }

  private:
    DelimitedReader reader_;
    int count_ = 0;
};

// The file has no numbers of terms in front of the coefficients, so they are fixed here.
constexpr std::array<std::size_t, 9> kTermsInFile{0, 2, 3, 2, 2, 3, 2, 2, 2};
constexpr std::array<std::size_t, 9> kDenominatorTermsInFile{0, 0, 0, 0, 0, 0, 1, 1, 2};
constexpr std::size_t kFirstFraction = 6, kLastSum = 8;

void ReadSteamRows(TableReader& reader, WaterAirTables& tables) {
    reader.Elements(tables.BWasser[0], 0, 5);
    for (std::size_t mu = 1; mu <= kLastSum; ++mu) {
        reader.Elements(tables.BWasser[mu], 1, kTermsInFile[mu]);
    }
    reader.Elements(tables.BWasser[9], 0, 6);
    for (std::size_t mu = kFirstFraction; mu <= kLastSum; ++mu) {
        reader.Elements(tables.NennerWasser[mu], 1, kDenominatorTermsInFile[mu]);
    }
}

std::size_t TermCount(double stated, std::size_t most) {
    const int count = RoundToInteger(stated).value_or(0);
    return static_cast<std::size_t>(std::clamp(count, 0, static_cast<int>(most)));
}

bool CanBePlanned(double exponent) {
    return exponent >= 0 && exponent < ExponentPlan::kExponentsEnd &&
           exponent == std::floor(exponent);
}

template <typename Visit>
void VisitTerms(const WaterAirTables& tables, Visit visit) {
    for (std::size_t mu = 1; mu <= kLastSum; ++mu) {
        const std::size_t terms = TermCount(tables.ExpZ[mu][0], 3);
        for (std::size_t nu = 1; nu <= terms; ++nu) visit(true, mu, nu, tables.ExpZ[mu][nu]);
    }
    for (std::size_t mu = kFirstFraction; mu <= kLastSum; ++mu) {
        const std::size_t terms = TermCount(tables.ExpX[mu][0], 2);
        for (std::size_t nu = 1; nu <= terms; ++nu) visit(false, mu, nu, tables.ExpX[mu][nu]);
    }
}

}  // namespace

void PlanExponents(WaterAirTables& tables) {
    ExponentPlan plan;
    VisitTerms(tables, [&plan](bool, std::size_t, std::size_t, double exponent) {
        plan.whole_exponents = plan.whole_exponents && CanBePlanned(exponent);
    });
    VisitTerms(tables, [&plan](bool numerator, std::size_t mu, std::size_t nu, double exponent) {
        (numerator ? plan.z : plan.x)[mu][nu] =
            plan.whole_exponents ? static_cast<std::uint8_t>(exponent) : 0;
    });
    tables.plan = plan;
    tables.states.reset();
}

WaterAirTables ReadWaterAirTables(std::string_view text) {
    TableReader reader(text);
    WaterAirTables tables;
    reader.Elements(tables.KSatt, 1, 14);
    reader.Elements(tables.LGrenz, 0, 2);
    ReadSteamRows(reader, tables);
    for (double* scalar : {&tables.ExpoB, &tables.IdealI1, &tables.RefDruck, &tables.RefVolumen,
                           &tables.RefTemp, &tables.ReserveWertA, &tables.ReserveWertB}) {
        reader.Number(*scalar);
    }
    for (std::size_t mu = 1; mu <= kLastSum; ++mu) reader.Elements(tables.ExpZ[mu], 0, 3);
    for (std::size_t mu = kFirstFraction; mu <= kLastSum; ++mu) {
        reader.Elements(tables.ExpX[mu], 0, 2);
    }
    for (std::size_t i = 0; i < tables.CpDampf.size(); ++i) {
        reader.Number(tables.CpDampf[i]);
        reader.Number(tables.CpLuft[i]);
    }
    tables.numbers_read = reader.Count();
    PlanExponents(tables);
    if (tables.Complete()) tables.states = std::make_shared<const StateTable>(tables);
    return tables;
}

}  // namespace zandrell
