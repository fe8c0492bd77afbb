#include "selection/unit_choice.h"

#include <array>

#include "base/number_text.h"
#include "base/text_encoding.h"

namespace zandrell {

std::string PictureOf(std::string_view KatBild, int KatalogArt) {
    std::string name = UpperCase(KatBild);
    if (name.find(".BMP") == std::string::npos) name = TrimmedNumberText(KatalogArt) + ".bmp";
    return name;
}

int ClassMarkTop(std::string_view efficiency_class) {
    constexpr std::array<std::pair<std::string_view, int>, 5> kPlaces = {
        {{"A", 579}, {"B", 1097}, {"C", 1616}, {"D", 2135}, {"E", 2135}}};
    for (const auto& [name, top] : kPlaces) {
        if (name == efficiency_class) return top;
    }
    return 60;
}

void UnitChoice::venttabEdit(int column, int row) {
    Grid& grid = controls_.Venttab;
    controls_.venttabText.text = grid.Text(row, column);
    controls_.venttabText.visible = true;
    grid.tool_tip = grid.Text(row, 0) + " " + grid.Text(0, column) + ": " + grid.Text(row, column);
}

void UnitChoice::ZeileWaehlen() {
    const Grid& grid = controls_.Venttab;
    const std::string& position = grid.Text(grid.row, kUnitPosition);
    if (position.empty()) return;
    SelectionShared& selection = context_.selection;
    selection.AuswahlZeile = RoundToInteger(ParsedNumber(position)).value_or(0);
    controls_.R_Label.text = grid.Text(grid.row, kUnitClass);
    controls_.Picture5.top = ClassMarkTop(controls_.R_Label.text);
    selection.BildDatei = PictureOf(grid.Text(grid.row, kUnitPicture), selection.inputs.KatalogArt);
    controls_.Picture1.picture = selection.BildDatei;
}

}  // namespace zandrell
