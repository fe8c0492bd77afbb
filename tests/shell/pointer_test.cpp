// The states of the pointer on the chart: who owns it, what a press, a move and a release do.
#include <gtest/gtest.h>

#include "base/number_text.h"
#include "script_session.h"

namespace zandrell {
namespace {

constexpr const char* kStates =
    "set Temp1 30\nset relF1 40\nset Temp2 20\nset relF2 50\nset LuftM1 1000\n";

std::string PointerAct(const char* kind, double x, double y) {
    return std::string("pointer ")
        .append(kind)
        .append(" ")
        .append(TrimmedNumberText(x))
        .append(" ")
        .append(TrimmedNumberText(y))
        .append("\n");
}

// A press on the middle of a mark as a dump shows it.
std::string PressOn(const Json& dump, const char* mark) {
    const Json& at = dump.at(mark);
    return PointerAct("press", at["left"].get<double>() + 6, at["top"].get<double>() + 6);
}

TEST(Pointer, ZoomFrameThroughAllItsStates) {
    ScriptSession session;
    const auto dumps = session.Run(
        "pointer press 500 100\ndump\n"
        "pointer move 1400.7 390.9\ndump\n"
        "pointer release 1400 390\ndump\n"
        "pointer move 1000 200\ndump\n"
        "pointer move 100 200\ndump\n"
        "pointer move 1000 200\npointer press 1000 200\ndump\n"
        "pointer press 1000 200\npointer move 700 300\ndump\n"
        "click ZOOMMIN\ndump\n"
        "pointer press 500 100\ndump\n"
        "click ZAButt\nclick Command3D4\npointer press 500 100\ndump\n");
    ASSERT_EQ(dumps.size(), 10U);
    const int states[] = {1, 1, 2, 4, 5, 77, 77, 77, 77, 1};
    const int shapes[] = {1, 1, 1, 5, 1, 5, 2, 1, 1, 2};
    for (std::size_t i = 0; i < dumps.size(); ++i) {
        EXPECT_EQ(dumps[i]["PanelZustand"], states[i]) << i;
        EXPECT_EQ(dumps[i]["MousePointer"], shapes[i]) << i;
    }
    EXPECT_EQ(dumps[1]["ZoomShape"]["width"], 900);
    EXPECT_EQ(dumps[1]["ZoomShape"]["height"], 290);
    EXPECT_NEAR(dumps[5]["MassstabX"].get<double>(), 45 / 0.525, 1e-9);
    EXPECT_TRUE(Shown(dumps[5], "ZOOMMIN"));
    EXPECT_FALSE(Shown(dumps[5], "ZoomShape"));
    EXPECT_NEAR(dumps[6]["MassstabX"].get<double>(), 45 / 0.525, 1e-9)
        << "reading a zoomed chart does not change its scale";
    EXPECT_EQ(dumps[7]["MassstabX"], 45);
    EXPECT_FALSE(Shown(dumps[7], "ZOOMMIN"));
}

TEST(Pointer, UnderExactTheNextFrameFollowsTheZoomOutAndTheAspectTheWindow) {
    for (const bool exact : {false, true}) {
        ScriptSession session;
        session.folder.Write("qv_par.dat",
                             exact ? "1.013,-20,40,0,40,0,1,1,1" : "1.013,-20,40,0,40,0,1,1");
        const auto dumps = session.Run(
            "pointer press 500 100\npointer move 1400 390\npointer release 1400 390\n"
            "pointer move 1000 200\npointer press 1000 200\nclick ZOOMMIN\n"
            "pointer press 600 200\ndump\n"
            "window 1920 1080\ndump\n");
        EXPECT_EQ(dumps[0]["PanelZustand"], exact ? 1 : 77);
        EXPECT_EQ(dumps[0]["CarrierFaktor"] != dumps[1]["CarrierFaktor"], exact);
    }
}

// 20 g/kg fill the frame of the whole chart, 45 % of 1.09 * 20 that of the zoomed one.
TEST(Pointer, UnderExactAFrameOnAZoomedChartGoesDeeper) {
    for (const bool exact : {false, true}) {
        ScriptSession session;
        session.folder.Write("qv_par.dat",
                             exact ? "1.013,-20,40,0,40,0,0,1,1" : "1.013,-20,40,0,40,0,0,1");
        const std::string zoom =
            "pointer press 500 100\npointer move 1400 390\npointer release 1400 390\n"
            "pointer move 1000 200\npointer press 1000 200\npointer release 1000 200\n"
            "dump spanX\n";
        const auto dumps = session.Run(zoom + zoom);
        const double first = dumps[0]["spanX"], second = dumps[1]["spanX"];
        if (exact) {
            EXPECT_NEAR(first, 20, 0.01);
            EXPECT_NEAR(second, 900 / 2010.0 * 1.09 * 20, 0.01);
        } else {
            EXPECT_EQ(first, second);
        }
    }
}

TEST(Pointer, AFrameMayBeDrawnInAnyDirection) {
    const struct {
        double x1, y1, x2, y2;
    } frames[] = {
        {500, 100, 1400, 390}, {1400, 390, 500, 100}, {1400, 100, 500, 390}, {500, 390, 1400, 100}};
    for (const auto& f : frames) {
        ScriptSession session;
        const auto dumps =
            session.Run(PointerAct("press", f.x1, f.y1) + PointerAct("move", f.x2, f.y2) +
                        "dump\n" + PointerAct("release", f.x2, f.y2) +
                        "pointer move 1000 200\npointer press 1000 200\ndump\n");
        const Json& frame = dumps[0].at("ZoomShape");
        EXPECT_EQ(frame["left"], 500);
        EXPECT_EQ(frame["top"], 100);
        EXPECT_EQ(frame["width"], 900);
        EXPECT_EQ(frame["height"], 290);
        EXPECT_EQ(dumps[1]["PanelZustand"], 77);
        EXPECT_NEAR(dumps[1]["MassstabX"].get<double>(), 45 / 0.525, 1e-9);
    }
}

TEST(Pointer, AFrameIsDroppedOutsideItAndOneWithoutWidthOrHeightDoesNotZoom) {
    ScriptSession session;
    const auto dumps = session.Run(
        "pointer press 500 100\npointer move 700 200\npointer release 700 200\n"
        "pointer move 100 100\npointer press 100 100\ndump\n"
        "pointer press 500 100\npointer move 500 200\npointer release 500 200\n"
        "pointer move 500 150\npointer press 500 150\ndump\n"
        "pointer press 500 100\npointer move 700 100\npointer release 700 100\n"
        "pointer move 600 100\npointer press 600 100\ndump\n");
    ASSERT_EQ(dumps.size(), 3U);
    for (const auto& dump : dumps) {
        EXPECT_EQ(dump["PanelZustand"], 0);
        EXPECT_FALSE(Shown(dump, "ZoomShape"));
        EXPECT_FALSE(Shown(dump, "ZOOMMIN"));
        EXPECT_EQ(dump["MassstabX"], 45);
        EXPECT_EQ(dump["spanT"], dumps[0]["spanT"]);
    }
}

TEST(Pointer, AMarkIsPickedUpCarriedAndDropped) {
    ScriptSession session;
    // 32 degC, 10 g/kg: 35 + 450, 379 - 289.097; textbook air of that state has a relative humidity
    // of 33.7 % (vapour pressure 16.03 hPa of 47.6 hPa) and 57.8 kJ/kg.
    const auto dumps = session.Run(std::string(kStates) +
                                   "click ZAButt\ndump\n"
                                   "pointer press 0 0\ndump\n");
    EXPECT_EQ(dumps[1]["PP1Gefasst"], 0);
    const std::string press = PressOn(dumps[0], "PP1");
    const auto carried =
        session.Run(std::string(kStates) + "click ZAButt\n" + press +
                    "dump\npointer move 485 89.9\ndump\npointer press 485 89.9\ndump\n");
    ASSERT_EQ(carried.size(), 3U);
    EXPECT_EQ(carried[0]["PP1Gefasst"], 1);
    EXPECT_EQ(carried[0]["PP1"]["shape"], 1);
    EXPECT_EQ(carried[0]["PP1"]["colour"], 10);
    EXPECT_EQ(TextOf(carried[1], "Temp1"), "30") << "fields wait for the drop";
    EXPECT_NEAR(carried[1]["PP1"]["left"].get<double>(), 485 - 6, 4.5);
    EXPECT_NEAR(carried[1]["ZustandX1"].get<double>(), 10, 0.1);
    const Json& dropped = carried[2];
    EXPECT_EQ(dropped["PP1Gefasst"], 0);
    EXPECT_EQ(dropped["PP1"]["shape"], 0);
    EXPECT_EQ(dropped["PP1"]["colour"], 0);
    EXPECT_NEAR(ParsedNumber(TextOf(dropped, "Temp1")), 32, 0.15);
    EXPECT_NEAR(ParsedNumber(TextOf(dropped, "relF1")), 33.7, 0.3);
    EXPECT_NEAR(ParsedNumber(TextOf(dropped, "enth1")), 57.8, 0.4);
    EXPECT_EQ(dropped["Tscroll1"]["value"].get<double>(),
              10 * ParsedNumber(TextOf(dropped, "Temp1")));
    EXPECT_EQ(TextOf(dropped, "Temp2"), " 20");
}

TEST(Pointer, ADropInTheFogStoresAHundredAndLeftOfTheAxisOne) {
    const struct {
        double x, t;
        const char* humidity;
    } cases[] = {{30, 10, "100"}, {-0.5, 10, "1"}};
    for (const auto& c : cases) {
        ScriptSession session;
        const Json open = session.RunOnce(std::string(kStates) + "click ZAButt\ndump PP2\n");
        const std::string press = PressOn(open, "PP2");
        const double x = 35 + 45 * c.x, y = 379 - 9.0342679 * c.t;
        const Json dump = session.RunOnce(std::string(kStates)
                                              .append("click ZAButt\n")
                                              .append(press)
                                              .append(PointerAct("move", x, y))
                                              .append(PointerAct("press", x, y))
                                              .append("dump\n"));
        EXPECT_EQ(TrimmedNumberText(ParsedNumber(TextOf(dump, "relF2"))), c.humidity);
        EXPECT_EQ(dump["FScroll2"]["value"].get<double>(), 10 * std::stod(c.humidity));
    }
}

TEST(Pointer, OpeningTheOptionsLetsACarriedMarkGoWithoutACalculation) {
    ScriptSession session;
    const Json open = session.RunOnce(std::string(kStates) + "click ZAButt\ndump PP1\n");
    const std::string press = PressOn(open, "PP1");
    const Json dump =
        session.RunOnce(std::string(kStates) + "click ZAButt\n" + press +
                        "pointer move 485 89.9\nanswer cancel\npointer release 485 89.9 right\n" +
                        "dump PP1Gefasst PP1 Temp1\n");
    EXPECT_EQ(dump["PP1Gefasst"], 0);
    EXPECT_EQ(dump["PP1"]["shape"], 0);
    EXPECT_EQ(TextOf(dump, "Temp1"), "30");
}

TEST(Pointer, NoReadOutWhileThePointPanelIsOpenButInThePlant) {
    ScriptSession session;
    const auto dumps =
        session.Run(std::string(kStates) +
                    "pointer move 485 89.9\nclick ZAButt\npointer move 900 300\ndump Temp\n"
                    "click Command3D4\nclick AnlageButt\npointer move 900 300\ndump Temp\n");
    EXPECT_EQ(TextOf(dumps[0], "Temp"), " 32");
    EXPECT_EQ(TextOf(dumps[1], "Temp"), " 8.7") << "(379 - 300) / 9.0343";
}

TEST(Bars, MoveTheirFieldsOnlyInTheirModes) {
    ScriptSession session;
    const auto dumps = session.Run(
        std::string(kStates) +
        "scroll Tscroll1 250\ndump Temp1 Tscroll1\n"
        "click BearButt\nscroll Tscroll1 283\nscroll FScroll1 455\ndump Temp1 relF1 LuftM1 "
        "VScroll1\n"
        "scroll VScroll1 150\ndump LuftM1 VScroll1\n"
        "scroll Tscroll1 9999\ndump Temp1\n"
        "set LuftM1 2000\nreturn LuftM1\ndump VScroll1 LuftSchritt1 ZurueckVomDialog\n");
    EXPECT_EQ(TextOf(dumps[0], "Temp1"), "30") << "no mode yet";
    EXPECT_EQ(dumps[0]["Tscroll1"]["value"], 250) << "moved all the same";
    EXPECT_EQ(TextOf(dumps[1], "Temp1"), " 28.3");
    EXPECT_EQ(TextOf(dumps[1], "relF1"), " 45.5");
    EXPECT_EQ(dumps[1]["VScroll1"]["value"], 100) << "in the middle for the flow that was typed";
    EXPECT_EQ(TextOf(dumps[2], "LuftM1"), " 1500");
    EXPECT_EQ(TextOf(dumps[3], "Temp1"), " 28.3") << "a position outside the range is refused";
    EXPECT_EQ(dumps[4]["VScroll1"]["value"], 100);
    EXPECT_EQ(dumps[4]["LuftSchritt1"], 20);
    EXPECT_EQ(dumps[4]["ZurueckVomDialog"], 5);
}

TEST(Fields, HiddenOnesTakeNoText) {
    ScriptSession session;
    // The air flow is not asked for by a change of state, and shown again by mixing.
    const auto dumps = session.Run(std::string(kStates) +
                                   "click ZAButt\nset LuftM1 77\nset Temp1 31\ndump\n"
                                   "click Command3D4\nclick MischButt\nset LuftM1 78\ndump\n");
    EXPECT_FALSE(Shown(dumps[0], "LuftM1"));
    EXPECT_EQ(TextOf(dumps[0], "LuftM1"), "1000");
    EXPECT_EQ(TextOf(dumps[0], "Temp1"), "31");
    EXPECT_EQ(TextOf(dumps[1], "LuftM1"), "78");
}

TEST(Bars, HiddenOnesTakeNoInput) {
    ScriptSession session;
    const auto dumps =
        session.Run(std::string(kStates) +
                    "click Heiz_start\nscroll FScroll2 900\ndump FScroll2\n"
                    "click abbcom\nclick Humid_D_Start\nscroll Tscroll2 300\ndump Temp1 Temp2\n");
    EXPECT_NE(dumps[0]["FScroll2"]["value"], 900);
    EXPECT_EQ(ParsedNumber(TextOf(dumps[1], "Temp2")), ParsedNumber(TextOf(dumps[1], "Temp1")));
}

}  // namespace
}  // namespace zandrell
