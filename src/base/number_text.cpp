#include "base/number_text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace zandrell {
namespace {

constexpr int kSignificantDigits = 15;

bool IsSkipped(char c) { return c == ' ' || c == '\t' || c == '\n'; }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }

struct Decimal {
    std::string digits;  // without trailing zeros, the point stands behind the first
    int exponent = 0;
};

Decimal DecimalOf(double magnitude) {
    std::array<char, 40> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude,
                                   std::chars_format::scientific, kSignificantDigits - 1)
                         .ptr;
    Decimal result;
    const std::string_view text(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
    const auto mark = text.find('e');
    for (const char c : text.substr(0, mark)) {
        if (IsDigit(c)) result.digits += c;
    }
    result.digits.erase(result.digits.find_last_not_of('0') + 1);
    result.exponent = std::atoi(text.data() + mark + 1);
    return result;
}

std::string PlainForm(const Decimal& decimal) {
    const auto& digits = decimal.digits;
    if (decimal.exponent < 0) {
        return "." + std::string(static_cast<std::size_t>(-decimal.exponent - 1), '0') + digits;
    }
    const auto whole = static_cast<std::size_t>(decimal.exponent) + 1;
    if (digits.size() <= whole) return digits + std::string(whole - digits.size(), '0');
    return digits.substr(0, whole) + "." + digits.substr(whole);
}

std::string MantissaForm(const Decimal& decimal) {
    std::string text = decimal.digits.substr(0, 1);
    if (decimal.digits.size() > 1) text += "." + decimal.digits.substr(1);
    const int size = std::abs(decimal.exponent);
    text += decimal.exponent < 0 ? "E-" : "E+";
    if (size < 10) text += "0";
    return text + std::to_string(size);
}

// Walks over a text without the characters that a number may be spread with.
class NumberScanner {
  public:
    explicit NumberScanner(std::string_view text) : text_(text) { Skip(); }

    char Peek() const { return position_ < text_.size() ? text_[position_] : '\0'; }
    void Next() {
        ++position_;
        Skip();
    }
    bool TakeAnyOf(std::string_view wanted) {
        if (Peek() == '\0' || wanted.find(Peek()) == std::string_view::npos) return false;
        Next();
        return true;
    }
    bool TakeDigits(std::string& into) {
        const auto before = into.size();
        for (; IsDigit(Peek()); Next()) into += Peek();
        return into.size() > before;
    }

  private:
    void Skip() {
        while (position_ < text_.size() && IsSkipped(text_[position_])) ++position_;
    }
    std::string_view text_;
    std::size_t position_ = 0;
};

int DigitValue(char c) {
    if (IsDigit(c)) return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return std::numeric_limits<int>::max();
}

double PrefixedInteger(NumberScanner scanner) {
    int base = 0;
    if (scanner.TakeAnyOf("hH")) base = 16;
    if (base == 0 && scanner.TakeAnyOf("oO")) base = 8;
    double value = 0;
    if (base == 0) return value;
    for (; DigitValue(scanner.Peek()) < base; scanner.Next()) {
        value = value * base + DigitValue(scanner.Peek());
    }
    return std::isfinite(value) ? value : 0.0;
}

}  // namespace

std::string NumberText(double value) {
    if (!std::isfinite(value)) return {};
    if (value == 0) return " 0";
    const Decimal decimal = DecimalOf(std::abs(value));
    const bool plain =
        decimal.exponent >= -kSignificantDigits && decimal.exponent < kSignificantDigits;
    return (value < 0 ? "-" : " ") + (plain ? PlainForm(decimal) : MantissaForm(decimal));
}

std::string TrimmedNumberText(double value) {
    const std::string text = NumberText(value);
    return !text.empty() && text.front() == ' ' ? text.substr(1) : text;
}

std::string ExactNumberText(double value) {
    if (!std::isfinite(value)) return {};
    std::array<char, 32> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr;
    return std::string(buffer.data(), end);
}

double ParseNumber(std::string& text) {
    const auto comma = text.find(',');
    if (comma != std::string::npos && text.find('.') == std::string::npos) {
        auto right = text.find_first_not_of(' ', comma + 1);
        if (right == std::string::npos) right = text.size();
        text.replace(comma, right - comma, ".");
    }
    return ToDouble(text);
}

double ParsedNumber(std::string text) { return ParseNumber(text); }

double ToDouble(std::string_view text) {
    NumberScanner scanner(text);
    if (scanner.TakeAnyOf("&")) return PrefixedInteger(scanner);
    std::string number;
    if (scanner.TakeAnyOf("-")) {
        number = "-";
    } else {
        scanner.TakeAnyOf("+");
    }
    bool readable = scanner.TakeDigits(number);
    if (scanner.TakeAnyOf(".")) {
        number += readable ? "." : "0.";
        readable = scanner.TakeDigits(number) || readable;
    }
    if (!readable) return 0;
    if (scanner.TakeAnyOf("eEdD")) {
        std::string exponent = "e";
        if (scanner.TakeAnyOf("-")) {
            exponent += "-";
        } else {
            scanner.TakeAnyOf("+");
        }
        if (scanner.TakeDigits(exponent)) number += exponent;
    }
    double value = 0;
    const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
    return result.ec == std::errc() && std::isfinite(value) ? value : 0.0;
}

double Cut(double value, double factor) { return std::floor(value * factor) / factor; }

std::optional<int> RoundToInteger(double value) {
    const double rounded = std::nearbyint(value);
    if (!(rounded >= std::numeric_limits<int>::min() &&
          rounded <= std::numeric_limits<int>::max())) {
        return std::nullopt;
    }
    return static_cast<int>(rounded);
}

bool AssignFinite(double& target, double value) {
    if (!std::isfinite(value)) return false;
    target = value;
    return true;
}

}  // namespace zandrell
