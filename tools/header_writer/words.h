// Numbers and ranges in words, for the headers and for the reference tables.
#ifndef HEADER_WRITER_WORDS_H
#define HEADER_WRITER_WORDS_H

#include "model.h"

namespace header_writer {

// "4", "1 to 3".
std::string count_text(uint32_t least, uint32_t greatest);

// "4", "at most 3", "1 to 3".
std::string bound_text(uint32_t least, uint32_t greatest);

// "1 byte", "4 bytes", "1 to 3 bytes".
std::string bytes_text(uint32_t least, uint32_t greatest);

// Whether a scalar's width excludes all values out of its range.
bool takes_any_value(const Primitive &row);

// The range of a scalar or of a byte string's length: "any value", "0 to 1023", "1 to 16 bytes".
std::string range_text(const Primitive &row);

// Text filled up with spaces to a width.
std::string padded(const std::string &text, size_t width);

// A presence bit as C writes it: "0x80".
std::string bit_text(uint32_t bit);

// A debug token: "0x7A0100A1".
std::string token_text(uint32_t token);

} // namespace header_writer

#endif
