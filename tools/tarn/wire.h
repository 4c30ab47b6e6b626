// Parts of a message as its bytes hold them: values as text, and who it is about.
#ifndef TARN_TOOL_WIRE_H
#define TARN_TOOL_WIRE_H

#include "tarn/judged.h"

namespace tool {

constexpr std::uint32_t headerSize = 6;
constexpr std::uint32_t srntiTag = 1;
constexpr std::uint32_t acUeIdTag = 3;
constexpr std::uint32_t imsiTag = 169;

// A number, a byte string, or an address with dots: nothing in it is a part of its own.
bool is_leaf(const TarnInfoPart &part);
inline bool is_item_of_leaf(const TarnInfoPart &part) {
    return part.index != TarnInfoNoIndex && part.type->shape == TarnInfoNumber;
}
// A number in decimal, bytes in hex, an address with dots.
void append_value(const TarnInfoPart &part, std::string *text);
// The readable form, or nothing.
std::string readable(const TarnInfoPart &part);
// "Srnti 0x1e240 AcUeId 42"
void append_ue(const Judged &judged, bool redacts, std::string *text);

} // namespace tool

#endif
