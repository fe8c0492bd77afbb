#include <gtest/gtest.h>

#include <algorithm>

#include "base/number_text.h"
#include "canvas/palette.h"
#include "painted_chart.h"

namespace zandrell {
namespace {

// Mollier, first settings: x = 35 + 45 X, y = 379 - 9.034267913 t.
double UnitsOfX(double x) { return 35 + 45 * x; }
double UnitsOfT(double t) { return 379 - 9.0342679128 * t; }

// Moist air from textbook relations, independent of our kernel: Magnus saturation pressure over
// water (hPa), ideal mixture, h = 1.006 t + x (2501 + 1.86 t).
double TextbookSaturationHumidity(double t) {
    const double p = 6.112 * std::exp(17.62 * t / (243.12 + t));
    return 622 * p / (1013 - p);
}
double TextbookSaturationEnthalpy(double t) {
    return 1.006 * t + TextbookSaturationHumidity(t) / 1000 * (2501 + 1.86 * t);
}
double TextbookTemperatureAtSaturation(double h) {
    double low = -40, high = 60;
    for (int i = 0; i < 60; ++i) {
        const double middle = (low + high) / 2;
        (TextbookSaturationEnthalpy(middle) < h ? low : high) = middle;
    }
    return low;
}

TEST(HumidityCurves, PassThroughPublishedStates) {
    PaintedChart chart;
    chart.Paint();
    // States computed independently at 1.013 bar; curve points stand every 2 K.
    const struct {
        double t, x;
        int colour;
    } cases[] = {
        {20, 14.70120866, kDarkRed}, {20, 7.264747888, kLightBlue}, {-10, 1.763842834, kDarkRed}};
    for (const auto& c : cases) {
        const auto& all = chart.engine.picture.Operations();
        const bool found = std::any_of(all.begin(), all.end(), [&](const CanvasOperation& o) {
            return o.stroke == Stroke::Line && o.colour == c.colour &&
                   std::abs(o.x1 - UnitsOfX(c.x)) < 1e-4 && std::abs(o.y1 - UnitsOfT(c.t)) < 1e-4;
        });
        EXPECT_TRUE(found) << c.t << " degC, " << c.x << " g/kg";
    }
    // Ten curves from -20 to 42 degC in steps of 2: 31 lines each.
    const auto count = [&](int colour) {
        const auto& all = chart.engine.picture.Operations();
        return std::count_if(all.begin(), all.end(), [&](const CanvasOperation& o) {
            return o.stroke == Stroke::Line && o.colour == colour;
        });
    };
    EXPECT_EQ(count(kDarkRed), 31);
    EXPECT_EQ(count(kLightBlue), 9 * 31);
}

TEST(HumidityCurves, LabelsStandWhereTheCurveLeavesTheTop) {
    PaintedChart chart;
    chart.Paint();
    // 42 degC is the first point above the top (379 - 379.4 < 0), 40 degC the point before it. At
    // 40 degC the published saturation humidity is 49.14 g/kg (ours .3 to .45 % lower); 10 % of the
    // vapour density is about 4.6 g/kg: label at 35 + 45 * 4.6 - 40 + 2.
    const auto* ten = FindText(chart.engine.picture, " 10%");
    ASSERT_NE(ten, nullptr);
    EXPECT_NEAR(ten->x1, 35 + 45 * 4.6 - 38, 3);
    EXPECT_EQ(ten->y1, 2);
    for (int percent = 10; percent <= 90; percent += 10) {
        EXPECT_NE(FindText(chart.engine.picture, NumberText(percent) + "%"), nullptr) << percent;
    }
    PaintedChart carrier("1.013,-20,40,0,40,0,1,1");
    carrier.Paint();
    // Carrier: .92 * 2000, 560 - (35 + 45 * 4.6) / 3.839 - 10 + 2 = 489
    const auto* label = FindText(carrier.engine.picture, " 10%");
    ASSERT_NE(label, nullptr);
    EXPECT_EQ(label->x1, 1840);
    EXPECT_NEAR(label->y1, 489, 1);
}

TEST(EnthalpyLines, RunFromTheDryEdgeToSaturationAndOnIntoTheFog) {
    PaintedChart chart;
    chart.Paint();
    const auto& picture = chart.engine.picture;
    for (const int h : {-10, 0, 10, 30, 50, 90}) {
        const auto* label = FindText(picture, NumberText(h) + " kJ/kg");
        ASSERT_NE(label, nullptr) << h;
        const double t = TextbookTemperatureAtSaturation(h);
        EXPECT_NEAR(label->y1 + 5, UnitsOfT(t), 0.15 * 9.03) << h;
        EXPECT_NEAR(label->x1 - 200, UnitsOfX(TextbookSaturationHumidity(t)),
                    45 * 0.012 * std::abs(t) + 3)
            << h;
        // the extension line of a tenth of the canvas
        EXPECT_NE(
            FindLine(picture, label->x1 - 200, label->y1 + 5, label->x1, label->y1 + 5, kGrey),
            nullptr);
    }
    // h = 30 starts at x = 0 at about 30 / 1.006 degC; h = 50 there would lie above the top and is
    // cut where the straight line from (35, y) to saturation crosses y = 0.
    const auto starts_at_dry_edge = [&](double t) {
        return std::any_of(picture.Operations().begin(), picture.Operations().end(),
                           [&](const CanvasOperation& o) {
                               return o.colour == kGrey && std::abs(o.x1 - 35) < 1e-9 &&
                                      std::abs(o.y1 - UnitsOfT(t)) < 1 && o.x2 > 36;
                           });
    };
    EXPECT_TRUE(starts_at_dry_edge(30 / 1.006));
    EXPECT_TRUE(starts_at_dry_edge(0));
    EXPECT_FALSE(starts_at_dry_edge(50 / 1.006));
    const auto clipped = std::count_if(
        picture.Operations().begin(), picture.Operations().end(),
        [](const CanvasOperation& o) { return o.colour == kGrey && o.y1 == 0 && o.y2 > 0; });
    EXPECT_GE(clipped, 8) << "50 to 140 kJ/kg start at the top";
}

TEST(EnthalpyLines, StepsAndThinningFollowTheRange) {
    const struct {
        const char* settings;
        int drawn, left_out;
    } cases[] = {
        {"1.013,-20,40,0,40,0,0,1", 70, 65},
        {"1.013,-20,40,0,30,0,0,1", 65, 63},
        {"1.013,-20,40,0,9,0,0,1", 24, 23},
        {"1.013,-20,60,0,120,0,0,1", 60, 70},
    };
    for (const auto& c : cases) {
        PaintedChart chart(c.settings);
        chart.Paint();
        EXPECT_NE(FindText(chart.engine.picture, NumberText(c.drawn) + " kJ/kg"), nullptr)
            << c.settings;
        EXPECT_EQ(FindText(chart.engine.picture, NumberText(c.left_out) + " kJ/kg"), nullptr)
            << c.settings;
    }
    // Saturated air of 40 + 2 degC holds about 170 kJ/kg: lines beyond have no place in the range.
    PaintedChart chart;
    chart.Paint();
    EXPECT_EQ(FindText(chart.engine.picture, " 200 kJ/kg"), nullptr);
}

TEST(DensityLines, LieWhereTheGasLawPutsThem) {
    PaintedChart chart;
    chart.Paint();
    for (const double density : {1.35, 1.3, 1.25, 1.2, 1.15}) {
        const auto* label = FindText(chart.engine.picture, NumberText(density) + " kg/m³");
        ASSERT_NE(label, nullptr) << density;
        // Dry air at 1.013 bar has that density at 101300 / (287.04 rho) - 273.15; at saturation
        // the vapour (lighter by 18.015 / 28.96) makes it a little colder.
        const double dry = 101300 / (287.04 * density) - 273.15;
        const auto& all = chart.engine.picture.Operations();
        const bool starts = std::any_of(all.begin(), all.end(), [&](const CanvasOperation& o) {
            return o.colour == kGrey && std::abs(o.x1 - 35) < 1e-9 &&
                   std::abs(o.y1 - UnitsOfT(dry)) < 1.5 && std::abs(o.x2 - label->x1) < 1e-6;
        });
        EXPECT_TRUE(starts) << density;
        EXPECT_GT(label->y1, UnitsOfT(dry)) << density;
    }
}

TEST(PrinterCurves, WidthsAndLimits) {
    PaintedChart chart;
    chart.Paint();
    chart.PaintOnPrinter();
    int thin = 0, thick = 0;
    for (const auto& o : chart.paper.Operations()) {
        if (o.stroke != Stroke::Line) continue;
        if (o.colour == kLightBlue && o.width == 2) ++thin;
        if (o.colour == kDarkRed && o.width == 6) ++thick;
        EXPECT_LT(std::max(o.x1, o.x2), 3000);
    }
    EXPECT_EQ(thin, 9 * 31);
    EXPECT_EQ(thick, 31);
    EXPECT_NE(FindText(chart.paper, " 60 kJ/kg"), nullptr);
    EXPECT_EQ(FindText(chart.paper, " 140 kJ/kg"), nullptr)
        << "its extension line passes .93 of the width";
    EXPECT_NE(FindText(chart.paper, " 1.2 kg/m³"), nullptr);
    EXPECT_EQ(FindText(chart.paper, " 1.25 kg/m³"), nullptr) << "below 270 units";
}

TEST(CurveCache, ServesTheSamePictureAndFollowsTheSettings) {
    PaintedChart chart;
    chart.Paint();
    const auto cold = chart.engine.picture.Operations();
    const std::string file = chart.folder.Read("qv_wert.dat");
    EXPECT_TRUE(file.starts_with("1.013,-20,40,0,40,0,\"\",\"\",\"\",\"\",\"\"\r\n-20,"))
        << file.substr(0, 60);
    EXPECT_EQ(std::count(file.begin(), file.end(), '\n'), 1 + 10 * 32);
    chart.Paint();
    const auto& warm = chart.engine.picture.Operations();
    ASSERT_EQ(warm.size(), cold.size());
    for (std::size_t i = 0; i < cold.size(); ++i) {
        ASSERT_NEAR(warm[i].x1, cold[i].x1, 1e-9);
        ASSERT_EQ(warm[i].text, cold[i].text);
    }
    EXPECT_EQ(chart.folder.Read("qv_wert.dat"), file) << "a good cache is not written again";

    // What stands in a file with the right key is what is drawn.
    std::string marked = file;
    const auto first = marked.find("\r\n-20,") + 2;
    marked.replace(first, marked.find("\r\n", first) - first, "-20,9,0");
    chart.folder.Write("qv_wert.dat", marked);
    chart.Paint();
    const auto& drawn = chart.engine.picture.Operations();
    EXPECT_TRUE(std::any_of(drawn.begin(), drawn.end(), [](const CanvasOperation& o) {
        return o.colour == kLightBlue && std::abs(o.x1 - UnitsOfX(9)) < 1e-6 &&
               std::abs(o.y1 - UnitsOfT(-20)) < 1e-6;
    }));
    EXPECT_EQ(chart.folder.Read("qv_wert.dat"), marked);

    chart.folder.Write("qv_par.dat", "0.95,-10,40,0,40,0,0,1");
    chart.Paint();
    EXPECT_TRUE(chart.folder.Read("qv_wert.dat").starts_with(".95,-10,40,"));
}

TEST(CurveCache, ABrokenFileNeitherStopsNorSpreads) {
    for (const std::string& content :
         {std::string(), std::string("1.013,-20,40,0,40,0"), std::string(3000, '\xFF'),
          std::string("1.013,-20,40,0,40,0,\"\",\"\",\"\",\"\",\"\"\r\n-20,1e999,nan")}) {
        PaintedChart chart;
        chart.folder.Write("qv_wert.dat", content);
        chart.Paint();
        for (const auto& o : chart.engine.picture.Operations()) {
            ASSERT_TRUE(std::isfinite(o.x1 + o.y1 + o.x2 + o.y2));
        }
    }
}

TEST(Painting, WithoutCoefficientsTheGridStandsAndTheCacheIsLeftAlone) {
    PaintedChart chart;
    std::filesystem::remove(chart.folder / "qvdata.dat");
    chart.folder.Write("qv_wert.dat", "kept");
    chart.Paint();
    EXPECT_TRUE(FindText(chart.engine.picture, "t/[°C]"));
    EXPECT_EQ(chart.folder.Read("qv_wert.dat"), "kept");
    chart.ReadAt(500, 300);
    EXPECT_EQ(chart.read_out.relF.text, "-");
}

TEST(Painting, ColourSchemes) {
    PaintedChart chart("1.013,-20,40,0,40,0,0,0");
    chart.Paint();
    EXPECT_EQ(chart.engine.picture.Background(), kBlack);
    EXPECT_EQ(chart.engine.picture.Foreground(), kWhite);
    EXPECT_EQ(chart.overlay.ZAeLine.colour, kYellow);
    EXPECT_EQ(chart.overlay.tmLab.colour, kYellow);
    chart.folder.Write("qv_par.dat", "1.013,-20,40,0,40,0,0,1 ");
    for (int skin = 0; skin <= 6; ++skin) {
        chart.shared.SkinNumber = skin;
        chart.Paint();
        const bool grey = skin >= 2 && skin <= 5;
        EXPECT_EQ(chart.engine.picture.Background(), grey ? kLightGreyValue : kWhite) << skin;
    }
    EXPECT_EQ(chart.overlay.pp9.colour, kBlack);
}

}  // namespace
}  // namespace zandrell
