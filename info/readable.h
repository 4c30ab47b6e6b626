// Values in the form that people know them by.
#ifndef TARN_INFO_READABLE_H
#define TARN_INFO_READABLE_H

#include <cstdint>
#include <string_view>

#include "tarn_info.h"

namespace info {

// Room for every readable form: two digits for each byte of the longest value that has one.
struct Readable {
    char text[40];
    std::uint32_t length = 0; // 0: it has none

    void put(char c) {
        if (length < sizeof text)
            text[length++] = c;
    }
    std::string_view view() const { return {text, length}; }
};

Readable readable(const TarnInfoType &type, const std::uint8_t *value, std::uint32_t length);

} // namespace info

#endif
