#include "words.h"

#include <cstdio>

namespace header_writer {
namespace {

std::string hexText(uint32_t number, int digits) {
    char text[16];
    std::snprintf(text, sizeof text, "0x%0*X", digits, number);
    return text;
}

// Bounds that are a number of bits read better in hexadecimal.
std::string numberText(uint32_t number) {
    const bool allOnes = (number & (number + 1)) == 0;
    return number > 0xFFFF && allOnes ? hexText(number, 8) : std::to_string(number);
}

} // namespace

std::string countText(uint32_t least, uint32_t greatest) {
    if (least == greatest)
        return numberText(least);
    return numberText(least) + " to " + numberText(greatest);
}

std::string boundText(uint32_t least, uint32_t greatest) {
    return least == 0 ? "at most " + numberText(greatest) : countText(least, greatest);
}

std::string bytesText(uint32_t least, uint32_t greatest) {
    return countText(least, greatest) + (greatest == 1 ? " byte" : " bytes");
}

bool takesAnyValue(const Primitive &row) {
    const uint32_t widest = row.width == 1 ? 0xFF : row.width == 2 ? 0xFFFF : 0xFFFFFFFF;
    return row.least == 0 && row.greatest >= widest;
}

std::string rangeText(const Primitive &row) {
    if (row.shape == Shape::bytes)
        return bytesText(row.least, row.greatest);
    return takesAnyValue(row) ? "any value" : countText(row.least, row.greatest);
}

std::string padded(const std::string &text, size_t width) {
    return text + std::string(width > text.size() ? width - text.size() : 0, ' ');
}

std::string bitText(uint32_t bit) {
    return hexText(bit, 2);
}

std::string tokenText(uint32_t token) {
    return hexText(token, 8);
}

} // namespace header_writer
