#include "tarn/wire.h"

#include "tarn/writing.h"

namespace tool {

bool is_leaf(const TarnInfoPart &part) {
    return part.type->shape == TarnInfoNumber || part.type->shape == TarnInfoBytes ||
           part.type->form == TarnInfoDotted;
}

std::string readable(const TarnInfoPart &part) {
    char text[64];
    const std::uint32_t length =
        tarnInfoReadable(part.type, part.value, part.length, text, sizeof text);
    return length < sizeof text ? std::string(text, length) : std::string();
}

void append_value(const TarnInfoPart &part, std::string *text) {
    if (part.type->shape == TarnInfoNumber)
        append_number(part.number, text);
    else if (part.type->form == TarnInfoDotted)
        *text += readable(part);
    else
        append_hex({part.value, part.length}, text);
}

void append_ue(const Judged &judged, bool redacts, std::string *text) {
    const auto append_id = [text](const TarnInfoPart &part, bool isHex) {
        *text += text->empty() || text->back() == ' ' ? "" : " ";
        *text += part.name;
        *text += isHex ? " 0x" : " ";
        char digits[12];
        const auto end =
            std::to_chars(digits, digits + sizeof digits, part.number, isHex ? 16 : 10).ptr;
        text->append(digits, end);
    };
    judged.visit_parts([&](const TarnInfoPart &part) {
        if (part.depth != 0)
            return true;
        if (part.type->tag == srntiTag || part.type->tag == acUeIdTag)
            append_id(part, part.type->tag == srntiTag);
        if (part.type->tag == imsiTag) {
            *text += text->empty() || text->back() == ' ' ? "Imsi " : " Imsi ";
            *text += redacts ? "redacted" : readable(part);
        }
        return true;
    });
}

} // namespace tool
