#include "printing/chart_print_out.h"

#include <map>
#include <set>

#include "base/number_text.h"
#include "printing_session.h"
#include "processes/state_list.h"

namespace zandrell {
namespace {

using Place = std::pair<double, double>;
using Texts = std::map<Place, std::string>;

// What stands under the chart.
Texts FiguresOf(const Sheet& sheet) {
    Texts texts;
    for (const SheetItem& item : sheet.Items()) {
        const bool figure =
            item.kind == SheetItem::Kind::Text && item.scale == sheet.chart_scale && !item.on_chart;
        if (!figure) continue;
        EXPECT_EQ(item.fit, TextFit::Shrink) << item.text;
        EXPECT_EQ(item.font_size, 10) << item.text;
        EXPECT_TRUE(texts.try_emplace({item.x1, item.y1}, item.text).second) << item.text;
    }
    return texts;
}

// The figures are those of the panels' own tests; here it counts that each stands in its place.
TEST(PrintOut, FiguresOfThePlant) {
    PrintingSession session;
    session.RunPlant();
    session.figures.KondensatWasser = 1.25;  // of a mode before: the plant does not set it
    const auto& f = session.figures;
    ASSERT_GT(f.HeizLeist, 0);
    const Texts expected = {
        {{50, 600}, "Flow air total /[m³/h]: 4000"},
        {{50, 620}, "Flow inner/outer /[m³/h]:  2000/ 2000"},
        {{50, 640}, "Q cooler /[kW] :" + f.KuehlLeistText},
        {{50, 660}, "Q all /[kW] :" + NumberText(f.GesamtLeist)},
        {{50, 680}, "Q latent /[kW] :" + NumberText(f.LatentLeist)},
        {{50, 700}, "Q sensible /[kW] :" + NumberText(f.SensibelLeist)},
        {{50, 720}, "water /[kg/h] : 1.25"},
        {{1000, 620}, "Q humidifier /[kg/h] :" + NumberText(f.BefeuchterLeist)},
        {{1000, 640}, "Q heater  /[kW] :" + NumberText(f.HeizLeist)},
        {{1000, 660}, "water all    /[kg/h] :" + NumberText(f.RaumWasser)},
    };
    EXPECT_EQ(FiguresOf(session.printing.ComposeSheet()), expected);
}

TEST(PrintOut, FiguresOfTwoStates) {
    for (const Calculation mode : {Calculation::Capacity, Calculation::Cooler, Calculation::Heater,
                                   Calculation::WaterHumidifier, Calculation::SteamHumidifier}) {
        PrintingSession session;
        session.RunPoint(mode, "30", "50", mode == Calculation::Heater ? "35" : "21", "60");
        const auto& f = session.figures;
        const auto& p = session.point;
        EXPECT_NE(f.GesamtLeist, 0) << static_cast<int>(mode);
        // The unit of a flow stands behind temperatures and humidities too: the page's own words.
        const Texts expected = {
            {{50, 600}, "Flow air /[m³/h]: 1000"},
            {{690, 600}, "t 1 /[m³/h]: 30"},
            {{690, 620}, "phi 1 /[m³/h]: 50"},
            {{690, 640}, "x 1 /[m³/h]: " + p.absF1.text},
            {{690, 660}, "h 1 /[m³/h]: " + p.enth1.text},
            {{1340, 600}, "t 2 /[m³/h]: " + p.Temp2.text},
            {{1340, 620}, "phi 2 /[m³/h]: " + p.relF2.text},
            {{1340, 640}, "x 2 /[m³/h]: " + p.absF2.text},
            {{1340, 660}, "h 2 /[m³/h]: " + p.enth2.text},
            {{50, 620}, "Q cooler /[kW] :" + f.KuehlLeistText},
            {{50, 640}, "Q all /[kW] :" + NumberText(f.GesamtLeist)},
            {{50, 660}, "Q latent /[kW] :" + NumberText(f.LatentLeist)},
            {{50, 680}, "Q sensible /[kW] :" + NumberText(f.SensibelLeist)},
            {{50, 700}, "water /[kg/h] :" + NumberText(f.KondensatWasser)},
        };
        EXPECT_EQ(FiguresOf(session.printing.ComposeSheet()), expected) << static_cast<int>(mode);
    }
}

// Without two states to tell, and with loads of whatever ran before.
TEST(PrintOut, FiguresOfTheOtherModes) {
    for (const Calculation mode :
         {Calculation::None, Calculation::StateChange, Calculation::Mixing}) {
        PrintingSession session;
        session.RunPoint(Calculation::Capacity, "30", "50", "15", "80");
        session.processes.Rechenmodus = mode;
        const Texts texts = FiguresOf(session.printing.ComposeSheet());
        EXPECT_EQ(texts.size(), 6U) << static_cast<int>(mode);
        EXPECT_EQ(texts.at({50, 600}), "Flow air /[m³/h]: 1000");
        EXPECT_EQ(texts.at({50, 640}), "Q all /[kW] :" + NumberText(session.figures.GesamtLeist));
    }
}

// 2000 m3/h each of room and outside air are mixed 1:1 by dry air, of 10.5 and 12.0 g/kg (26 degC,
// 50 %; 32 degC, 40 %), and leave the coil of 13 degC with 8.9 (95 %): 4000 / 0.861 kg/h of dry air
// leave 4646 * (11.27 - 8.90) / 1000 = 11.0 kg/h there. At 5 degC outside the air does not go over
// it.
TEST(PrintOut, ExactPagesHaveFiguresOfTheirOwnProcessAlone) {
    PrintingSession session;
    session.ChooseChart(kMollier, kWhiteGround, Convention::Exact);
    session.RunPoint(Calculation::Capacity, "30", "50", "15", "80");
    session.processes.Rechenmodus = Calculation::Mixing;
    EXPECT_EQ(FiguresOf(session.printing.ComposeSheet()),
              (Texts{{{50, 600}, "Flow air /[m³/h]: 1000"}}));
    session.RunPlant();
    EXPECT_NEAR(session.figures.KondensatWasser, 11.0, 0.1);
    EXPECT_EQ(FiguresOf(session.printing.ComposeSheet()).at({50, 720}),
              "water /[kg/h] :" + NumberText(session.figures.KondensatWasser));
    session.plant.Taus.text = "5";
    session.plant.AnlageBerechnen();
    const Texts heated = FiguresOf(session.printing.ComposeSheet());
    EXPECT_FALSE(heated.contains({50, 720}));
    EXPECT_TRUE(heated.contains({1000, 620}));
}

TEST(PrintOut, MarksAreBlackAndOnlyWhatIsSeen) {
    PrintingSession session;
    session.ChooseChart(kMollier, kBlackGround);
    session.RunPoint(Calculation::Mixing, "26", "50", "-10", "90");
    session.overlay.PP2.visible = false;
    session.overlay.t2lab.visible = false;
    const Sheet sheet = session.printing.ComposeSheet();
    std::vector<const SheetItem*> circles, lines, labels;
    for (const SheetItem& item : sheet.Items()) {
        if (!item.on_chart) continue;
        if (item.kind == SheetItem::Kind::Circle) circles.push_back(&item);
        if (item.kind == SheetItem::Kind::Line) lines.push_back(&item);
        if (item.kind == SheetItem::Kind::Text) labels.push_back(&item);
    }
    ASSERT_EQ(circles.size(), 2U);
    EXPECT_DOUBLE_EQ(circles[0]->x1, session.overlay.PP1.left + 7);
    EXPECT_DOUBLE_EQ(circles[0]->y1, session.overlay.PP1.top + 7);
    EXPECT_DOUBLE_EQ(circles[0]->radius, 14.0 / 3);
    EXPECT_EQ(circles[0]->line_width, 6);
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_DOUBLE_EQ(lines[0]->x1, session.overlay.ZAeLine.x1);
    EXPECT_DOUBLE_EQ(lines[0]->y2, session.overlay.ZAeLine.y2);
    ASSERT_EQ(labels.size(), 2U);  // of state 1 and of the mixture
    EXPECT_EQ(labels[1]->text, session.overlay.tmLab.text);
    // The paper stays white under a dark screen.
    EXPECT_EQ(sheet.chart.Background(), kWhite);
    EXPECT_EQ(sheet.chart.Foreground(), kBlack);
}

TEST(PrintOut, HeadingNamesKindAndPressure) {
    PrintingSession session;
    EXPECT_EQ(session.printing.ComposeSheet().title,
              "Zandrell 10.11.2 - Mollier chart, pressure : 1.013 bar");
    session.ChooseChart(kCarrier);
    EXPECT_EQ(session.printing.ComposeSheet().title,
              "Zandrell 10.11.2 - Carrier psychrometric chart, pressure : 1.013 bar");
}

// There is one way of drawing the chart: the page's chart is the screen's, moved scales apart.
TEST(PrintOut, ChartOnPaperIsTheChartOnScreen) {
    for (const int kind : {kMollier, kCarrier}) {
        PrintingSession session;
        session.ChooseChart(kind);
        const auto curve_points = [](const RecordingCanvas& picture) {
            std::vector<std::pair<double, double>> points;
            for (const auto& operation : picture.Operations()) {
                const bool curve = operation.stroke == Stroke::Line &&
                                   operation.colour == kDarkRed && operation.x1 < 1500;
                if (curve) points.emplace_back(operation.x1, operation.y1);
            }
            return points;
        };
        const auto on_screen = curve_points(session.chart.picture);
        const int revision = session.chart.picture.Revision();
        const Sheet sheet = session.printing.ComposeSheet();
        EXPECT_GT(on_screen.size(), 10U);
        EXPECT_EQ(curve_points(sheet.chart), on_screen);
        EXPECT_EQ(session.chart.picture.Revision(), revision) << "the screen is left alone";
    }
}

TEST(PrintOut, AZoomedChartPrintsZoomed) {
    PrintingSession session;
    auto& frame = session.chart.controls.ZoomShape;
    frame.left = 300;
    frame.top = 150;
    frame.width = 500;
    frame.height = 200;
    session.Paint(ChartTask::PaintZoomed, 1.05 * 500 / 1800, 1.05 * 200 / 580);
    const double scale = session.chart.scale.MassstabX;
    const Sheet sheet = session.printing.ComposeSheet();
    EXPECT_DOUBLE_EQ(session.chart.scale.MassstabX, scale);
    EXPECT_GT(scale, 100);
    EXPECT_GT(sheet.chart.Operations().size(), 100U);
}

// On demand, and never without a process.
TEST(PrintOut, StatesOnASecondPage) {
    PrintingSession session;
    session.shared.prints_states = true;
    session.shared.PaperOrientation = 2;
    EXPECT_TRUE(session.printing.ComposeSheet().further.empty());
    session.RunPlant();
    const Sheet sheet = session.printing.ComposeSheet();
    ASSERT_EQ(sheet.further.size(), 1U);
    const Sheet& page = sheet.further[0];
    EXPECT_TRUE(page.landscape);
    const StateList list = ListStates(session.processes);
    ASSERT_GT(list.rows.size(), 5U);
    std::multiset<std::string> printed;
    for (const SheetItem& item : page.Items()) {
        if (item.kind == SheetItem::Kind::Text) printed.insert(item.text);
    }
    for (const auto& row : list.rows) {
        for (std::size_t i = 1; i < row.size(); ++i)
            EXPECT_TRUE(printed.contains(row[i])) << row[i];
    }
    EXPECT_TRUE(printed.contains(session.captions[Caption::Page] + std::string(ColonSuffix) + "2"));
    session.shared.prints_states = false;
    EXPECT_TRUE(session.printing.ComposeSheet().further.empty());
}

}  // namespace
}  // namespace zandrell
