// Single values as JSON.
#ifndef TARN_INFO_PRINTING_H
#define TARN_INFO_PRINTING_H

#include "text.h"

namespace info {

// A number, or a string: of an address with dots, of bytes in hex or as the switches ask.
void put_json_value(const TarnInfoPart &part, std::uint32_t switches, Text *out);

} // namespace info

#endif
