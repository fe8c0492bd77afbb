#include "canvas/sheet.h"

namespace zandrell {

double Sheet::ShortSideMm() const { return paper == "A2" ? 420 : paper == "A3" ? 297 : 210; }
double Sheet::LongSideMm() const { return paper == "A2" ? 594 : paper == "A3" ? 420 : 297; }

SheetItem& Sheet::AddAt(SheetItem::Kind kind, double x, double y) {
    SheetItem& item = items_.emplace_back(pen_);
    item.kind = kind;
    item.x1 = x;
    item.y1 = y;
    return item;
}

void Sheet::Line(double x1, double y1, double x2, double y2) {
    SheetItem& item = AddAt(SheetItem::Kind::Line, x1, y1);
    item.x2 = x2;
    item.y2 = y2;
}

void Sheet::Circle(double x, double y, double radius) {
    AddAt(SheetItem::Kind::Circle, x, y).radius = radius;
}

void Sheet::Text(double x, double y, std::string_view text, double room_right, TextFit fit) {
    SheetItem& item = AddAt(SheetItem::Kind::Text, x, y);
    item.text = text;
    item.room_right = room_right == 0 ? item.scale.right : room_right;
    item.fit = fit;
}

void Sheet::Picture(double x, double y, double right, double bottom, std::string_view file) {
    SheetItem& item = AddAt(SheetItem::Kind::Picture, x, y);
    item.x2 = right;
    item.y2 = bottom;
    item.text = file;
}

}  // namespace zandrell
