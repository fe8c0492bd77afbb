#include "forms/grid_order.h"

#include <gtest/gtest.h>

#include <vector>

namespace zandrell {
namespace {

Grid Table(const std::vector<std::vector<std::string>>& rows) {
    Grid grid("table");
    grid.SetColumns(3);
    grid.SetRows(static_cast<int>(rows.size()), 240);
    for (int row = 0; row < grid.RowCount(); ++row) {
        for (int column = 0; column < 3; ++column) {
            grid.SetText(row, column,
                         rows[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)]);
            grid.SetWidth(column, 100);
        }
    }
    return grid;
}

std::vector<std::string> Column(const Grid& grid, int column) {
    std::vector<std::string> texts;
    for (int row = 1; row < grid.RowCount(); ++row) texts.push_back(grid.Text(row, column));
    return texts;
}

using Texts = std::vector<std::string>;

TEST(GridOrder, SortsNumbersInFrontOfTextsAndKeepsTheChosenRow) {
    Grid grid = Table({{"", "Q", "Name"},
                       {"1", " 10.5", "b"},
                       {"2", " 9", "a"},
                       {"3", "  - ", "C"},
                       {"4", "", ""}});
    grid.row = 1;
    grid.SetBack(1, 1, 12);
    GridOrder order;
    order.Ask(1);
    SortRows(grid, order);
    EXPECT_EQ(Column(grid, 0), Texts({"2", "1", "3", "4"}));
    EXPECT_EQ(grid.row, 2);
    EXPECT_EQ(grid.Back(2, 1), 12) << "the colour moves with its figure";
    order.Ask(1);
    SortRows(grid, order);
    EXPECT_EQ(Column(grid, 0), Texts({"1", "2", "3", "4"})) << "rows without contents stay behind";
    order.Ask(2);
    SortRows(grid, order);
    EXPECT_EQ(Column(grid, 2), Texts({"a", "b", "C", ""}));
}

TEST(GridOrder, AThirdTimeBringsTheFilledOrderBack) {
    Grid grid = Table({{"", "Q", "Name"}, {"1", "9", "b"}, {"2", "10", "a"}, {"3", "8", "C"}});
    grid.row = 2;
    GridOrder order;
    for (const auto& [asked, expected] : {std::pair{1, Texts{"3", "1", "2"}},
                                          {2, Texts{"2", "1", "3"}},
                                          {2, Texts{"3", "1", "2"}},
                                          {2, Texts{"1", "2", "3"}},
                                          {2, Texts{"2", "1", "3"}}}) {
        order.Ask(asked);
        SortRows(grid, order);
        EXPECT_EQ(Column(grid, 0), expected);
        EXPECT_EQ(grid.Text(grid.row, 0), "2") << "the chosen row stays the same one";
        EXPECT_EQ(grid.sort_mark.has_value(), expected != Texts({"1", "2", "3"}));
    }
    // Rows made anew are in the order of their filling, whatever was sorted before.
    grid.SetRows(1, 240);
    grid.SetRows(3, 240);
    grid.SetText(1, 0, "1");
    grid.SetText(2, 0, "2");
    SortRows(grid, {});
    EXPECT_EQ(Column(grid, 0), Texts({"1", "2"}));
}

TEST(GridOrder, WritesWhatIsVisible) {
    Grid grid = Table(
        {{"", "Q [kW]", "Name"}, {"1", " 1.5", "a, \"b\""}, {"2", " 2", "hidden"}, {"3", "", ""}});
    grid.SetHeight(2, 0);
    grid.SetWidth(0, 0);
    EXPECT_EQ(GridAsCsv(grid), "Q [kW],Name\r\n1.5,\"a, \"\"b\"\"\"\r\n");
}

}  // namespace
}  // namespace zandrell
