// Bytes written as hex digits or as strings with escapes.
#ifndef TARN_TOOL_TEXT_HEX_H
#define TARN_TOOL_TEXT_HEX_H

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace text {

using Bytes = std::vector<std::uint8_t>;

// What may stand between bytes.
bool is_separator(char c);
// The value of a hex digit, or 16 and more.
unsigned hex_digit(char c);

// The bytes that a run of text holds as hex digits, with any of " \t\r,;:-._|" between bytes and 0x
// before them. Returns what is wrong, or nothing.
std::string append_hex(std::string_view text, Bytes *bytes);

// The bytes of strings in quotes, one behind the other, or of text without any: \x00, \0, \n and
// the like stand for bytes, in the way of C and Python. What is around the quotes is left out.
std::string append_strings(std::string_view text, Bytes *bytes);

} // namespace text

#endif
