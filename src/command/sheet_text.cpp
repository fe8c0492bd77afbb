#include "command/sheet_text.h"

#include <nlohmann/json.hpp>

namespace zandrell {
namespace {

using Json = nlohmann::json;

Json AsJson(const PageScale& scale) { return {scale.left, scale.top, scale.right, scale.bottom}; }

PageScale ScaleFrom(const Json& json) { return {json.at(0), json.at(1), json.at(2), json.at(3)}; }

Json AsJson(const CanvasOperation& o) {
    return {
        static_cast<int>(o.stroke), o.x1, o.y1, o.x2, o.y2, o.colour, o.width, o.font_size, o.text,
        static_cast<int>(o.role)};
}

void DrawFrom(const Json& json, RecordingCanvas& chart) {
    const double x1 = json.at(1), y1 = json.at(2), x2 = json.at(3), y2 = json.at(4);
    const int colour = json.at(5);
    chart.SetLineWidth(json.at(6));
    chart.SetFontSize(json.at(7));
    chart.SetTextRole(static_cast<TextRole>(json.at(9).get<int>()));
    switch (static_cast<Stroke>(json.at(0).get<int>())) {
        case Stroke::Line:
            return chart.Line(x1, y1, x2, y2, colour);
        case Stroke::Dot:
            return chart.Dot(x1, y1, colour);
        case Stroke::Circle:
            return chart.Circle(x1, y1, x2, colour);
        case Stroke::Text:
            return chart.Text(x1, y1, json.at(8).get<std::string>());
    }
}

Json AsJson(const SheetItem& item) {
    return {static_cast<int>(item.kind),
            AsJson(item.scale),
            item.x1,
            item.y1,
            item.x2,
            item.y2,
            item.radius,
            item.line_width,
            item.font_size,
            item.bold,
            item.room_right,
            static_cast<int>(item.fit),
            item.on_chart,
            item.text};
}

SheetItem ItemFrom(const Json& json) {
    SheetItem item;
    item.kind = static_cast<SheetItem::Kind>(json.at(0).get<int>());
    item.scale = ScaleFrom(json.at(1));
    item.x1 = json.at(2);
    item.y1 = json.at(3);
    item.x2 = json.at(4);
    item.y2 = json.at(5);
    item.radius = json.at(6);
    item.line_width = json.at(7);
    item.font_size = json.at(8);
    item.bold = json.at(9);
    item.room_right = json.at(10);
    item.fit = static_cast<TextFit>(json.at(11).get<int>());
    item.on_chart = json.at(12);
    item.text = json.at(13);
    return item;
}

void TakePage(const Json& json, Sheet& sheet) {
    sheet.title = json.at("title");
    sheet.paper = json.at("paper");
    sheet.landscape = json.at("landscape");
    sheet.font_name = json.at("font");
    sheet.chart_scale = ScaleFrom(json.at("chart_scale"));
    sheet.chart.Clear(json.at("background"), json.at("foreground"));
    for (const Json& operation : json.at("chart")) DrawFrom(operation, sheet.chart);
    for (const Json& item : json.at("items")) sheet.Add(ItemFrom(item));
    for (const Json& page : json.at("further")) TakePage(page, sheet.further.emplace_back());
}

Json AsJson(const Sheet& sheet) {
    Json json = {{"title", sheet.title},
                 {"paper", sheet.paper},
                 {"landscape", sheet.landscape},
                 {"font", sheet.font_name},
                 {"chart_scale", AsJson(sheet.chart_scale)},
                 {"background", sheet.chart.Background()},
                 {"foreground", sheet.chart.Foreground()}};
    Json& chart = json["chart"] = Json::array();
    for (const CanvasOperation& operation : sheet.chart.Operations()) {
        chart.push_back(AsJson(operation));
    }
    Json& items = json["items"] = Json::array();
    for (const SheetItem& item : sheet.Items()) items.push_back(AsJson(item));
    Json& further = json["further"] = Json::array();
    for (const Sheet& page : sheet.further) further.push_back(AsJson(page));
    return json;
}

}  // namespace

std::string SheetAsText(const Sheet& sheet) {
    // Bytes of a title that are no UTF-8 must not stop a print-out.
    return AsJson(sheet).dump(-1, ' ', false, Json::error_handler_t::replace);
}

bool SheetFromText(const std::string& text, Sheet& sheet) {
    const Json json = Json::parse(text, nullptr, false);
    if (!json.is_object()) return false;
    try {
        sheet = {};
        TakePage(json, sheet);
        return true;
    } catch (const Json::exception&) {
        return false;
    }
}

}  // namespace zandrell
