// Keys, wheel and pointer on the selection window, sent where the system sends them: to the window
// itself, which finds the widget that is meant.
#include <gtest/gtest.h>

#include <QLabel>
#include <QScrollBar>
#include <QWheelEvent>
#include <QWindow>

#include "desktop/accessible_walk.h"
#include "desktop/selection_session.h"

namespace zandrell {
namespace {

class SelectionInputTest : public SelectionWindowTest {
  protected:
    SelectionInputTest() {
        window_->activateWindow();
        QApplication::setActiveWindow(window_.get());
    }

    // The place of a cell in the window.
    QPoint PlaceOf(GridView& view, int row, int column) {
        return view.viewport()->mapTo(window_.get(), view.CellRect(row, column).center());
    }
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(window_->windowHandle(), key, modifiers);
        QApplication::processEvents();
    }
    void Type(const char* text) {
        for (const char* letter = text; *letter != 0; ++letter) {
            QTest::keyClick(window_->windowHandle(), *letter);
        }
        QApplication::processEvents();
    }
    void MoveTo(QPoint place) {
        QTest::mouseMove(window_->windowHandle(), place);
        QApplication::processEvents();
    }
    void Wheel(QPoint place, int eighths) {
        QWheelEvent event(place, window_->mapToGlobal(place), {}, {0, eighths}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(window_->windowHandle(), &event);
        QApplication::processEvents();
    }
};

TEST_F(SelectionInputTest, ARowUnderThePointerShowsItsFirstUnit) {
    auto* series = Find<GridView>("KatalogSpread");
    auto* preview = Find<QLabel>("Picture2");
    MoveTo(PlaceOf(*series, 1, 3));
    MoveTo(PlaceOf(*series, 3, 3));
    EXPECT_FALSE(preview->isVisible()) << "only behind a pause";
    ASSERT_TRUE(QTest::qWaitFor([&] { return preview->isVisible(); }, 5000));
    EXPECT_FALSE(preview->pixmap().isNull());
    EXPECT_EQ(c_.KatalogSpread.hovered_row, 3);
    EXPECT_EQ(preview->y(), series->CellRect(3, 1).top()) << "beside its row";
    EXPECT_GE(preview->x(), 0);
    EXPECT_LE(preview->geometry().right(), series->viewport()->width());
    MoveTo(PlaceOf(*series, 10, 3));
    ASSERT_TRUE(QTest::qWaitFor([&] { return c_.KatalogSpread.hovered_row == 10; }, 5000));
    MoveTo(Find<QWidget>("search")->mapTo(window_.get(), QPoint(5, 5)));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !preview->isVisible(); }, 5000)) << "left the list";
}

// From the duty to the unit in hand by the keys alone.
TEST_F(SelectionInputTest, TheWholeWayByKeys) {
    EXPECT_EQ(QApplication::focusWidget(), Find<QLineEdit>("Capacity"));
    Key(Qt::Key_A, Qt::ControlModifier);
    Type("20");
    Key(Qt::Key_Return);
    EXPECT_EQ(desk_.selection.inputs.QoSoll, 20);
    Find<QLineEdit>("search")->setFocus();
    Type("ulm aw");
    Key(Qt::Key_Return);
    EXPECT_EQ(c_.KatalogSpread.RowCount(), 2);
    EXPECT_EQ(QApplication::focusWidget(), Find<QLineEdit>("search"));
    Find<GridView>("KatalogSpread")->setFocus();
    Key(Qt::Key_Return);
    auto* units = Find<GridView>("Venttab");
    EXPECT_EQ(QApplication::focusWidget(), units);
    const int recommended = c_.Venttab.row;
    Key(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(c_.Venttab.row, recommended + 1);
    Key(Qt::Key_Return);
    EXPECT_EQ(QApplication::focusWidget(), Find<QLineEdit>("venttabText"));
    Key(Qt::Key_Return);
    EXPECT_EQ(c_.ventlabel.text, c_.Venttab.Text(recommended + 1, kUnitName));
    EXPECT_EQ(QApplication::focusWidget(), Find<GridView>("KatalogSpread"));
}

TEST_F(SelectionInputTest, KeysAndWheelScrollTheListTheyAreMeantFor) {
    window_->resize(1280, 560);  // so that both lists have more rows than room
    Act([](VentZeigForm& form) { form.UserPickCell("KatalogSpread", 3, 3); });
    auto* units = Find<GridView>("Venttab");
    auto* series = Find<GridView>("KatalogSpread");
    units->setFocus();
    units->verticalScrollBar()->setValue(0);
    QApplication::processEvents();
    const int top = c_.Venttab.TopRow(), series_top = c_.KatalogSpread.TopRow();
    Key(Qt::Key_Down);
    EXPECT_EQ(c_.Venttab.TopRow(), top + 2);
    EXPECT_EQ(units->rowAt(0) + 1, top + 2) << "to be seen";
    Wheel(PlaceOf(*units, top + 5, 1), -120);
    EXPECT_EQ(c_.Venttab.TopRow(), top + 4);
    Wheel(PlaceOf(*units, top + 5, 1), 120);
    Key(Qt::Key_Up);
    EXPECT_EQ(c_.Venttab.TopRow(), top);
    EXPECT_EQ(c_.KatalogSpread.TopRow(), series_top);
    Wheel(PlaceOf(*series, 2, 3), -120);
    EXPECT_EQ(c_.KatalogSpread.TopRow(), series_top + 2) << "the wheel goes where the pointer is";
    EXPECT_EQ(c_.Venttab.TopRow(), top);
}

TEST_F(SelectionInputTest, AHeadSortsAndSaysSo) {
    auto* series = Find<GridView>("KatalogSpread");
    QHeaderView* head = series->horizontalHeader();
    const auto click = [&](int column) {
        const QPoint place(head->sectionViewportPosition(column) + 5, head->height() / 2);
        QTest::mouseClick(window_->windowHandle(), Qt::LeftButton, {},
                          head->viewport()->mapTo(window_.get(), place));
        QApplication::processEvents();
    };
    const auto said = [&](int column) {
        return series->model()->headerData(column, Qt::Horizontal, Qt::ToolTipRole).toString();
    };
    click(2);
    EXPECT_EQ(c_.KatalogSpread.Text(1, 2), " .62");
    EXPECT_EQ(said(2), QStringLiteral("Qo max [kW] ▲"));
    click(2);
    EXPECT_EQ(c_.KatalogSpread.Text(1, 2), " 120");
    EXPECT_EQ(said(2), QStringLiteral("Qo max [kW] ▼"));
    click(0);
    EXPECT_EQ(c_.KatalogSpread.Text(1, 0), "1") << "as it was filled";
    EXPECT_EQ(said(2), QStringLiteral("Qo max [kW]"));
}

TEST_F(SelectionInputTest, AScreenReaderFindsANameAndAValueForAll) {
    const struct {
        int kind, series, figures, bars;  // at least
    } kinds[] = {{600, 3, 7, 1}, {650, 3, 8, 1}, {550, 1, 11, 1}, {250, 3, 4, 1}};
    for (const auto& kind : kinds) {
        OpenUnit(kind.kind, kind.series, 2);
        const Found found = LookAt(*window_);
        EXPECT_GT(found.focusable, 20) << kind.kind;
        EXPECT_GE(found.figures, kind.figures) << kind.kind;
        EXPECT_GE(found.bars, kind.bars) << kind.kind;
        OpenUnit(kind.kind, kind.series, 0);
        LookAt(*window_);
    }
    for (const char* button : {"Compare", "Plot"}) {
        OpenUnit(600, 3, 0);
        InDialog(button, [](QDialog& dialog) { EXPECT_GE(LookAt(dialog).focusable, 1); });
    }
    OpenUnit(550, 1, 2);
    EXPECT_EQ(
        QAccessible::queryAccessibleInterface(Find<QWidget>("HScroll1"))->text(QAccessible::Value),
        QStringLiteral("50 Hz"));
}

}  // namespace
}  // namespace zandrell
