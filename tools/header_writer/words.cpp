#include "words.h"

#include <cstdio>

namespace header_writer {
namespace {

std::string hex_text(uint32_t number, int digits) {
    char text[16];
    std::snprintf(text, sizeof text, "0x%0*X", digits, number);
    return text;
}

// Bounds that are a number of bits read better in hexadecimal.
std::string number_text(uint32_t number) {
    const bool allOnes = (number & (number + 1)) == 0;
    return number > 0xFFFF && allOnes ? hex_text(number, 8) : std::to_string(number);
}

} // namespace

std::string count_text(uint32_t least, uint32_t greatest) {
    if (least == greatest)
        return number_text(least);
    return number_text(least) + " to " + number_text(greatest);
}

std::string bound_text(uint32_t least, uint32_t greatest) {
    return least == 0 ? "at most " + number_text(greatest) : count_text(least, greatest);
}

std::string bytes_text(uint32_t least, uint32_t greatest) {
    return count_text(least, greatest) + (greatest == 1 ? " byte" : " bytes");
}

bool takes_any_value(const Primitive &row) {
    const uint32_t widest = row.width == 1 ? 0xFF : row.width == 2 ? 0xFFFF : 0xFFFFFFFF;
    return row.least == 0 && row.greatest >= widest;
}

std::string range_text(const Primitive &row) {
    if (row.shape == Shape::bytes)
        return bytes_text(row.least, row.greatest);
    return takes_any_value(row) ? "any value" : count_text(row.least, row.greatest);
}

std::string padded(const std::string &text, size_t width) {
    return text + std::string(width > text.size() ? width - text.size() : 0, ' ');
}

std::string bit_text(uint32_t bit) {
    return hex_text(bit, 2);
}

std::string token_text(uint32_t token) {
    return hex_text(token, 8);
}

} // namespace header_writer
