// The codecs of every IE and value type, one at a time, on arbitrary bytes and arbitrary values.
//
// Input: a byte that picks the type, one that says what to do, then bytes from the wire, with the
// declared length before them where the bare value is unpacked; or a value's content.
#include "support/model.h"
#include "walks.h"

namespace {

using fuzz::Block;
using fuzz::Choices;

enum Mode { unpackIe, unpackValue, packAnything, modes };

constexpr std::uint32_t tagSize = 2;
constexpr std::uint32_t headerSize = 6;
constexpr std::uint32_t untouched = 0xEEEEEEEE;

bool is_leaf(const Type &type) {
    return type.shape == Shape::scalar || type.shape == Shape::bytes;
}

// ---- Bare values -------------------------------------------------------------------------------

Block pack_value(const Type &type, const Block &value) {
    Block packed(type.sizeOf(value.data()));
    std::uint32_t written = untouched;
    HOLDS(type.pack(value.data(), packed.data(), packed.size(), &written) == 1);
    HOLDS(written == packed.size());
    return packed;
}

// A value that unpacked or that is valid packs to bytes that unpack to the same, and into nothing
// less.
void check_value_round_trip(const Type &type, const Block &value) {
    const Block packed = pack_value(type, value);
    Block again(type.valueSize);
    std::uint32_t consumed = untouched;
    HOLDS(type.unpack(again.data(), packed.size(), packed.data(), packed.size(), &consumed) == 1);
    HOLDS(consumed == packed.size());
    HOLDS(pack_value(type, again) == packed);
    HOLDS(type.isValid(again.data()) == type.isValid(value.data()));
    if (packed.size() == 0)
        return;
    Block room(packed.size() - 1, 0xEE);
    std::uint32_t written = untouched;
    HOLDS(type.pack(value.data(), room.data(), room.size(), &written) == 0);
    HOLDS(written == (is_leaf(type) ? untouched : 0) && room.is_filled_with(0xEE));
}

void check_unpacking_value(const Type &type, Choices choices) {
    const std::uint32_t length = choices.word();
    const Block input = choices.rest();
    Block value(type.valueSize, 0xEE);
    std::uint32_t consumed = untouched;
    if (type.unpack(value.data(), length, input.data(), input.size(), &consumed) == 0) {
        if (is_leaf(type))
            HOLDS(consumed == untouched && value.is_filled_with(0xEE));
        else
            HOLDS(consumed <= input.size() && (length <= input.size() || consumed == 0));
        return;
    }
    HOLDS(length <= input.size() && consumed <= input.size());
    HOLDS(consumed == type.sizeOf(value.data()));
    check_value_round_trip(type, value);
}

// Whatever a caller's value holds, also as counts, nothing beyond its arrays is read, and nothing
// beyond the room written.
void check_packing_anything(const Type &type, Choices choices) {
    Block room(std::size_t(choices.byte()) << choices.below(8), 0xEE);
    Block value(type.valueSize);
    choices.fill(value.data(), value.size());
    std::uint32_t written = untouched;
    const bool packed = type.pack(value.data(), room.data(), room.size(), &written) != 0;
    HOLDS(written <= room.size() || (!packed && written == untouched));
    HOLDS(!packed || (written == type.sizeOf(value.data()) && room.is_filled_with(0xEE, written)));
    if (type.isValid(value.data()) != 0)
        check_value_round_trip(type, value);
}

// ---- Whole IEs ---------------------------------------------------------------------------------

// An IE object of the type: from the library for a composite, and for a primitive as a caller makes
// one of its own.
class IeObject {
public:
    explicit IeObject(const Type &type) : own_(type.is_composite() ? 0 : type.ieSize) {
        ie_ = static_cast<TarnIe *>(type.is_composite() ? type.create() : own_.data());
        ie_->tag = std::uint16_t(type.tag);
    }
    IeObject(const IeObject &) = delete;
    IeObject &operator=(const IeObject &) = delete;
    ~IeObject() {
        if (own_.size() == 0)
            TarnDeleteIe(ie_);
    }

    TarnIe *get() const { return ie_; }

private:
    Block own_;
    TarnIe *ie_;
};

// The bytes before the point of failure. In a composite, that is all that was appended.
void check_failure(const Type &type, const TarnIe *ie, std::uint32_t consumed) {
    const bool reachedValue = consumed != 0 && consumed != tagSize;
    if (reachedValue)
        HOLDS(consumed == (type.is_composite() ? TarnSizeOfIe(ie) : headerSize));
    else if (type.is_composite())
        HOLDS(TarnSizeOfIe(ie) == headerSize);
}

// One byte less than needed takes nothing.
void check_ie_room(const Type &type, const TarnIe *ie, std::uint32_t needed) {
    Block room(needed - 1, 0xEE);
    std::uint32_t written = untouched;
    HOLDS(type.packIe(ie, room.data(), room.size(), &written) == 0);
    HOLDS(written == 0 && room.is_filled_with(0xEE));
}

// What a composite's unpacking came to, held against a second reading of the rules.
struct Outcome {
    bool unpacked;
    std::uint32_t consumed;
};

void check_composite(const Type &type, const TarnIe *ie, const Block &input, Outcome outcome) {
    model::Unpacked expected = model::unpack_composite(type, {input.data(), input.size()});
    HOLDS(outcome.unpacked == expected.ok && outcome.consumed == expected.consumed);
    const Node node{&type, {}, std::move(expected.children)};
    HOLDS(samples::node_of(ie) == node);
    HOLDS((type.isIeValid(ie) != 0) == model::is_valid(node));
}

void check_unpacking_ie(const Type &type, const Block &input) {
    const IeObject object(type);
    std::uint32_t consumed = untouched;
    const bool unpacked = type.unpackIe(object.get(), input.data(), input.size(), &consumed) != 0;
    HOLDS(consumed <= input.size());
    if (type.is_composite())
        check_composite(type, object.get(), input, {unpacked, consumed});
    if (input.size() == 0) {
        HOLDS(unpacked == type.is_composite());
        return;
    }
    if (!unpacked) {
        check_failure(type, object.get(), consumed);
        return;
    }
    HOLDS(consumed == TarnSizeOfIe(object.get()));
    const Block packed = fuzz::pack(type, object.get());
    HOLDS(fuzz::is_canonical_form(packed, input.data(), input.size()));
    check_ie_room(type, object.get(), packed.size());
    const IeObject again(type);
    HOLDS(type.unpackIe(again.get(), packed.data(), packed.size(), &consumed) == 1);
    HOLDS(consumed == packed.size() && fuzz::pack(type, again.get()) == packed);
    HOLDS(type.isIeValid(again.get()) == type.isIeValid(object.get()));
    if (type.is_composite())
        HOLDS(fuzz::all_are_valid(protocol::children_of(object.get())));
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const fuzz::Watch watch;
    Choices choices(data, size);
    const Type &type = *protocol::types()[choices.below(protocol::types().size())];
    const std::size_t mode = choices.below(modes);
    if (mode == unpackIe || type.is_composite()) {
        if (type.hasIe)
            check_unpacking_ie(type, choices.rest());
    } else if (mode == unpackValue) {
        check_unpacking_value(type, choices);
    } else {
        check_packing_anything(type, choices);
    }
    return 0;
}
