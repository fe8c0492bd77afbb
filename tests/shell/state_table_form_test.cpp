// The states of the process in force as a table: what stands in it belongs to the panel beside it,
// and it can be sorted, copied and saved.
#include "shell/state_table_form.h"

#include <gmock/gmock.h>

#include "base/number_text.h"
#include "script_session.h"

namespace zandrell {
namespace {

constexpr const char* kExact = "click optButt\ncheck qvopt.ExactBox on\nclick qvopt.Command3D1\n";
constexpr const char* kSummer =
    "set vhAnlage 10000\nset aussenAnt 3\nset tabLuft 26\nset PHIAbluft 50\nset Taus 32\n"
    "set PhiAussen 40\nset TZuluft 18\nset PHIZuluft 80\nset tKA 12\nset phiKanal 95\n"
    "set dtVent1 1\nset dtVent2 .5\nclick AnlageButt\n";
constexpr const char* kTable = "click StateList\ndump StateTable.States\n";

using Cells = std::vector<std::vector<std::string>>;

Cells CellsOf(const Json& dump) { return dump.at("StateTable.States").at("cells").get<Cells>(); }

std::size_t ColumnOf(const Cells& cells, std::string_view head) {
    for (std::size_t i = 0; i < cells[0].size(); ++i) {
        if (cells[0][i].starts_with(head)) return i;
    }
    ADD_FAILURE() << head;
    return 0;
}

double NumberIn(const Cells& cells, std::size_t row, std::string_view head) {
    return ParsedNumber(cells.at(row).at(ColumnOf(cells, head)));
}

// Row by row from the table's own figures: dry air times the gain of enthalpy is the capacity, dry
// air times the gain of x the water, and both streams of the mix make up the whole.
TEST(StateTable, ThePlantClosesFromRowToRow) {
    ScriptSession session;
    const Cells cells =
        CellsOf(session.RunOnce(std::string(kExact) + kSummer + "return Taus\n" + kTable));
    ASSERT_EQ(cells.size(), 10U);
    ASSERT_EQ(cells[0].size(), 14U);
    EXPECT_EQ(cells[3][0], "Recirculated Air");
    EXPECT_EQ(cells[6][0], "Leaving Cooler");
    const auto figure = [&cells](std::size_t row, std::string_view head) {
        return NumberIn(cells, row, head);
    };
    const double dry_air = figure(1, "Dry Air Flow");
    // Air of 26 degC, 50 %: dew point 14.8, wet bulb 18.7 degC, 0.862 m3/kg (ASHRAE Handbook).
    EXPECT_NEAR(figure(1, "Dew or Frost Point"), 14.8, 0.11);
    EXPECT_NEAR(figure(1, "Wet Bulb"), 18.7, 0.11);
    EXPECT_NEAR(dry_air, 10000 / 0.862, 20);
    EXPECT_NEAR(figure(2, "Dry Air Flow"), dry_air, 1);
    EXPECT_NEAR(figure(3, "Dry Air Flow"), dry_air * 3 / 4, 1);
    EXPECT_NEAR(figure(4, "Dry Air Flow"), dry_air / 4, 1);
    const double tenth = dry_air * 0.1 / 3600, hundredth = dry_air * 0.02 / 1000;  // kJ/kg, g/kg
    for (const char* what : {"Enthalpy", "Humidity"}) {
        EXPECT_NEAR(figure(5, what), figure(3, what) * 3 / 4 + figure(4, what) / 4, 0.1);
    }
    for (const auto& [row, before] : {std::pair{1U, 9U}, {2, 1}, {6, 5}, {7, 6}, {9, 8}}) {
        EXPECT_NEAR(figure(row, "Capacity"),
                    dry_air * (figure(row, "Enthalpy") - figure(before, "Enthalpy")) / 3600, tenth)
            << cells[row][0];
    }
    for (const auto& [row, before] : {std::pair{1U, 9U}, {6, 5}, {8, 7}}) {
        EXPECT_NEAR(figure(row, "Water"),
                    dry_air * (figure(row, "Humidity") - figure(before, "Humidity")) / 1000,
                    hundredth)
            << cells[row][0];
    }
    // 3.22 kg/s with cp 1.006 + 1.86 x over .5 K and over 1 K.
    EXPECT_NEAR(figure(2, "Capacity"), 1.65, 0.02);
    EXPECT_NEAR(figure(9, "Capacity"), 3.30, 0.03);
    // The mix of 10.54 and 11.96 g/kg gives off what lies above the 8.32 g/kg of the coil.
    EXPECT_NEAR(figure(6, "Water"), -29.9, 0.3);
    EXPECT_LT(figure(6, "Capacity"), 0) << "taken from the air";
}

// The suite's supply air has a little less water than leaves its coil, and no humidifier takes it
// away. Fans and condensate have no figures in its balances.
TEST(StateTable, WhatDoesNothingHasNoRow) {
    for (const char* convention : {"", kExact}) {
        for (const char* humidifier : {"choose Option3D3\n", "choose Option3D4\n"}) {
            ScriptSession session;
            const Cells cells =
                CellsOf(session.RunOnce(std::string(convention) + humidifier + kSummer +
                                        "set PHIZuluft 50\nreturn PHIZuluft\n" + kTable));
            ASSERT_EQ(cells.size(), 9U) << convention << humidifier;
            EXPECT_EQ(cells[7][0], "Leaving Heater");
            EXPECT_EQ(cells[8][0], "Supply Air");
            const bool exact = *convention != '\0';
            EXPECT_EQ(cells[2][ColumnOf(cells, "Capacity")].empty(), !exact);
            EXPECT_EQ(cells[6][ColumnOf(cells, "Water")].empty(), !exact);
            EXPECT_LT(NumberIn(cells, 6, "Capacity"), 0);
        }
    }
}

// Ice and water are in balance a hair below 0 degC in a cut figure.
TEST(StateTable, SaturatedAirOfZeroHasItsTemperatureThroughout) {
    ScriptSession session;
    const Cells cells = CellsOf(session.RunOnce(std::string(kExact) +
                                                "set Temp1 0\nset relF1 100\nset Temp2 5\n"
                                                "set relF2 90\nclick ZAButt\nreturn Temp1\n" +
                                                kTable));
    EXPECT_EQ(cells.at(1).at(ColumnOf(cells, "Wet Bulb")), "0");
    EXPECT_EQ(cells.at(1).at(ColumnOf(cells, "Dew or Frost Point")), "0");
}

void ExpectWhatThePanelTells(const Json& panel, const Cells& cells, const std::string& what) {
    for (const auto& [row, t, rel, x, h] : {std::tuple{1, "Temp1", "relF1", "absF1", "enth1"},
                                            {2, "Temp2", "relF2", "absF2", "enth2"}}) {
        const auto r = static_cast<std::size_t>(row);
        EXPECT_EQ(NumberIn(cells, r, "Temp"), ParsedNumber(TextOf(panel, t))) << what;
        EXPECT_EQ(NumberIn(cells, r, "Rel"), ParsedNumber(TextOf(panel, rel))) << what;
        EXPECT_EQ(NumberIn(cells, r, "Humidity"), ParsedNumber(TextOf(panel, x))) << what;
        EXPECT_EQ(NumberIn(cells, r, "Enthalpy"), ParsedNumber(TextOf(panel, h))) << what;
    }
    if (cells.size() < 4) return;
    EXPECT_EQ(NumberIn(cells, 3, "Temp"), ParsedNumber(TextOf(panel, "TempM"))) << what;
    EXPECT_EQ(NumberIn(cells, 3, "Humidity"), ParsedNumber(TextOf(panel, "absFM"))) << what;
    EXPECT_EQ(NumberIn(cells, 3, "Rel"), Cut(ParsedNumber(TextOf(panel, "relFM")), 10)) << what;
}

// The states are those whose hundredths a cut would lose, and whose mixture is fog.
TEST(StateTable, TellsWhatThePanelTells) {
    const char* const states[] = {"set Temp1 20\nset relF1 50\nset Temp2 30\nset relF2 40\n",
                                  "set Temp1 4.6\nset relF1 56\nset Temp2 35.5\nset relF2 67.1\n",
                                  "set Temp1 18.3\nset relF1 90.3\nset Temp2 32.8\nset relF2 99\n",
                                  "set Temp1 -8.3\nset relF1 18.6\nset Temp2 33\nset relF2 77.6\n",
                                  "set Temp1 -10\nset relF1 40\nset Temp2 -7.9\nset relF2 30\n",
                                  "set Temp1 -10\nset relF1 95\nset Temp2 35\nset relF2 95\n"};
    const struct {
        const char* start;
        std::size_t rows;
        int sign;  // of what the air is given, beside that of the panel; 0: nothing is shown
    } cases[] = {
        {"click ZAButt\n", 2, 0},
        {"click BearButt\n", 2, -1},  // the panel counts what is taken from the air
        {"click MischButt\n", 3, 0},
        {"click Heiz_start\n", 2, 1},
        {"set Temp1 33\nset relF1 40\nset Temp2 16\nset relF2 90\nclick BearButt\n", 2, -1},
        {"set Temp1 33\nset relF1 60\nset Temp2 14\nclick Kuehl_start\n", 2, -1},
        {"set Temp1 20\nset relF1 20\nset Temp2 20\nset relF2 60\nclick Humid_D_Start\n", 2, 1},
        {"set Temp1 30\nset relF1 20\nset Temp2 18\nclick Humid_W_Start\n", 2, 1},
        // Below the wet bulb: the state that is shown has lost water.
        {"set Temp1 18.3\nset relF1 90.3\nset Temp2 15.6\nclick Humid_W_Start\n", 2, -1}};
    for (const char* convention : {"", kExact}) {
        for (const auto& c : cases) {
            for (const char* state : states) {
                const std::string what = std::string(convention) + state + c.start;
                ScriptSession session;
                const auto dumps =
                    session.Run(convention + std::string("set LuftM1 1000\nset LuftM2 500\n") +
                                state + c.start + "return Temp1\ndump\n" + kTable);
                const Cells cells = CellsOf(dumps.at(1));
                ASSERT_EQ(cells.size(), c.rows + 1) << what;
                EXPECT_EQ(cells[0].size(), *convention ? 14U : 10U);
                ExpectWhatThePanelTells(dumps[0], cells, what);
                if (c.sign == 0) {
                    EXPECT_EQ(cells[2][ColumnOf(cells, "Capacity")], "") << what;
                    continue;
                }
                EXPECT_EQ(NumberIn(cells, 2, "Capacity"),
                          c.sign * ParsedNumber(TextOf(dumps[0], "Kleist")))
                    << what;
                EXPECT_EQ(NumberIn(cells, 2, "Water"),
                          c.sign * ParsedNumber(TextOf(dumps[0], "KondW")))
                    << what;
            }
        }
    }
}

// Cut figures of what was typed would lose a tenth where the way to x and back leaves a digit.
TEST(StateTable, TypedHumiditiesOfThePlantStandAsTheyAre) {
    constexpr std::size_t kPlants = 30;
    for (const char* convention : {"", kExact}) {
        std::string script(convention);
        script +=
            "set tabLuft 22\nset Taus -10\nset tKA 10\nset phiKanal 95\nset TZuluft 26\n"
            "set PHIZuluft 30\nset vhAnlage 10000\nset aussenAnt 3\nset dtVent1 1\n"
            "set dtVent2 .5\nchoose Option3D3\nclick AnlageButt\n";
        for (std::size_t i = 0; i < kPlants; ++i) {
            script.append("set PHIAbluft ").append(std::to_string(40 + i % 13));
            script.append(".").append(std::to_string(i % 10));
            script.append("\nset PhiAussen ").append(std::to_string(35 + i));
            script.append(".3\nreturn Taus\ndump\n").append(kTable).append("close\n");
        }
        ScriptSession session;
        const auto dumps = session.Run(script);
        ASSERT_EQ(dumps.size(), 2 * kPlants);
        for (std::size_t i = 0; i < dumps.size(); i += 2) {
            const Json& panel = dumps[i];
            const Cells cells = CellsOf(dumps[i + 1]);
            ASSERT_GT(cells.size(), 5U);
            const std::size_t supply = cells.size() - 1;
            EXPECT_EQ(NumberIn(cells, 1, "Rel"), ParsedNumber(TextOf(panel, "PHIAbluft")));
            EXPECT_EQ(NumberIn(cells, 4, "Rel"), ParsedNumber(TextOf(panel, "PhiAussen")));
            EXPECT_EQ(NumberIn(cells, supply, "Rel"), ParsedNumber(TextOf(panel, "PHIZuluft")));
        }
    }
}

TEST(StateTable, HasNoRowsForInputsThatWereNotComputed) {
    for (const char* script : {"",
                               "set Temp1 20\nset relF1 50\nset Temp2 30\nset relF2 40\n"
                               "click ZAButt\nset Temp1 21\n"}) {
        ScriptSession session;
        const auto dump = session.RunOnce(std::string(script) + "click StateList\ndump\n");
        EXPECT_EQ(dump.at("StateTable.States").at("rows"), 1) << script;
        EXPECT_EQ(TextOf(dump, "StateTable.StatesMessage"), "no process is calculated");
        EXPECT_FALSE(dump.at("StateTable.SaveStates").at("enabled").get<bool>());
    }
}

struct Visitor : ScriptedUser {
    using ScriptedUser::ScriptedUser;
    std::function<void(StateTableForm&)> visit;
    void ShowModal(ModalForm& window) override {
        if (auto* table = dynamic_cast<StateTableForm*>(&window)) visit(*table);
        window.UserClick(window.cancel_control);
    }
};

TEST(StateTable, IsSortedCopiedAndSaved) {
    TestFolder folder;
    folder.CopyWholeSet();
    std::istringstream script(
        "set Temp1 30\nset relF1 40\nset Temp2 5\nset relF2 90\n"
        "click ZAButt\nreturn Temp1\nclick StateList\n");
    std::ostringstream output;
    Visitor user(script, output);
    DataFiles files(folder.Path());
    MainForm form(user, files, NamedFolder(folder.Path()));
    const std::string file = (folder / "states.csv").string();
    std::string copied, refused;
    user.visit = [&](StateTableForm& table) {
        table.copy_text = [&copied](const std::string& text) { copied = text; };
        EXPECT_TRUE(table.UserSort("States", 1));  // by temperature
        EXPECT_TRUE(table.UserClick("CopyStates"));
        table.ask_file = [&] { return (folder / "states.csv").string(); };
        EXPECT_TRUE(table.UserClick("SaveStates"));
        EXPECT_EQ(table.Message.text, "Saved " + file);
        table.ask_file = [&] { return (folder / "none" / "states.csv").string(); };
        EXPECT_TRUE(table.UserClick("SaveStates"));
        refused = table.Message.text;
    };
    std::string error;
    EXPECT_TRUE(user.Run(form, error)) << error;
    EXPECT_THAT(copied, ::testing::HasSubstr("\n2\t5\t"));
    EXPECT_LT(copied.find("\n2\t5\t"), copied.find("\n1\t30\t"));
    const std::string saved = folder.Read("states.csv");
    EXPECT_THAT(saved, ::testing::StartsWith("State,Temperature /[°C],"));
    EXPECT_THAT(saved, ::testing::HasSubstr(",Pressure /[bar]\r\n"));
    EXPECT_THAT(saved, ::testing::EndsWith(",1.013\r\n"));
    EXPECT_LT(saved.find("\r\n2,5,"), saved.find("\r\n1,30,"));
    EXPECT_THAT(refused, ::testing::HasSubstr("none"));
}

}  // namespace
}  // namespace zandrell
