#include "command/table_run.h"

namespace zandrell::command_test {
namespace {

// States of an independent calculation from the published constants: at 20 degC and 1.013 bar,
// 50 % is x 7.26475 and h 38.5275, saturation x 14.70121 with density 1.196345; dry air h 20.0857.
TEST(InverseTable, FindsTheStatesAgain) {
    struct Case {
        const char *search, *table, *header;
        std::vector<double> results, tolerances;
    };
    const std::vector<Case> cases{
        // The halving comes by 50, 25, 37.5 ... to 39.990234 %, which is 0.003 g/kg off and met;
        // the humidity still moves in that round, by 25 / 2^10.
        {"rh-from-x", "x,p,t\n11.91667649,1.01325,32\n", "x,p,t,rh", {40.0146484375}, {0}},
        {"rh-from-x", "t,x\n20,30\n", "t,x,rh", {100}, {1e-6}},
        // One step along the enthalpy of dry air: 20 * 40.1714 / 20.0857 = 40; the last state is
        // the one at the start.
        {"t-from-h",
         "t_start,h,kind,step,rh,x,p\n20,40.1714,1,8,50,,1.013\n",
         "t_start,h,kind,step,rh,x,p,t,step_after,x_last",
         {40, 8, 7.264747888},
         {0.05, 0, 1e-8}},
        // 12 + 8 - 4 + 2 + ... is 20 after the first halving of 16: one round, 8 is left.
        {"t-from-h",
         "t_start,h,kind,step,rh,x,p\n12,38.5275,2,16,49.6,,1.013\n",
         "t_start,h,kind,step,rh,x,p,t,step_after,x_last",
         {20, 8, 7.264747888},
         {0, 0, 1e-8}},
        // The humidity is taken as x over that of saturation, 7.264748 / 14.70121 = 0.4941599, and
        // that state has a little less than the stated x: vapour pressure 1155.882 Pa, so
        // 287.04 / 461.5 * 1155.882 / 100144.118, and 0.218 kJ/kg less than at 50 %.
        {"t-from-h",
         "t_start,h,kind,step,rh,x,p\n12,38.3096,3,16,,7.264747888,1.013\n",
         "t_start,h,kind,step,rh,x,p,t,step_after,x_last",
         {20, 8, 7.178915},
         {0, 0, 1e-5}},
        // Columns that the kind does not need may be absent.
        {"t-from-h",
         "t_start,h,kind,step,x\n12,38.3096,3,16,7.264747888\n",
         "t_start,h,kind,step,x,t,step_after,x_last",
         {20, 8, 7.178915},
         {0, 0, 1e-5}},
        // The search begins 8 K above its start.
        {"t-from-density",
         "t_start,density,kind,p\n12,1.196344966,2,1.013\n",
         "t_start,density,kind,p,t,x_last",
         {20, 14.70120866},
         {0, 1e-8}},
    };
    for (const auto& c : cases) {
        const TableRun run = RunTable(InvertLine(c.search), c.table);
        ASSERT_TRUE(run.done) << run.error;
        EXPECT_EQ(run.reports, "") << c.table;
        const auto lines = Lines(run.output);
        ASSERT_EQ(lines.size(), 2U);
        EXPECT_EQ(lines[0], c.header);
        const auto found = LastNumbers(lines[1], c.results.size());
        for (std::size_t i = 0; i < found.size(); ++i) {
            EXPECT_NEAR(found[i], c.results[i], c.tolerances[i]) << c.table << " result " << i;
        }
    }
}

TEST(InverseTable, ReportsRowsWithoutAnAnswer) {
    struct Case {
        const char *search, *header, *row, *report, *results = "";
    };
    for (const auto& c : std::vector<Case>{
             {"rh-from-x", "t,x,p", "801,200,1", "t = 801 is outside -50..800 degC"},
             {"rh-from-x", "t,x,p", "20,5,9", "p = 9 is outside 0..8.5 bar"},
             {"rh-from-x", "t,x,p", "20,5,", "p is empty"},
             {"t-from-h", "t_start,h,kind,step,rh", "-51,5,2,8,50",
              "t = -51 is outside -50..800 degC"},
             {"t-from-h", "t_start,h,kind,step,rh", "20,30,4,8,50",
              "kind is not a whole number from 1 to 3"},
             {"t-from-h", "t_start,h,kind,step,rh", "20,30,1.5,8,50",
              "kind is not a whole number from 1 to 3"},
             {"t-from-h", "t_start,h,kind,step,rh", "20,30,3,8,50", "kind 3 needs x"},
             {"t-from-h", "t_start,h,kind,step,rh", "20,30,2,8,", "kinds 1 and 2 need rh"},
             {"t-from-h", "t_start,h,kind,step,rh", "20,30,2,8,1e12", "rh is no percentage"},
             // The step that is left is known all the same: 400 halved 40 times.
             {"t-from-h", "t_start,h,kind,step,rh", "20,-900,2,400,50",
              "the search left the limits of the state", ",,3.637978807091713e-10,"},
             {"t-from-density", "t_start,density,kind", "20,1.2,3",
              "kind is not a whole number from 1 to 2"},
             {"t-from-density", "t_start,density,kind", "-59,1.2,1",
              "t = -51 is outside -50..800 degC"},
         }) {
        const TableRun run =
            RunTable(InvertLine(c.search), c.header + std::string("\n") + c.row + "\n");
        EXPECT_TRUE(run.done) << run.error;
        EXPECT_EQ(run.reports, "line 2: " + std::string(c.report) + "\n");
        const std::string result = Lines(run.output).at(1).substr(std::string(c.row).size());
        EXPECT_EQ(result, *c.results == 0 ? std::string(result.size(), ',') : c.results);
        EXPECT_FALSE(result.empty());
    }
}

}  // namespace
}  // namespace zandrell::command_test
