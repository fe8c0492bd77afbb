#include "command/scripted_chart.h"

#include <nlohmann/json.hpp>

#include "command/verbs.h"
#include "gtest/gtest.h"
#include "support/test_folder.h"

namespace zandrell {
namespace {

// A copy: painting keeps its curves in the data folder.
const std::filesystem::path& DataCopy() {
    static const TestFolder folder;
    static const bool copied = (folder.CopyWholeSet(), true);
    EXPECT_TRUE(copied);
    return folder.Path();
}

CommandLine ChartLine() {
    CommandLine line;
    line.verb = Verb::Chart;
    line.data = DataCopy();
    line.chart.script = "a.txt";
    return line;
}

TEST(ScriptedChart, StartsAtSizeAndKind) {
    CommandLine line = ChartLine();
    line.chart.kind = kCarrier;
    std::ostringstream dumps;
    ScriptedChart chart(line, "dump CarrierFaktor DiagrammArt\n", dumps);
    std::string error;
    ASSERT_TRUE(chart.Run(error)) << error;
    const auto dump = nlohmann::json::parse(dumps.str());
    // 1600 pixels are 24000 twips: ((24000 + 2600) / 24000 * 2000 + 10) / 580.
    EXPECT_NEAR(dump["CarrierFaktor"].get<double>(), 3.8390805, 1e-7);
    EXPECT_EQ(dump["DiagrammArt"], kCarrier);
    EXPECT_GT(chart.Form().chart.picture.Operations().size(), 100U);
    // The settings keep their own kind.
    ChartSettings settings;
    ReadChartSettings(DataFiles(DataCopy()), settings);
    EXPECT_EQ(settings.DiagrammArt, kMollier);
}

TEST(ScriptedChart, ZoomsLikeAFrameOfTheUser) {
    CommandLine line = ChartLine();
    line.chart.zoom = ZoomFrame{300, 100, 600, 250};
    std::ostringstream dumps;
    ScriptedChart chart(line, "", dumps);
    std::string error;
    ASSERT_TRUE(chart.Run(error)) << error;
    // 1800 units hold 40 g/kg: 45 a gram; the frame is taken 5 % larger: 45 / (600 * 1.05 / 1800).
    EXPECT_NEAR(chart.Form().chart.scale.MassstabX, 128.5714286, 1e-6);
    // 580 / (1.07 * 60) / (250 * 1.05 / 580)
    EXPECT_NEAR(chart.Form().chart.scale.MassstabT, 19.9614301, 1e-6);
    EXPECT_FALSE(chart.Form().chart.controls.ZoomShape.visible);
}

constexpr const char* kWinterPlant =
    "set vhAnlage 10000\nset aussenAnt 3\nreturn aussenAnt\nset tabLuft 22\nset PHIAbluft 45\n"
    "set Taus -10\nset PhiAussen 80\nset tKA 12\nset phiKanal 95\nset TZuluft 24\n"
    "set PHIZuluft 40\nset dtVent1 1\nset dtVent2 0.5\nclick AnlageButt\n";

// The states that the marks and the ends of the lines stand for.
std::vector<ChartState> ProcessStates(Convention convention, int kind) {
    CommandLine line = ChartLine();
    line.chart.kind = kind;
    line.convention = convention;
    std::ostringstream dumps;
    ScriptedChart chart(line, kWinterPlant, dumps);
    std::string error;
    EXPECT_TRUE(chart.Run(error)) << error;
    const MainForm& form = chart.Form();
    std::vector<ChartState> states;
    for (const Mark* mark : form.overlay.Marks()) {
        if (mark->visible) states.push_back(form.chart.scale.StateAt(mark->state));
    }
    for (const auto* run : form.overlay.Lines()) {
        if (!run->visible) continue;
        states.push_back(form.chart.scale.StateAt({run->x1, run->y1}));
        states.push_back(form.chart.scale.StateAt({run->x2, run->y2}));
    }
    return states;
}

TEST(ScriptedChart, TheWinterPlantIsTheSameOnBothChartsUnderExact) {
    const auto mollier = ProcessStates(Convention::Exact, kMollier);
    const auto carrier = ProcessStates(Convention::Exact, kCarrier);
    ASSERT_EQ(mollier.size(), carrier.size());
    EXPECT_GE(mollier.size(), 15U);
    for (std::size_t i = 0; i < mollier.size(); ++i) {
        EXPECT_NEAR(mollier[i].t, carrier[i].t, 1e-9) << i;
        EXPECT_NEAR(mollier[i].x, carrier[i].x, 1e-9) << i;
        EXPECT_LT(mollier[i].x, 12) << "in the fog";
    }
    // The suite leaves three marks and four ends unturned.
    const auto suite = ProcessStates(Convention::Suite, kCarrier);
    ASSERT_EQ(suite.size(), carrier.size());
    int elsewhere = 0;
    for (std::size_t i = 0; i < suite.size(); ++i)
        elsewhere += std::abs(suite[i].t - carrier[i].t) > 5;
    EXPECT_EQ(elsewhere, 7);
}

TEST(ScriptedChart, NamesTheLineOfTheScript) {
    std::ostringstream dumps;
    ScriptedChart chart(ChartLine(), "# start\ndump Rechenmodus\nclick Nowhere\n", dumps);
    std::string error;
    EXPECT_FALSE(chart.Run(error));
    EXPECT_EQ(error, "a.txt: line 3: unknown name: Nowhere");
    EXPECT_EQ(dumps.str(), "{\"Rechenmodus\":0,\"dialogs\":[]}\n");
}

TEST(ScriptedChart, RefusesAChartWithoutCoefficients) {
    CommandLine line = ChartLine();
    line.data = "no/such/folder";
    std::ostringstream dumps;
    ScriptedChart chart(line, "", dumps);
    std::string error;
    EXPECT_FALSE(chart.Run(error));
    EXPECT_TRUE(error.ends_with("no/such/folder/qvdata.dat: missing")) << error;
}

TEST(FormVerb, RunsAScriptAndNamesItsBadLine) {
    CommandLine line = ChartLine();
    std::ostringstream dumps;
    std::string error;
    std::istringstream good("dump ChartDruckBar\n");
    EXPECT_TRUE(RunForm(line, good, dumps, error)) << error;
    EXPECT_EQ(dumps.str(), "{\"ChartDruckBar\":1.013,\"dialogs\":[]}\n");
    std::istringstream bad("\nfrobnicate X\n");
    EXPECT_FALSE(RunForm(line, bad, dumps, error));
    EXPECT_EQ(error, "line 2: unknown act: frobnicate");
}

}  // namespace
}  // namespace zandrell
