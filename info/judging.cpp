#include "judging.h"

#include <cstring>
#include <new>

#include "objects.h"

namespace info {

Judged as_judged(const std::uint8_t *bytes, std::uint32_t length,
                 const TarnInfoJudgement *judgement) {
    if (bytes == nullptr)
        return {};
    const TarnInfoJudgement judged =
        judgement != nullptr ? *judgement : tarnInfoJudge(bytes, length);
    return {bytes, std::min(judged.consumed, length), judged.message, Origin::wire};
}

Packed pack(const TarnMsg *msg) {
    Packed packed;
    packed.message = msg != nullptr ? message_of_id(msg->messageId) : nullptr;
    if (packed.message == nullptr)
        return packed;
    const auto size = std::uint32_t(TarnSizeOfMsg(msg));
    packed.bytes.reset(new std::uint8_t[size]);
    packed.size = tarnInfoPackMsg(msg, packed.bytes.get(), size);
    return packed;
}

} // namespace info

using namespace info;

// Interim: by way of the objects.
TarnInfoJudgement tarnInfoJudge(const uint8_t *bytes, uint32_t length) {
    TarnInfoJudgement judgement{TarnInfoRefused, nullptr, 0, 0};
    if (bytes == nullptr)
        return judgement;
    judgement.message = message_of_id(TarnGetMessageId(bytes, length));
    TarnMsg *unpacked = nullptr;
    if (TarnUnpackNewMsg(bytes, length, &unpacked) == 0)
        return judgement;
    const MsgPtr msg(unpacked);
    judgement.verdict = tarnInfoIsMsgValid(msg.get()) != 0 ? TarnInfoValid : TarnInfoInvalid;
    const Packed packed = pack(msg.get());
    judgement.consumed = packed.size;
    judgement.isPlain = judgement.verdict == TarnInfoValid && packed.size == length &&
                        std::memcmp(packed.bytes.get(), bytes, length) == 0;
    return judgement;
}

const char *tarnInfoVerdictWord(TarnInfoVerdict verdict) {
    static constexpr const char *words[] = {"valid", "invalid", "refused"};
    return verdict <= TarnInfoRefused ? words[verdict] : "unknown";
}
