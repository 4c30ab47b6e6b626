// The one-call road: bytes to a plain record and back, and arbitrary records to bytes.
//
// Input: a byte that says what to do; for all but `ownRecord` one more that picks a message type;
// then a message's bytes or a record's content.
#include "support/samples.h"
#include "walks.h"

namespace {

using fuzz::Block;
using Tokens = std::vector<test_host::DebugToken>;

enum Mode { ownRecord, anyRecord, otherRecord, wideRecord, modes };

// More than the longest message: HandoverRequest with every list full takes about 70,000 bytes.
constexpr std::size_t amplyLong = 0x20000;

// The tokens reported by the call.
template <class Call>
Tokens tokens_of(Call call) {
    const std::size_t before = test_host::debug_tokens().size();
    call();
    const auto &all = test_host::debug_tokens();
    return {all.begin() + std::ptrdiff_t(before), all.end()};
}

// One byte less than needed is the caller's error.
void check_too_little_room(const Message &type, const Block &record, std::size_t needed) {
    Block room(needed - 1);
    const Tokens tokens = tokens_of([&] {
        HOLDS(fuzz::with_fatal_errors(
                  1, [&] { return type.build(room.data(), room.size(), record.data()); }) == 0);
    });
    HOLDS((tokens == Tokens{{type.packToken, 0}}));
}

// A record from a decoded message builds that message again, unless the message breaks a rule that
// its unpacker leaves to the validator.
void check_building(const Message &type, const Block &record, const Block &packed, bool valid) {
    Block room(packed.size(), 0xEE);
    std::uint32_t built = 0;
    const Tokens tokens =
        tokens_of([&] { built = type.build(room.data(), room.size(), record.data()); });
    if (!valid) {
        HOLDS(built == 0 && room.is_filled_with(0xEE));
        HOLDS((tokens == Tokens{{type.validityToken, 0}}));
        return;
    }
    HOLDS(built == packed.size() && room == packed && tokens.empty());
    check_too_little_room(type, record, built);
    Block again(type.recordSize);
    HOLDS(type.get(packed.data(), packed.size(), again.data()) == 1);
    HOLDS(again == record);
}

// Get succeeds exactly for what decodes.
void check_own_record(const Block &input) {
    const Message *type = protocol::message_by_id(TarnGetMessageId(input.data(), input.size()));
    const bool known = type != nullptr;
    if (!known)
        type = protocol::messages().front();
    Block record(type->recordSize);
    std::uint32_t got = 0;
    const Tokens tokens =
        tokens_of([&] { got = type->get(input.data(), input.size(), record.data()); });
    TarnMsg *msg = nullptr;
    HOLDS(got == TarnUnpackNewMsg(input.data(), input.size(), &msg));
    if (got == 0) {
        HOLDS((tokens == Tokens{{samples::getToken, 0}}) && record.is_filled_with(0));
        return;
    }
    HOLDS(known && tokens.empty());
    const Block packed = fuzz::pack(*type, msg);
    const bool valid = type->isValid(msg) != 0;
    TarnDeleteMsg(msg);
    check_building(*type, record, packed, valid);
}

// Takes away what does not travel: of a code word only the low 16 bits do, while the rules that
// decide on conditional IEs look at all of it.
void trim_code_words(const std::vector<Slot> &slots, std::uint8_t *record) {
    for (const Slot &slot : slots) {
        const Type &type = *slot.type;
        std::uint8_t *member = record + slot.recordOffset;
        if (type.width == 2 && type.valueSize == 4)
            *reinterpret_cast<std::uint32_t *>(member) &= 0xFFFF;
        else if (type.shape == Shape::sequence)
            trim_code_words(type.slots, member);
        else if (type.shape == Shape::compositeList)
            for (unsigned i = 0; i < type.capacity; ++i)
                trim_code_words(type.item->slots, member + type.itemsOffset + i * type.stride);
    }
}

// What is built from any trimmed record at all decodes as a message of its type. The peer may leave
// out optional composites whose own rules the record breaks, for the validators overlook these.
void check_any_record(const Message &type, const Block &record, bool trimmed) {
    Block room(amplyLong, 0xEE);
    std::uint32_t built = 0;
    const Tokens tokens =
        tokens_of([&] { built = type.build(room.data(), room.size(), record.data()); });
    HOLDS(built <= room.size() && room.is_filled_with(0xEE, built));
    if (built == 0) {
        HOLDS((tokens == Tokens{{type.appendToken, 0}}) ||
              (tokens == Tokens{{type.validityToken, 0}}));
        return;
    }
    HOLDS(tokens.empty());
    HOLDS(TarnGetMessageId(room.data(), built) == type.id);
    const Block bytes(room.data(), built);
    TarnMsg *msg = nullptr;
    const bool decoded = TarnUnpackNewMsg(bytes.data(), bytes.size(), &msg) != 0;
    HOLDS(decoded || !trimmed);
    if (decoded)
        TarnDeleteMsg(msg);
    check_own_record(bytes);
}

// Get into the record of another type fills what the two share; Build then finds whatever it finds.
void check_other_record(const Message &type, const Block &input) {
    Block record(type.recordSize);
    TarnMsg *msg = nullptr;
    const std::uint32_t decoded = TarnUnpackNewMsg(input.data(), input.size(), &msg);
    HOLDS(type.get(input.data(), input.size(), record.data()) == decoded);
    if (decoded == 0)
        return;
    TarnDeleteMsg(msg);
    check_any_record(type, record, true);
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const fuzz::Watch watch;
    fuzz::Choices choices(data, size);
    const std::size_t mode = choices.below(modes);
    if (mode == ownRecord) {
        check_own_record(choices.rest());
        return 0;
    }
    const auto &types = protocol::messages();
    const Message &type = *types[choices.below(types.size())];
    if (mode == otherRecord) {
        check_other_record(type, choices.rest());
        return 0;
    }
    Block record(type.recordSize);
    choices.fill(record.data(), record.size());
    if (mode == anyRecord)
        trim_code_words(type.slots, record.data());
    check_any_record(type, record, mode == anyRecord);
    return 0;
}
