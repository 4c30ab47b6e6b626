#include "judging.h"

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

const char *tarnInfoVerdictWord(TarnInfoVerdict verdict) {
    static constexpr const char *words[] = {"valid", "invalid", "refused"};
    return verdict <= TarnInfoRefused ? words[verdict] : "unknown";
}
