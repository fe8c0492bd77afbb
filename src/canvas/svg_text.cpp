#include "canvas/svg_text.h"

#include <charconv>
#include <cmath>

namespace zandrell {
namespace {

constexpr double kFurthest = 1e9;

long long Scaled(double length, int scale) {
    return std::abs(length) <= kFurthest ? std::llround(scale * length) : 0;
}

long long Hundredths(double length) { return Scaled(length, 100); }

// `value` counts in parts of which `scale`, a power of ten, make one.
void AppendParts(std::string& text, long long value, int scale) {
    if (value < 0) text += '-';
    const long long size = std::abs(value);
    if (size >= scale || size == 0) {
        char digits[24];
        const auto end = std::to_chars(digits, digits + sizeof digits, size / scale).ptr;
        text.append(digits, end);
    }
    long long rest = size % scale;
    if (rest != 0) text += '.';
    for (int unit = scale / 10; rest != 0; unit /= 10) {
        text += static_cast<char>('0' + rest / unit);
        rest %= unit;
    }
}

}  // namespace

void AppendSvgLength(std::string& text, double length) {
    AppendParts(text, Hundredths(length), 100);
}

void AppendSvgDashes(std::string& text, double dash, double gap) {
    constexpr int kFine = 100000;
    text += " stroke-dasharray=\"";
    AppendParts(text, Scaled(dash, kFine), kFine);
    text += ' ';
    AppendParts(text, Scaled(gap, kFine), kFine);
    text += '"';
}

void AppendSvgText(std::string& text, std::string_view shown) {
    for (const char sign : shown) {
        switch (sign) {
            case '&':
                text += "&amp;";
                break;
            case '<':
                text += "&lt;";
                break;
            case '>':
                text += "&gt;";
                break;
            case '"':
                text += "&quot;";
                break;
            case '\'':
                text += "&apos;";
                break;
            default:
                // Other control characters are not allowed in a document at all.
                if (static_cast<unsigned char>(sign) >= ' ' || sign == '\t') text += sign;
        }
    }
}

void AppendSvgAttribute(std::string& text, std::string_view name, std::string_view value) {
    text += ' ';
    text += name;
    text += "=\"";
    AppendSvgText(text, value);
    text += '"';
}

void AppendSvgAttribute(std::string& text, std::string_view name, double length) {
    text += ' ';
    text += name;
    text += "=\"";
    AppendSvgLength(text, length);
    text += '"';
}

SvgPath::Point SvgPath::Rounded(double x, double y) { return {Hundredths(x), Hundredths(y)}; }

void SvgPath::CurveTo(double x1, double y1, double x2, double y2, double x, double y) {
    Append('c', {Rounded(x1, y1), Rounded(x2, y2), Rounded(x, y)});
}

void SvgPath::Append(char command, std::initializer_list<Point> points) {
    // A letter that repeats is left out, but a second move would be read as a line.
    const bool repeats = command == command_ && command != 'm';
    if (!repeats) text_ += command;
    bool first = !repeats;
    Point end = last_;
    for (const Point& point : points) {
        for (const long long step : {point.x - last_.x, point.y - last_.y}) {
            // A minus sign keeps two numbers apart by itself.
            if (!first && step >= 0) text_ += ' ';
            AppendParts(text_, step, 100);
            first = false;
        }
        end = point;
    }
    command_ = command;
    last_ = end;
    if (command == 'm') start_ = end;
}

}  // namespace zandrell
