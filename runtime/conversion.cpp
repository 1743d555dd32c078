#include "runtime/conversion.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace corvanda {

namespace {

double Halves_To_Even(double value) {
    const double below = std::floor(value);
    const double rest = value - below;
    if (rest != 0.5) return rest < 0.5 ? below : below + 1;
    return std::fmod(below, 2) == 0 ? below : below + 1;
}

template <typename Whole>
Whole Nearest(double value) {
    if (std::isnan(value)) return 0;
    const double low = std::numeric_limits<Whole>::min();
    const double high = std::numeric_limits<Whole>::max();
    return static_cast<Whole>(Halves_To_Even(std::clamp(value, low, high)));
}

bool Starts_A_Number(std::string_view text) {
    const auto digit = [](char c) { return c >= '0' && c <= '9'; };
    if (text.empty()) return false;
    return digit(text[0]) || (text[0] == '.' && text.size() > 1 && digit(text[1]));
}

long Exponent(std::string_view digits) {
    constexpr long BEYOND = 1000000000;
    const bool negative = digits.starts_with('-');
    if (digits.starts_with('+')) digits.remove_prefix(1);
    long exponent = 0;
    const auto end = std::from_chars(digits.data(), digits.data() + digits.size(), exponent);
    if (end.ec == std::errc::result_out_of_range) return negative ? -BEYOND : BEYOND;
    return exponent;
}

// The parser reports too large and too small alike. Which it is shows in the power of ten of the
// first digit that is not 0.
double Out_Of_Range(std::string_view spelled) {
    const auto e = std::min(spelled.find_first_of("eE"), spelled.size());
    const auto first = spelled.find_first_not_of("0.");
    const auto point = std::min(spelled.find('.'), e);
    const long power = static_cast<long>(point) - static_cast<long>(first);
    const long exponent = Exponent(spelled.substr(std::min(e + 1, spelled.size())));
    return power + exponent > 0 ? std::numeric_limits<double>::infinity() : 0;
}

}  // namespace

Integer CInt(double value) {
    return Nearest<Integer>(value);
}

Byte CByte(double value) {
    return Nearest<Byte>(value);
}

double Val(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    double sign = 1;
    if (!text.empty() && (text[0] == '-' || text[0] == '+')) {
        sign = text[0] == '-' ? -1 : 1;
        text.remove_prefix(1);
    }
    if (!Starts_A_Number(text)) return 0;
    double value = 0;
    const auto end = std::from_chars(text.data(), text.data() + text.size(), value);
    if (end.ec == std::errc::result_out_of_range) {
        value = Out_Of_Range({text.data(), static_cast<std::size_t>(end.ptr - text.data())});
    }
    return sign * value;
}

std::string Str(Integer value) {
    return (value < 0 ? "" : " ") + std::to_string(static_cast<int>(value));
}

}  // namespace corvanda
