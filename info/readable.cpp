#include "readable.h"

#include <algorithm>
#include <charconv>
#include <cstring>

#include "reading.h"

namespace info {

namespace {

constexpr std::uint32_t noDigit = 15;    // fills up an odd number of digits
constexpr std::uint32_t mostDigits = 15; // of an IMSI

bool all_are(const std::uint8_t *from, const std::uint8_t *to, std::uint8_t byte) {
    return std::all_of(from, to, [byte](std::uint8_t b) { return b == byte; });
}

// Digits as text, with zeros behind them.
bool put_ascii_digits(const std::uint8_t *value, std::uint32_t length, Readable *out) {
    const std::uint8_t *end = value + length;
    const std::uint8_t *rest =
        std::find_if(value, end, [](std::uint8_t b) { return b < '0' || b > '9'; });
    if (rest == value || !all_are(rest, end, 0))
        return false;
    for (const std::uint8_t *at = value; at != rest; ++at)
        out->put(char(*at));
    return true;
}

// One digit in each half byte, the low half first, up to a filler.
void put_packed_digits(const std::uint8_t *value, std::uint32_t length, Readable *out) {
    for (std::uint32_t i = 0; i < 2 * length; ++i) {
        const std::uint32_t digit = value[i / 2] >> (i % 2 * 4) & 15U;
        const std::uint8_t *next = value + i / 2 + 1;
        const std::uint8_t *end = value + length;
        if (digit == noDigit && (i % 2 == 1 || value[i / 2] == 0xFF) &&
            (all_are(next, end, 0xFF) || all_are(next, end, 0)))
            return;
        if (digit > 9) {
            out->length = 0;
            return;
        }
        out->put(char('0' + digit));
    }
}

// Three bytes: MCC2 MCC1, MNC3 MCC3, MNC2 MNC1, where MNC3 may be missing.
void put_mcc_mnc(const std::uint8_t *value, Readable *out) {
    const unsigned mnc3 = unsigned(value[1]) >> 4;
    const unsigned digits[] = {value[0] & 15U, unsigned(value[0]) >> 4, value[1] & 15U,
                               value[2] & 15U, unsigned(value[2]) >> 4, mnc3 == noDigit ? 0 : mnc3};
    if (std::any_of(std::begin(digits), std::end(digits), [](auto digit) { return digit > 9; }))
        return;
    for (std::uint32_t i = 0; i < (mnc3 == noDigit ? 5U : 6U); ++i) {
        if (i == 3)
            out->put('-');
        out->put(char('0' + digits[i]));
    }
}

void put_hex_number(const std::uint8_t *value, std::uint32_t length, Readable *out) {
    out->put('0');
    out->put('x');
    for (std::uint32_t i = 0; i < 2 * length; ++i)
        out->put("0123456789abcdef"[value[i / 2] >> (i % 2 == 0 ? 4U : 0U) & 15U]);
}

void put_address(const std::uint8_t *value, Readable *out) {
    for (std::uint32_t i = 0; i < addressParts; ++i) {
        if (i != 0)
            out->put('.');
        char *end = out->text + sizeof out->text;
        const auto written =
            std::to_chars(out->text + out->length, end, value[i * addressItem + headerSize]);
        out->length = std::uint32_t(written.ptr - out->text);
    }
}

} // namespace

Readable readable(const TarnInfoType &type, const std::uint8_t *value, std::uint32_t length) {
    Readable out;
    switch (type.form) {
    case TarnInfoDotted:
        if (length == addressParts * addressItem)
            put_address(value, &out);
        break;
    case TarnInfoDigits:
        if (length <= type.capacity && !put_ascii_digits(value, length, &out))
            put_packed_digits(value, length, &out);
        if (out.length > mostDigits)
            out.length = 0;
        break;
    case TarnInfoMccMnc:
        if (length == type.capacity)
            put_mcc_mnc(value, &out);
        break;
    case TarnInfoHexNumber:
        if (length == type.capacity)
            put_hex_number(value, length, &out);
        break;
    default:
        break;
    }
    return out;
}

} // namespace info

using namespace info;

uint32_t tarnInfoReadable(const TarnInfoType *type, const uint8_t *value, uint32_t length,
                          char *text, uint32_t size) {
    if (type == nullptr || value == nullptr)
        return 0;
    const Readable form = readable(*type, value, length);
    if (text != nullptr && size != 0) {
        const uint32_t shown = std::min(form.length, size - 1);
        std::memcpy(text, form.text, shown);
        text[shown] = 0;
    }
    return form.length;
}
