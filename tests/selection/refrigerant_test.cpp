#include "selection/refrigerant.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>

namespace zandrell {
namespace {

std::string TableText() {
    std::ifstream file(std::string(ZANDRELL_SOURCE_DATA) + "/refrigerants.csv");
    return {std::istreambuf_iterator<char>(file), {}};
}

// Published: R134a boils at -26.07 degC under 1.01325 bar (IIR reference), 0 degC: 2.928 bar, 200
// and 398.6 kJ/kg; R717 0 degC: 4.294 bar, 1262 kJ/kg of evaporation; R744 0 degC: 34.85 bar.
TEST(Refrigerant, AgreesWithPublishedFigures) {
    const auto tables = ParseRefrigerants(TableText());
    ASSERT_EQ(tables.size(), 14U);
    const RefrigerantTables set{FileStatus::Ok, tables};
    const auto r134a = set.Find("R134a")->At(0);
    ASSERT_TRUE(r134a);
    EXPECT_NEAR(r134a->p_dew, 2.928, 0.002);
    EXPECT_NEAR(r134a->h_liquid, 200, 0.01);
    EXPECT_NEAR(r134a->h_vapour, 398.6, 0.1);
    EXPECT_NEAR(*set.Find("R134A")->BubbleTemperature(1.01325), -26.07, 0.03);
    const auto r717 = set.Find("R717")->At(0);
    EXPECT_NEAR(r717->p_dew, 4.294, 0.003);
    EXPECT_NEAR(r717->h_vapour - r717->h_liquid, 1262, 1.5);
    EXPECT_NEAR(set.Find("R744")->At(0)->p_dew, 34.85, 0.02);
}

// A table of every second row, so 4 K wide, against the rows in between; the one in use has half
// the step. The last 12 K below the end of a table, where the critical point is near, count apart.
TEST(Refrigerant, MeetsTheRowsInBetween) {
    std::istringstream lines(TableText());
    std::string header, half;
    std::map<std::string, std::vector<std::string>> rows;
    std::getline(lines, header);
    for (std::string line; std::getline(lines, line);) {
        rows[line.substr(0, line.find(','))].push_back(line);
    }
    for (const auto& [name, all] : rows) {
        for (std::size_t i = 0; i < all.size(); i += 2) half += all[i] + "\n";
    }
    const RefrigerantTables coarse{FileStatus::Ok, ParseRefrigerants(half)};
    const RefrigerantTables fine{FileStatus::Ok, ParseRefrigerants(TableText())};
    constexpr double SaturationState::*kFigures[] = {
        &SaturationState::p_bubble,   &SaturationState::p_dew,     &SaturationState::h_liquid,
        &SaturationState::h_vapour,   &SaturationState::cp_liquid, &SaturationState::cp_vapour,
        &SaturationState::rho_liquid, &SaturationState::rho_vapour};
    // Relative; enthalpies in kJ/kg.
    const double allowed[] = {2.5e-4, 2.5e-4, 0.02, 0.02, 0.012, 0.012, 2e-4, 7e-4};
    const double allowed_at_ends[] = {5e-4, 9e-4, 0.7, 1, 0.2, 0.2, 0.008, 0.015};
    double largest[8] = {}, at_ends[8] = {};
    int compared = 0;
    for (const Refrigerant& table : fine.tables) {
        const Refrigerant* other = coarse.Find(table.Name());
        ASSERT_NE(other, nullptr);
        for (double t = table.LowestTemperature() + 2; t < other->HighestTemperature(); t += 4) {
            const auto exact = table.At(t), read = other->At(t);
            ASSERT_TRUE(exact && read);
            ++compared;
            for (std::size_t i = 0; i < 8; ++i) {
                const double figure = (*exact).*kFigures[i];
                double error = std::abs((*read).*kFigures[i] - figure);
                if (i != 2 && i != 3) error /= figure;
                // A natural spline is bent wrongly at its ends.
                const bool end =
                    t > table.HighestTemperature() - 12 || t < table.LowestTemperature() + 4;
                double& most = end ? at_ends[i] : largest[i];
                most = std::max(most, error);
            }
        }
    }
    EXPECT_GT(compared, 400);
    for (std::size_t i = 0; i < 8; ++i) {
        EXPECT_LT(largest[i], allowed[i]) << i;
        EXPECT_LT(at_ends[i], allowed_at_ends[i]) << i;
    }
}

TEST(Refrigerant, ExtrapolatesNothingAndPassesOverDamage) {
    const auto row = [](const char* t) {
        return std::string("RX,5,") + t + ",1,1,200,400,1.2,0.8,1200,5\n";
    };
    const auto tables =
        ParseRefrigerants("refrigerant,gwp\n" + row("0") + row("2") + "RX,5,3\n" + row("x") +
                          row("1") + row("4") + "RY,1,0,1,1,1,1,1,1,1,1\n");
    ASSERT_EQ(tables.size(), 1U);
    EXPECT_EQ(tables[0].HighestTemperature(), 4);
    EXPECT_EQ(tables[0].Gwp(), 5);
    EXPECT_TRUE(tables[0].At(4));
    for (const double t : {-0.01, 4.01, std::nan("")}) EXPECT_FALSE(tables[0].At(t));
    EXPECT_FALSE(tables[0].BubbleTemperature(2));
    EXPECT_NEAR(tables[0].At(1.3)->rho_liquid, 1200, 1e-9);
    EXPECT_TRUE(ParseRefrigerants("").empty());
}

}  // namespace
}  // namespace zandrell
