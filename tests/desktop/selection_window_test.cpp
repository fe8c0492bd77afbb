// The selection window on the screen: what the forms behind it say must be seen and spoken, and the
// keyboard alone must reach all of it.
#include "desktop/selection_window.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <set>

#include "desktop/look_colours.h"
#include "desktop/selection_session.h"

namespace zandrell {
namespace {

// 12 kW: the second series ends at 11 kW, the tenth at .62 kW; unit 21 of the third has 12.8 kW,
// unit 26 18.5 kW, unit 30 24.7 kW.
TEST_F(SelectionWindowTest, ListsShowWhatMeetsTheDuty) {
    Act([](VentZeigForm& form) { form.UserPickCell("KatalogSpread", 3, 3); });
    const struct {
        const char* grid;
        int row, column;
        LookColour shown;
    } cells[] = {{"KatalogSpread", 1, 1, LookColour::SoftGreen},
                 {"KatalogSpread", 2, 1, LookColour::SoftRed},
                 {"KatalogSpread", 2, 2, LookColour::SoftYellow},
                 {"KatalogSpread", 3, 2, LookColour::SoftGreen},
                 {"KatalogSpread", 1, 3, LookColour::Stripe},
                 {"Venttab", 21, kUnitFigure, LookColour::SoftGreen},
                 {"Venttab", 26, kUnitFigure, LookColour::SoftYellow},
                 {"Venttab", 25, kUnitName, LookColour::Stripe},
                 {"Venttab", 30, kUnitFigure, LookColour::SoftRed}};
    for (const auto& cell : cells) {
        EXPECT_EQ(GroundOf(*Find<GridView>(cell.grid), cell.row, cell.column).name(),
                  ColourOf(cell.shown).name())
            << cell.grid << ' ' << cell.row << ' ' << cell.column;
    }
    EXPECT_EQ(Find<GridView>("KatalogSpread")->currentIndex().row(), 2);
    EXPECT_EQ(Find<GridView>("Venttab")->currentIndex().row(), 20) << "the unit that does it";
}

TEST_F(SelectionWindowTest, TakesAUnitByKeysAlone) {
    auto* units = Find<GridView>("Venttab");
    auto* box = Find<QLineEdit>("venttabText");
    auto* tip = Find<QLabel>("AssitPN");
    auto* series = Find<GridView>("KatalogSpread");
    series->setFocus();
    Press(Qt::Key_Down, Qt::ControlModifier);
    Press(Qt::Key_Down, Qt::ControlModifier);
    EXPECT_FALSE(tip->isVisible());
    Press(Qt::Key_I);
    EXPECT_TRUE(tip->isVisible());
    EXPECT_EQ(tip->text(), ShownText(c_.AssitPN.text));
    EXPECT_TRUE(tip->text().contains(QStringLiteral("ULMAK"))) << tip->text().toStdString();
    Press(Qt::Key_Return);
    EXPECT_FALSE(tip->isVisible());
    EXPECT_TRUE(units->isVisible());
    EXPECT_TRUE(units->viewport()->rect().contains(units->CellRect(21, 1))) << "what does the duty";
    EXPECT_FALSE(box->isVisible());
    EXPECT_EQ(window_->focusWidget(), units) << "the keys go on in the units";
    Press(Qt::Key_Return);
    EXPECT_TRUE(box->isVisible());
    EXPECT_EQ(box->geometry(), units->CellRect(c_.Venttab.row, c_.Venttab.column));
    EXPECT_EQ(box->text(), ShownText(c_.venttabText.text));
    EXPECT_EQ(window_->focusWidget(), box);
    Press(Qt::Key_Escape);
    EXPECT_FALSE(box->isVisible());
    EXPECT_EQ(window_->focusWidget(), units);
    Press(Qt::Key_Return);
    Press(Qt::Key_Return);
    EXPECT_FALSE(units->isVisible()) << "the list of units closes behind the choice";
    EXPECT_EQ(window_->focusWidget(), series) << "and the keys go back to the series";
    EXPECT_EQ(Find<QLabel>("ventlabel")->text(), QStringLiteral("AW 21 7 mm"));
    EXPECT_EQ(Find<QLabel>("R_Label")->text(), ShownText(c_.R_Label.text));
}

TEST_F(SelectionWindowTest, TheTabKeyReachesAllThatTakesInput) {
    Act([](VentZeigForm& form) { form.UserPickCell("KatalogSpread", 3, 3); });
    std::set<std::string> reached;
    for (int i = 0; i < 100; ++i) {
        const QWidget* focused = window_->focusWidget();
        ASSERT_NE(focused, nullptr);
        reached.insert(focused->objectName().toStdString());
        for (const QWidget* in = focused; in != window_.get(); in = in->parentWidget()) {
            const auto* area = qobject_cast<const QScrollArea*>(in);
            if (!area) continue;
            const QRect place(focused->mapTo(area->viewport(), QPoint()), focused->size());
            EXPECT_TRUE(area->viewport()->rect().contains(place.center()))
                << focused->objectName().toStdString() << " has the keys and is not to be seen";
        }
        Press(Qt::Key_Tab);
    }
    EXPECT_EQ(c_.KatalogSpread.RowCount(), 11) << "passing the makers searches for none";
    for (const QWidget* widget : window_->findChildren<QWidget*>()) {
        const bool takes = widget->isVisible() && widget->isEnabled() &&
                           (widget->focusPolicy() & Qt::TabFocus) != 0;
        const std::string name = widget->objectName().toStdString();
        if (!takes || name.starts_with("qt_")) continue;
        EXPECT_TRUE(reached.contains(name)) << name;
        QAccessibleInterface* spoken =
            QAccessible::queryAccessibleInterface(const_cast<QWidget*>(widget));
        ASSERT_NE(spoken, nullptr);
        EXPECT_FALSE(spoken->text(QAccessible::Name).isEmpty()) << name;
    }
}

TEST_F(SelectionWindowTest, SaysThatNoUnitIsChosen) {
    QTest::mouseClick(Find<QPushButton>("UeberNehm"), Qt::LeftButton);
    QApplication::processEvents();
    EXPECT_TRUE(window_->isVisible());
    EXPECT_TRUE(Find<QLabel>("StatusLab")->isVisible());
    EXPECT_EQ(Find<QLabel>("StatusLab")->text(), QStringLiteral("No unit is chosen"));
}

TEST_F(SelectionWindowTest, AMakerIsChosenByReturnOrAClick) {
    auto* makers = Find<QListWidget>("HerstellList");
    makers->setFocus();
    makers->setCurrentRow(1);
    EXPECT_EQ(c_.KatalogSpread.RowCount(), 11);
    Press(Qt::Key_Return);
    EXPECT_EQ(c_.KatalogSpread.RowCount(), 4);
    EXPECT_EQ(c_.KatalogSpread.Text(1, kSeriesTextColumn), "Eskedal Nordvind");
    QTest::mouseClick(makers->viewport(), Qt::LeftButton, Qt::NoModifier,
                      makers->visualItemRect(makers->item(0)).center());
    EXPECT_EQ(c_.KatalogSpread.RowCount(), 5);
    EXPECT_EQ(Find<GridView>("KatalogSpread")->model()->rowCount(), 4);
}

TEST_F(SelectionWindowTest, SpeaksTheInputsAndTheFigures) {
    planner_.NoteAirFlow(4000);
    window_->Refresh();
    const struct {
        const char *control, *name, *value;
    } spoken[] = {{"Capacity", "Refrigerating Capacity kW", "12"},
                  {"AirFlow", "Volume Flow", "4000 m³/h"},
                  {"Label3", "Evaporation to", "-10 °C"},
                  {"Hours", "Operating Hours h/a", "5000"}};
    for (const auto& one : spoken) {
        QAccessibleInterface* reader =
            QAccessible::queryAccessibleInterface(Find<QWidget>(one.control));
        ASSERT_NE(reader, nullptr);
        EXPECT_EQ(reader->text(QAccessible::Name).toStdString(), one.name);
        EXPECT_EQ(reader->text(QAccessible::Value).toStdString(), one.value) << one.control;
    }
    const auto kind = QAccessible::queryAccessibleInterface(Find<QWidget>("KindBox"));
    EXPECT_EQ(kind->text(QAccessible::Description), QStringLiteral("Component"));
    EXPECT_EQ(kind->text(QAccessible::Value), QStringLiteral("600 Air Coolers"));
    EXPECT_TRUE(Find<QLabel>("AirFlow")->isVisible());
    planner_.NoteAirFlow(0);
    window_->Refresh();
    EXPECT_FALSE(Find<QLabel>("AirFlow")->isVisible());
}

TEST_F(SelectionWindowTest, ComparesAndPlots) {
    Act([](VentZeigForm& form) { form.UserPickCell("KatalogSpread", 3, 3); });
    for (const int row : {21, 22}) {
        Act([row](VentZeigForm& form) { form.UserPickCell("Venttab", row, 1); });
        InDialog("Compare", [&](QDialog& dialog) {
            auto* table = dialog.findChild<QTableView*>();
            ASSERT_NE(table, nullptr);
            const QAbstractItemModel& model = *table->model();
            EXPECT_EQ(model.columnCount(), row - 19);
            EXPECT_EQ(model.headerData(row - 20, Qt::Horizontal).toString().toStdString(),
                      "AW " + std::to_string(row) + " 7 mm");
            EXPECT_EQ(table->horizontalScrollBar()->maximum(), 0) << "nothing is cut off";
            auto* back = dialog.findChild<QPushButton*>(QStringLiteral("Back"));
            ASSERT_NE(back, nullptr);
            EXPECT_EQ(back->text(), QStringLiteral("Back"));
        });
    }
    InDialog("Plot", [](QDialog& dialog) {
        bool told = false;
        for (const QWidget* widget : dialog.findChildren<QWidget*>()) {
            told = told || widget->accessibleDescription().contains(
                               QStringLiteral("AW 22 7 mm: 13.8 kW *"));
        }
        EXPECT_TRUE(told) << "the chosen unit";
    });
}

// A name without an ending gets that of the list.
TEST_F(SelectionWindowTest, TheListIsWrittenAsCsv) {
    InDialog("Csv", [this](QDialog& dialog) {
        auto* name = dialog.findChild<QLineEdit*>();
        ASSERT_NE(name, nullptr);
        EXPECT_EQ(name->text(), QStringLiteral("600 Air Coolers.csv"));
        name->setText(QString::fromStdString((folder_ / "list").string()));
        static_cast<QDialog&>(dialog).accept();
    });
    EXPECT_NE(folder_.Read("list.csv").find("Ulmrain AW"), std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(folder_ / "list"));
}

TEST_F(SelectionWindowTest, WideWindowsHaveBothListsBesideEachOther) {
    Act([](VentZeigForm& form) { form.UserPickCell("KatalogSpread", 3, 3); });
    auto* series = Find<GridView>("KatalogSpread");
    auto* units = Find<GridView>("Venttab");
    for (const auto& [width, beside] : {std::pair(1280, false), {2600, true}, {1024, false}}) {
        window_->resize(width, 800);
        QApplication::processEvents();
        const QPoint left = series->mapTo(window_.get(), QPoint()),
                     right = units->mapTo(window_.get(), QPoint());
        EXPECT_EQ(right.x() > left.x() + series->width(), beside) << width;
        EXPECT_EQ(units->horizontalScrollBar()->maximum(), 0) << width;
        EXPECT_NEAR(units->horizontalHeader()->length(), units->viewport()->width(), 2)
            << width << ": the table ends where the window does";
    }
}

// Languages with long words.
class SmallWindowTest : public SelectionWindowTest,
                        public ::testing::WithParamInterface<const char*> {
  protected:
    SmallWindowTest() : SelectionWindowTest(GetParam()) {}
};

TEST_P(SmallWindowTest, ShowsAllColumnsAndFigures) {
    window_->resize(1008, 650);
    QApplication::processEvents();
    EXPECT_LE(window_->width(), 1008);
    for (const int kind : {600, 650, 550, 250}) {
        OpenUnit(kind, 3, 0);
        EXPECT_EQ(Find<GridView>("Venttab")->horizontalScrollBar()->maximum(), 0) << kind;
        if (kind == 600 || kind == 550) OpenUnit(kind, 3, 1);
        for (const QScrollArea* area : window_->findChildren<QScrollArea*>()) {
            EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0) << kind << " cuts figures off";
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, SmallWindowTest, ::testing::Values("DEU", "FRA", "POR"));

}  // namespace
}  // namespace zandrell
