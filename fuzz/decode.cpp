// Bytes from a peer, decoded as a message of whatever type they claim to be. What decodes is
// judged, packed again, taken apart and put together again, and decoded once more; and all of it is
// held against a second reading of the protocol's rules.
#include "support/model.h"
#if __has_include("tarn_info.h") // not built for every processor
#include "tarn_info.h"
#endif
#include "walks.h"

namespace {

using fuzz::Block;

// The two messages whose unpackers leave out conditional IEs that do not belong, and so may hand
// out a message that its validator then refuses.
constexpr std::uint32_t idIapReset = 18;
constexpr std::uint32_t idRelocationRequired = 24;

// Each IE object stands for at least a header of its own in the input, and there is the message.
// What is refused makes none. List calls follow the objects.
void check_work(std::size_t length, bool isRefused) {
    constexpr std::size_t headerSize = 6;
    HOLDS(test_host::allocations() <= (isRefused ? 0 : length / headerSize + 1));
    HOLDS(test_host::list_calls() <= 4 * test_host::allocations());
}

// Extracting finds every IE once, and appending what was found makes the same message.
void check_copy(const Message &type, TarnMsg *msg, const Block &packed) {
    const Nodes nodes = samples::extract_all(msg, type);
    HOLDS(nodes == samples::nodes_of(msg->ies));
    HOLDS(samples::extract_all(msg, type).empty());
    for (const TarnIe *ie : fuzz::members_of(&msg->ies))
        HOLDS(ie->extractHistory == 1);
    HOLDS(fuzz::pack(type, msg) == packed);
    const MsgPtr copy = samples::create_msg(type, nodes);
    HOLDS(copy != nullptr && fuzz::pack(type, copy.get()) == packed);
    HOLDS(type.isValid(copy.get()) == type.isValid(msg));
    TarnResetMsgExtractHistory(msg);
    for (const TarnIe *ie : fuzz::members_of(&msg->ies))
        HOLDS(ie->extractHistory == 0);
}

// A message that left out a conditional IE at its very end cannot be decoded again without it; any
// other must come out the same.
void check_second_decoding(const Message &type, const Block &packed, bool valid) {
    TarnMsg *msg = nullptr;
    const bool decoded = TarnUnpackNewMsg(packed.data(), packed.size(), &msg) != 0;
    HOLDS(decoded || (!valid && type.id == idRelocationRequired));
    if (!decoded)
        return;
    HOLDS(fuzz::pack(type, msg) == packed);
    HOLDS((type.isValid(msg) != 0) == valid);
    TarnDeleteMsg(msg);
}

void check_message(TarnMsg *msg, const Block &input, const Nodes &nodes) {
    const Message *type = protocol::message_by_id(msg->messageId);
    HOLDS(type != nullptr && msg->messageId == TarnGetMessageId(input.data(), input.size()));
    const bool valid = type->isValid(msg) != 0;
    HOLDS(valid == model::is_valid(*type, nodes));
    HOLDS(valid || type->id == idIapReset || type->id == idRelocationRequired);
    HOLDS(fuzz::all_are_valid(&msg->ies));
    const Block packed = fuzz::pack(*type, msg);
    HOLDS(fuzz::is_canonical_form(packed, input.data(), input.size()));
    check_copy(*type, msg, packed);
    check_second_decoding(*type, packed, valid);
}

// What the rules, read a second time, say of the input: the message's IEs, or nothing.
std::optional<Nodes> expected(const Block &input) {
    const Message *type = protocol::message_by_id(TarnGetMessageId(input.data(), input.size()));
    if (type == nullptr)
        return {};
    return model::unpack_msg(*type, {input.data(), input.size()});
}

// libtarn_info comes to the same end, and prints what there is.
void check_explanation(const Block &input, const TarnMsg *msg) {
#ifdef TARN_INFO_H
    const TarnInfoExplanation *why = tarnInfoExplainBytes(input.data(), input.size());
    HOLDS((why->verdict != TarnInfoRefused) == (msg != nullptr));
    HOLDS((why->verdict == TarnInfoValid) == (why->faultCount == 0));
    HOLDS(msg == nullptr || (why->verdict == TarnInfoValid) == (tarnInfoIsMsgValid(msg) != 0));
    HOLDS(msg == nullptr || why->consumed == std::uint32_t(TarnSizeOfMsg(msg)));
    HOLDS(why->consumed <= input.size());
    tarnInfoFreeExplanation(why);
    const auto drop = [](void *, const char *, std::uint32_t) {};
    for (const TarnInfoFormat format : {TarnInfoTree, TarnInfoJson})
        tarnInfoPrintBytes(input.data(), input.size(), nullptr, format, TarnInfoReadably, drop,
                           nullptr);
#else
    static_cast<void>(input);
    static_cast<void>(msg);
#endif
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const fuzz::Watch watch;
    const Block input(data, size);
    TarnMsg *msg = nullptr;
    const std::uint32_t result = TarnUnpackNewMsg(input.data(), input.size(), &msg);
    HOLDS(result == (msg != nullptr ? 1U : 0U));
    check_work(size, msg == nullptr);
    const auto nodes = expected(input);
    HOLDS(nodes.has_value() == (msg != nullptr));
    check_explanation(input, msg);
    if (msg == nullptr) {
        HOLDS(test_host::live_blocks() == 0);
        return 0;
    }
    HOLDS(samples::nodes_of(msg->ies) == *nodes);
    check_message(msg, input, *nodes);
    TarnDeleteMsg(msg);
    return 0;
}
