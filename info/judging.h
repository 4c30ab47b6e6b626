// What a message makes of bytes, told or taken for granted.
#ifndef TARN_INFO_JUDGING_H
#define TARN_INFO_JUDGING_H

#include <memory>

#include "reading.h"

namespace info {

// Bytes that can be read: the message that they hold (null for none) and what it took of them.
struct Judged {
    const std::uint8_t *bytes;
    std::uint32_t taken;
    const TarnInfoMessage *message;
    Origin origin;
};

// By the caller's judgement of the same bytes, or judged here if that is null.
Judged as_judged(const std::uint8_t *bytes, std::uint32_t length,
                 const TarnInfoJudgement *judgement);

// An object's bytes.
struct Packed {
    const TarnInfoMessage *message = nullptr;
    std::uint32_t size = 0; // 0 if it cannot be packed
    std::unique_ptr<std::uint8_t[]> bytes;

    Judged judged() const { return {bytes.get(), size, message, Origin::packed}; }
};
Packed pack(const TarnMsg *msg);

} // namespace info

#endif
