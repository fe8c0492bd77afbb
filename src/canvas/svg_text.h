#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace zandrell {

// Appends a length of a scalable drawing, rounded to hundredths and as short as it can be written:
// "12.5", "-.25", "0". A value that is not finite, or beyond a thousand million, counts as 0.
void AppendSvgLength(std::string& text, double length);

// Appends ` name="value"`, the value with the five signs that markup keeps for itself replaced.
void AppendSvgAttribute(std::string& text, std::string_view name, std::string_view value);
void AppendSvgAttribute(std::string& text, std::string_view name, double length);

// Appends the attribute of a dashed stroke. In finer steps than lengths: the error of a dash grows
// along its line.
void AppendSvgDashes(std::string& text, double dash, double gap);

// Text between tags, its signs replaced likewise.
void AppendSvgText(std::string& text, std::string_view shown);

// The "d" of a path, in steps from point to point. Points are rounded where they lie, so that the
// rounding of the steps does not add up along the path.
class SvgPath {
  public:
    void MoveTo(double x, double y) { Append('m', {Rounded(x, y)}); }
    void LineTo(double x, double y) { Append('l', {Rounded(x, y)}); }
    void CurveTo(double x1, double y1, double x2, double y2, double x, double y);
    void Close() { text_ += 'z', command_ = 'z', last_ = start_; }

    const std::string& Text() const { return text_; }

  private:
    struct Point {
        long long x = 0, y = 0;  // hundredths
    };
    static Point Rounded(double x, double y);
    void Append(char command, std::initializer_list<Point> points);

    std::string text_;
    char command_ = 0;
    Point last_, start_;
};

}  // namespace zandrell
