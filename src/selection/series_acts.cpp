#include "selection/series_acts.h"

#include <algorithm>

#include "base/number_text.h"
#include "base/text_encoding.h"
#include "selection/unit_choice.h"

namespace zandrell {
namespace {

constexpr double kLowestPreview = 10980;            // twips, of its bottom
constexpr double kTipBelow = 550, kTipRight = 600;  // twips, from the corner of the list

}  // namespace

void SeriesActs::OpenChosen() {
    const Grid& grid = controls_.KatalogSpread;
    open_ = PlaceToOpen(grid.Text(grid.row, kLocatorColumn));
    ShowUnits(grid.row);
    context_.selection.OffeneSerie = kSeriesIsOpen;
}

void SeriesActs::Reopen() {
    const Grid& grid = controls_.KatalogSpread;
    const auto is_open = [&](int row) {
        const std::string& locator = grid.Text(row, kLocatorColumn);
        return !locator.empty() && PlaceToOpen(locator) == open_;
    };
    int row = grid.row;
    if (!is_open(row)) {
        row = 1;
        while (row < grid.RowCount() && !is_open(row)) ++row;
    }
    if (row < grid.RowCount()) {
        controls_.KatalogSpread.row = row;
        return ShowUnits(row);
    }
    controls_.pn77.visible = false;
    context_.selection.OffeneSerie = 0;
}

void SeriesActs::ShowUnits(int row) {
    SelectionShared& selection = context_.selection;
    const Grid& grid = controls_.KatalogSpread;
    selection.SerieStart = open_.SerieStart;
    selection.KatalogDatei = open_.KatalogDatei;
    const auto found_before = selection.AuswahlZeile;
    selection.AuswahlZeile = 0;
    units_.SerieLesen(selection.SerieStart - 2, kFillTable, row);
    // The range is read behind the run, which writes it anew for a series of 48 units.
    controls_.SerienPN.text = grid.Text(row, kSeriesTextColumn) + ":";
    // Kinds with a kv value have no range.
    if (!grid.Text(row, 1).empty()) {
        controls_.SerienPN.text += std::string(CrLf) + "Qo min = " + grid.Text(row, 1) +
                                   " kW, Qo max = " + grid.Text(row, 2) + " kW";
    }
    if (selection.AuswahlZeile > 0) {
        controls_.Venttab.row = selection.AuswahlZeile;
    } else {
        selection.AuswahlZeile = found_before;
    }
    controls_.pn77.visible = true;
    controls_.venttabText.visible = controls_.AssitPN.visible = false;
    HidePreview();
}

void SeriesActs::ShowPreview(int row) {
    const Grid& grid = controls_.KatalogSpread;
    const SeriesPlace place = PlaceToPreview(grid.Text(row, kLocatorColumn));
    const Serie serie = preview_.SerieLesen(place.KatalogDatei, place.SerieStart - 2);
    Panel& picture = controls_.Picture2;
    picture.picture =
        PictureOf(serie.Satz(1).Text(KatalogFeld::KatBild), context_.selection.inputs.KatalogArt);
    double top = grid.Height(0);
    for (int above = grid.TopRow(); above < row; ++above) top += grid.Height(above);
    picture.top = std::min(top, kLowestPreview - picture.height);
    picture.visible = true;
    controls_.AssitPN.visible = false;
}

void SeriesActs::HidePreview() {
    controls_.Picture2.visible = controls_.AssitPN.visible = false;
    controls_.KatalogSpread.hovered_row = 0;
}

void SeriesActs::TellLocator() {
    const Grid& grid = controls_.KatalogSpread;
    const SeriesPlace place = PlaceToOpen(grid.Text(grid.row, kLocatorColumn));
    Panel& tip = controls_.AssitPN;
    tip.text = "File = " + place.KatalogDatei +
               "   Adress = " + NumberText(static_cast<double>(place.SerieStart)) + " ";
    tip.top = kTipBelow;
    tip.left = kTipRight;
    tip.visible = true;
}

void ScrollRows(Grid& grid, bool up) {
    constexpr int kRows = 2;
    if (up && grid.TopRow() > 1) grid.SetTopRow(grid.TopRow() - kRows);
    if (!up && grid.TopRow() < grid.RowCount() - 1) grid.SetTopRow(grid.TopRow() + kRows);
}

}  // namespace zandrell
