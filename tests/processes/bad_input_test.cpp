#include <cctype>
#include <cmath>
#include <random>
#include <vector>

#include "process_window.h"

namespace zandrell {
namespace {

constexpr const char* kBadTexts[] = {"",      "letters", "-3",   "0",     "1E300", "1e12", "-1e12",
                                     "> 100", "< 0",     "12,5", "1,2.3", "99.99", "-1",   "1E-300",
                                     "101",   "-273",    "800",  "801",   "&HFF",  "-"};

bool NamesNoNumber(const std::string& text) {
    std::string lower;
    for (const char c : text) {
        lower += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    }
    return lower.find("inf") != std::string::npos || lower.find("nan") != std::string::npos;
}

void ExpectSane(ProcessWindow& window, const std::string& after) {
    Form form{"all"};
    window.point.ListControls(form);
    window.plant.ListControls(form);
    for (const Control* control : form.Controls()) {
        ASSERT_FALSE(NamesNoNumber(control->text)) << control->name << " after " << after;
    }
    for (const Mark* mark : window.overlay.Marks()) {
        ASSERT_TRUE(std::isfinite(mark->left + mark->top)) << mark->name << " after " << after;
    }
    for (const ChartLine* line : window.overlay.Lines()) {
        ASSERT_TRUE(std::isfinite(line->x1 + line->y1 + line->x2 + line->y2))
            << line->name << " after " << after;
    }
    const ProcessFigures& f = window.figures;
    for (const double figure : {f.GesamtLeist, f.LatentLeist, f.SensibelLeist, f.KondensatWasser,
                                f.BefeuchterLeist, f.HeizLeist, f.RaumWasser, f.MischTemp, f.MischX,
                                window.point.ZustandX1, window.point.ZustandX2}) {
        ASSERT_TRUE(std::isfinite(figure)) << after;
    }
}

std::vector<TextField*> PlantFields(PlantPanel& plant) {
    return {&plant.vhAnlage,  &plant.aussenAnt, &plant.vhinnen,   &plant.vhaussen, &plant.tabLuft,
            &plant.PHIAbluft, &plant.Taus,      &plant.PhiAussen, &plant.TZuluft,  &plant.PHIZuluft,
            &plant.tKA,       &plant.phiKanal,  &plant.dtVent1,   &plant.dtVent2};
}

std::vector<TextField*> PointFields(PointPanel& point) {
    return {&point.Temp1,  &point.relF1,  &point.Temp2, &point.relF2,
            &point.LuftM1, &point.LuftM2, &point.Kleist};
}

void RunEverything(ProcessWindow& window) {
    if (!IsPointMode(window.Rechenmodus)) {
        window.OpenPlant();
        window.plant.TakeFlowFromShares();
        window.plant.AnlageBerechnen();
        return;
    }
    for (const TextField* field : PointFields(window.point)) window.Return(*field);
}

class BadInput : public testing::TestWithParam<Calculation> {};

TEST_P(BadInput, OneFieldAtATime) {
    for (std::size_t field = 0; field < 14; ++field) {
        for (const char* text : kBadTexts) {
            ProcessWindow window;
            window.ChooseChart(kCarrier);
            window.SetPlant("10000", "1", "26", "50", "32", "40", "18", "75", "12", "95", "1", "1");
            window.SetStates("20", "50", "12", "60");
            window.point.LuftM1.text = window.point.LuftM2.text = "1000";
            window.Open(GetParam());
            const auto fields = GetParam() == Calculation::Plant ? PlantFields(window.plant)
                                                                 : PointFields(window.point);
            if (field >= fields.size()) return;
            fields[field]->text = text;
            RunEverything(window);
            ExpectSane(window, std::string(fields[field]->name) + " = " + text);
        }
    }
}

// The same window through a thousand inputs, so that what one leaves meets the next.
TEST_P(BadInput, MixedAtRandom) {
    std::mt19937 random(20260130);
    ProcessWindow window;
    window.Open(GetParam());
    const auto fields =
        GetParam() == Calculation::Plant ? PlantFields(window.plant) : PointFields(window.point);
    for (int round = 0; round < 1000; ++round) {
        const bool sensible = random() % 3 == 0;
        auto& text = fields[random() % fields.size()]->text;
        text = sensible ? std::to_string(random() % 40 + 1)
                        : kBadTexts[random() % std::size(kBadTexts)];
        if (random() % 5 == 0) Choose(window.plant.Option3D4, window.plant.Option3D3);
        RunEverything(window);
        ExpectSane(window, "round " + std::to_string(round));
        if (HasFatalFailure()) return;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Modes, BadInput,
    testing::Values(Calculation::StateChange, Calculation::Capacity, Calculation::Mixing,
                    Calculation::Plant, Calculation::Cooler, Calculation::Heater,
                    Calculation::WaterHumidifier, Calculation::SteamHumidifier),
    [](const auto& mode) { return std::to_string(static_cast<int>(mode.param)); });

// Without coefficients every state is refused: nothing is shown and nothing hangs.
TEST(WithoutCoefficients, NothingIsShown) {
    ProcessWindow window;
    window.files.SetDataFolder("/nowhere");
    window.SetPlant("10000", "1", "26", "50", "32", "40", "18", "75", "12", "95", "1", "1");
    window.SetStates("20", "50", "12", "60");
    for (const Calculation mode : {Calculation::Capacity, Calculation::Cooler, Calculation::Heater,
                                   Calculation::WaterHumidifier, Calculation::SteamHumidifier}) {
        window.Open(mode);
        window.Calculate();
    }
    window.OpenPlant();
    EXPECT_EQ(window.point.absF1.text, "");
    EXPECT_EQ(window.point.relF2.text, "60");
    EXPECT_EQ(window.plant.RaumLeist.text, "");
}

}  // namespace
}  // namespace zandrell
