#include "shell/control_dump.h"

#include <functional>
#include <utility>

#include "chart/overlay.h"
#include "forms/choice_list.h"
#include "forms/grid.h"
#include "forms/scroll_bar.h"

namespace zandrell {
namespace {

void AddPlace(const Panel& panel, Json& json) {
    json["left"] = panel.left;
    json["top"] = panel.top;
    json["width"] = panel.width;
    json["height"] = panel.height;
}

void AddScrollBar(const ScrollBar& bar, Json& json) {
    json["value"] = bar.Position();
    json["min"] = bar.LowEnd();
    json["max"] = bar.HighEnd();
}

void AddChoiceList(const ChoiceList& list, Json& json) {
    json["items"] = list.items;
    json["index"] = list.index;
    json["text"] = list.text;
    json["tool_tip"] = list.tool_tip;
}

void AddMark(const Mark& mark, Json& json) {
    json["left"] = mark.left;
    json["top"] = mark.top;
    json["width"] = mark.width;
    json["height"] = mark.height;
    json["shape"] = mark.shape;
    json["colour"] = mark.colour;
}

void AddLine(const ChartLine& line, Json& json) {
    json["x1"] = line.x1;
    json["y1"] = line.y1;
    json["x2"] = line.x2;
    json["y2"] = line.y2;
    json["colour"] = line.colour;
}

void AddChartLabel(const ChartLabel& label, Json& json) {
    json["text"] = label.text;
    json["left"] = label.left;
    json["top"] = label.top;
    json["colour"] = label.colour;
}

Json GridCells(const Grid& grid, const std::function<Json(int, int)>& cell) {
    Json rows = Json::array();
    for (int row = 0; row < grid.RowCount(); ++row) {
        Json cells = Json::array();
        for (int column = 0; column < grid.ColumnCount(); ++column) {
            cells.push_back(cell(row, column));
        }
        rows.push_back(std::move(cells));
    }
    return rows;
}

void AddGrid(const Grid& grid, Json& json) {
    json["rows"] = grid.RowCount();
    json["columns"] = grid.ColumnCount();
    json["top_row"] = grid.TopRow();
    json["row"] = grid.row;
    json["column"] = grid.column;
    Json widths = Json::array(), heights = Json::array();
    for (int column = 0; column < grid.ColumnCount(); ++column) {
        widths.push_back(grid.Width(column));
    }
    for (int row = 0; row < grid.RowCount(); ++row) heights.push_back(grid.Height(row));
    json["widths"] = std::move(widths);
    json["heights"] = std::move(heights);
    json["cells"] =
        GridCells(grid, [&](int row, int column) { return Json(grid.Text(row, column)); });
    json["backs"] = GridCells(grid, [&](int row, int column) {
        const auto back = grid.Back(row, column);
        return back ? Json(*back) : Json();
    });
}

std::string WithPlainLineEnds(std::string text) {
    for (auto end = text.find("\r\n"); end != std::string::npos; end = text.find("\r\n", end)) {
        text.erase(end, 1);
    }
    return text;
}

void AddOwn(const Control& control, Json& json) {
    switch (control.kind) {
        case ControlKind::OptionButton:
            json["text"] = control.text;
            json["value"] = static_cast<const OptionButton&>(control).on;
            break;
        case ControlKind::CheckBox:
            json["text"] = control.text;
            json["value"] = static_cast<const CheckBox&>(control).on;
            break;
        case ControlKind::List:
        case ControlKind::ComboBox:
            AddChoiceList(static_cast<const ChoiceList&>(control), json);
            break;
        case ControlKind::Grid:
            AddGrid(static_cast<const Grid&>(control), json);
            break;
        case ControlKind::Picture:
            json["picture"] = static_cast<const Panel&>(control).picture;
            AddPlace(static_cast<const Panel&>(control), json);
            break;
        case ControlKind::Panel:
            if (!control.text.empty()) json["text"] = control.text;
            AddPlace(static_cast<const Panel&>(control), json);
            break;
        case ControlKind::ScrollBar:
            AddScrollBar(static_cast<const ScrollBar&>(control), json);
            break;
        case ControlKind::Mark:
            AddMark(static_cast<const Mark&>(control), json);
            break;
        case ControlKind::Line:
            AddLine(static_cast<const ChartLine&>(control), json);
            break;
        case ControlKind::ChartLabel:
            AddChartLabel(static_cast<const ChartLabel&>(control), json);
            break;
        case ControlKind::TextField:
            json["text"] = WithPlainLineEnds(control.text);
            break;
        case ControlKind::Label:
        case ControlKind::Button:
        case ControlKind::MenuEntry:
            json["text"] = control.text;
            break;
    }
}

}  // namespace

Json DumpControl(const Control& control) {
    Json json;
    json["kind"] = KindWord(control.kind);
    AddOwn(control, json);
    json["visible"] = control.visible;
    json["enabled"] = control.enabled;
    if (control.foreground) json["foreground"] = *control.foreground;
    if (control.background) json["background"] = *control.background;
    if (!control.tool_tip.empty()) json["tool_tip"] = control.tool_tip;
    if (!control.hint.empty()) json["hint"] = control.hint;
    if (control.checked) json["checked"] = true;
    if (control.stale) json["stale"] = true;
    if (control.pending) json["pending"] = true;
    return json;
}

void DumpOpenWindows(const std::vector<ModalForm*>& windows, Json& json) {
    for (ModalForm* window : windows) {
        if (window->closed) continue;
        json[window->form.Name() + ".title"] = window->title;
        for (const Control* control : window->form.Controls()) {
            json[window->form.Name() + "." + std::string(control->name)] = DumpControl(*control);
        }
    }
}

Json DumpOfWindows(const std::vector<ModalForm*>& windows, std::string_view name) {
    const auto dot = name.find('.');
    if (dot == std::string_view::npos) return {};
    for (ModalForm* window : windows) {
        if (window->form.Name() != name.substr(0, dot)) continue;
        if (name.substr(dot + 1) == "title") return window->title;
        if (const Control* control = window->form.Find(name.substr(dot + 1))) {
            return DumpControl(*control);
        }
    }
    return {};
}

}  // namespace zandrell
