// A grid of a form on the screen: what the form says of it must be seen, and keys, wheel and
// pointer must reach the form.
#include "desktop/grid_view.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QHeaderView>
#include <QWheelEvent>

#include "desktop/look_colours.h"
#include "desktop/window_session.h"

namespace zandrell {
namespace {

constexpr int kRed = 12, kGreen = 10, kYellow = 14, kGrey = 7;
constexpr int kRows = 60, kRowHeight = 240;

struct GridForm : WindowForm {
    GridForm() : WindowForm("GridForm") {
        form.Add({&grid});
        grid.SetColumns(4);
        grid.SetRows(kRows + 1, kRowHeight);
        const std::string heads[] = {"No", "Qo", "Name", "Locator"};
        for (int column = 0; column < 4; ++column) {
            grid.SetText(0, column, heads[column]);
            for (int row = 1; row <= kRows; ++row) {
                grid.SetText(row, column, std::to_string(10 * row + column));
            }
        }
        grid.SetText(4, 2, "Ulmak 4");
        const int widths[] = {450, 750, 6000, 0};
        for (int column = 0; column < 4; ++column) grid.SetWidth(column, widths[column]);
        for (const ActKind act : {ActKind::Pick, ActKind::Return, ActKind::Tell, ActKind::Sort,
                                  ActKind::Hover, ActKind::Leave}) {
            acts.Add(grid.name, act, [this, act] { last = act; });
        }
        acts.Add(grid.name, ActKind::RowsUp, [this] { grid.SetTopRow(grid.TopRow() - 2); });
        acts.Add(grid.name, ActKind::RowsDown, [this] { grid.SetTopRow(grid.TopRow() + 2); });
    }
    Grid grid{"Units"};
    std::optional<ActKind> last;
};

class GridViewTest : public ::testing::Test {
  protected:
    GridViewTest() {
        view_.resize(700, 300);
        view_.show();
        Show();
    }

    void Show() {
        mirror_.Mirror();
        QApplication::processEvents();
    }

    // Above the text of a cell, clear of its lines.
    QColor GroundOf(int row, int column) {
        const QRect cell = view_.CellRect(row, column);
        return QColor(view_.viewport()->grab().toImage().pixel(cell.center().x(), cell.top() + 2));
    }

    void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QKeyEvent event(QEvent::KeyPress, key, modifiers);
        QApplication::sendEvent(&view_, &event);
    }

    void Wheel(int eighths) {
        const QPointF place(50, 50);
        QWheelEvent event(place, view_.viewport()->mapToGlobal(place), {}, {0, eighths},
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(view_.viewport(), &event);
    }

    QApplication& application_ = TheApplication();
    TestFolder folder_;
    DataFiles files_{folder_.Path()};
    Pictures pictures_{files_};
    GridForm form_;
    Grid& grid_ = form_.grid;
    FormMirror mirror_{form_, pictures_};
    GridView view_{grid_, mirror_, nullptr};
};

TEST_F(GridViewTest, ShowsTheColoursOfTheForm) {
    const struct {
        int row, column, number;
        LookColour shown;
    } cells[] = {{6, 1, kGrey, LookColour::Stripe},     {2, 1, kRed, LookColour::SoftRed},
                 {2, 2, kGreen, LookColour::SoftGreen}, {3, 0, kYellow, LookColour::SoftYellow},
                 {3, 2, kGrey, LookColour::Stripe},     {1, 1, kRed, LookColour::SoftRed}};
    grid_.row = 1;
    for (const auto& cell : cells) grid_.SetBack(cell.row, cell.column, cell.number);
    Show();
    for (const auto& cell : cells) {
        EXPECT_EQ(GroundOf(cell.row, cell.column).name(), ColourOf(cell.shown).name())
            << cell.row << ' ' << cell.column;
    }
    const QColor plain = GroundOf(4, 1);
    for (const auto& cell : cells) {
        EXPECT_NE(GroundOf(cell.row, cell.column).name(), plain.name());
        grid_.SetBack(cell.row, cell.column, std::nullopt);
    }
    Show();
    for (const auto& cell : cells) {
        const bool chosen = cell.row == grid_.row;
        EXPECT_EQ(GroundOf(cell.row, cell.column) == plain, !chosen) << cell.row;
    }
    EXPECT_NE(GroundOf(1, 2).name(), plain.name()) << "the chosen row";
}

TEST_F(GridViewTest, ShowsTextsWidthsAndHiddenRows) {
    const auto* model = view_.model();
    const auto cell = [model](int row, int column, int role) {
        return model->data(model->index(row - 1, column), role);
    };
    EXPECT_EQ(model->rowCount(), kRows);
    EXPECT_EQ(model->headerData(1, Qt::Horizontal), QStringLiteral("Qo"));
    grid_.SetText(0, 1, "Typ/Flow[m³/h]");
    EXPECT_EQ(model->headerData(1, Qt::Horizontal),
              QStringLiteral("Typ/\u200BFlow\u200B[m³/\u2060h]"))
        << "breaks in front of a unit, not in it";
    EXPECT_EQ(model->headerData(1, Qt::Horizontal, Qt::AccessibleTextRole),
              QStringLiteral("Typ/Flow[m³/h]"));
    grid_.SetText(0, 1, "Qo");
    EXPECT_EQ(cell(4, 2, Qt::DisplayRole), QStringLiteral("Ulmak 4"));
    EXPECT_TRUE(cell(4, 2, Qt::TextAlignmentRole).toInt() & Qt::AlignLeft);
    EXPECT_TRUE(cell(4, 1, Qt::TextAlignmentRole).toInt() & Qt::AlignRight);
    grid_.name_column = 1;
    EXPECT_TRUE(cell(4, 1, Qt::TextAlignmentRole).toInt() & Qt::AlignLeft) << "a name";
    grid_.name_column.reset();
    grid_.head_tip = "S sorts.";
    EXPECT_EQ(model->headerData(1, Qt::Horizontal, Qt::ToolTipRole),
              QStringLiteral("Qo\nS sorts."));
    QAccessibleInterface* table = QAccessible::queryAccessibleInterface(&view_);
    ASSERT_NE(table, nullptr);
    ASSERT_NE(table->tableInterface(), nullptr);
    QAccessibleInterface* spoken = table->tableInterface()->cellAt(3, 2);
    ASSERT_NE(spoken, nullptr);
    EXPECT_EQ(spoken->text(QAccessible::Name), QStringLiteral("Ulmak 4"));
    EXPECT_EQ(spoken->text(QAccessible::Description), QStringLiteral("Name"));

    // Two narrow columns as designed, the wide one takes what is left.
    EXPECT_TRUE(view_.isColumnHidden(3));
    EXPECT_EQ(view_.columnWidth(0), Scaled(view_, 30));
    EXPECT_EQ(view_.columnWidth(1), Scaled(view_, 50));
    const int wide = view_.columnWidth(2);
    view_.resize(800, 300);
    EXPECT_NEAR(view_.columnWidth(2), wide + 100, 2);

    grid_.SetHeight(5, 0);
    grid_.tool_tip = "5 Name: x";
    Show();
    EXPECT_TRUE(view_.isRowHidden(4));
    EXPECT_EQ(view_.accessibleDescription(), QStringLiteral("5 Name: x"));
    grid_.SetHeight(5, kRowHeight);
    grid_.SetRows(3, kRowHeight);
    Show();
    EXPECT_FALSE(view_.isRowHidden(4));
    EXPECT_EQ(model->rowCount(), 2);
}

// Number, name, figure: 30 designed 40, 80 designed 300, 60 designed 100.
TEST(ColumnWidths, GiveWayAndFillTheRoom) {
    const std::vector<ColumnWish> wishes = {
        {30, 40, 40, false}, {80, 80, 300, true}, {60, 60, 100, true}, {}};
    const struct {
        int room;
        std::vector<int> widths;
    } cases[] = {
        {180, {40, 80, 60, 0}},    {260, {40, 140, 80, 0}},  // 80 more, 3 to 1
        {1000, {40, 800, 160, 0}},  // 160 is the most for a figure, the name takes the rest
        {172, {32, 80, 60, 0}},     // the number gives way first
        {150, {30, 60, 60, 0}},     // then the name
        {100, {30, 50, 60, 0}},     // which stays to be read
    };
    for (const auto& c : cases) {
        EXPECT_EQ(WidthsInRoom(wishes, 1, c.room, 50), c.widths) << c.room;
    }
}

TEST_F(GridViewTest, KeysAndWheelReachTheForm) {
    const struct {
        const char* what;
        std::function<void()> act;
        int row, top;
        std::optional<ActKind> told;
    } steps[] = {
        {"down scrolls", [&] { Press(Qt::Key_Down); }, 1, 3, {}},
        {"a step of the wheel too", [&] { Wheel(-120); }, 1, 5, {}},
        {"half a step waits", [&] { Wheel(-60); }, 1, 5, {}},
        {"for its other half", [&] { Wheel(-60); }, 1, 7, {}},
        {"up", [&] { Press(Qt::Key_Up); }, 1, 5, {}},
        {"with Ctrl the choice moves", [&] { Press(Qt::Key_Down, Qt::ControlModifier); }, 2, 2, {}},
        {"i tells", [&] { Press(Qt::Key_I); }, 2, 2, ActKind::Tell},
        {"a step to the right", [&] { Press(Qt::Key_Right); }, 2, 2, {}},
        {"s sorts", [&] { Press(Qt::Key_S); }, 2, 2, ActKind::Sort},
        {"Return", [&] { Press(Qt::Key_Return); }, 2, 2, ActKind::Return},
        {"the last row is seen", [&] { Press(Qt::Key_End, Qt::ControlModifier); }, kRows, -1, {}},
    };
    grid_.row = 1;
    Show();
    for (const auto& step : steps) {
        form_.last.reset();
        step.act();
        QApplication::processEvents();
        EXPECT_EQ(grid_.row, step.row) << step.what;
        EXPECT_EQ(view_.currentIndex().row() + 1, step.row) << step.what;
        EXPECT_EQ(form_.last, step.told) << step.what;
        if (step.top > 0) {
            EXPECT_EQ(grid_.TopRow(), step.top) << step.what;
        }
        EXPECT_EQ(view_.rowAt(0) + 1, grid_.TopRow()) << step.what;
    }
    EXPECT_TRUE(view_.viewport()->rect().contains(view_.CellRect(kRows, 2).center()));
    EXPECT_EQ(grid_.asked_column, 2) << "the column of the chosen cell";
    grid_.SetHeight(kRows - 1, 0);
    Show();
    Press(Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(grid_.row, kRows - 2) << "a hidden row is passed over";
}

}  // namespace
}  // namespace zandrell
