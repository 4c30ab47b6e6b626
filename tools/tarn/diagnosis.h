// Why a message is not decodable or not valid, and what of it was left out.
#ifndef TARN_TOOL_DIAGNOSIS_H
#define TARN_TOOL_DIAGNOSIS_H

#include <cstdint>
#include <string>
#include <vector>

#include "tarn/values.h"

namespace tool {

// Something found at a place of the bytes. The path names IEs from the message down, with list
// elements by number: "RabList[1].RabParams.MaxSduSize".
struct Finding {
    std::uint32_t at;
    std::string path;
    std::string what;
};

std::string words(const Finding &finding);

struct Diagnosis {
    const Message *message = nullptr; // null if the bytes do not begin with a known message id
    MsgPtr decoded;                   // as far as it went; null without a message
    std::vector<Finding> faults;      // why the message is not decodable, or not valid; else empty
    bool isDecodable = false;
    std::vector<Finding> notes; // what may surprise in a message that decodes
    std::uint32_t consumed = 0; // bytes that the message took
};

// Walks the bytes as libtarn's unpackers do, IE by IE, so that it can say where and why they stop.
Diagnosis diagnose(const std::uint8_t *bytes, std::uint32_t length);

} // namespace tool

#endif
