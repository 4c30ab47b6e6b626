// Reads the parts of a message straight from bytes that were judged before: no rule is asked here.
//
// What a type refuses at a place it refuses there whoever tries, so among the bytes that a message
// took, every IE whose tag a slot takes there belongs to that slot.
#ifndef TARN_INFO_READING_H
#define TARN_INFO_READING_H

#include <algorithm>

#include "facts.h"

namespace info {

inline std::uint32_t load16(const std::uint8_t *at) {
    return std::uint32_t(at[0]) << 8 | at[1];
}
inline std::uint32_t load32(const std::uint8_t *at) {
    return load16(at) << 16 | load16(at + 2);
}
inline std::uint32_t load_number(const std::uint8_t *at, std::uint32_t width) {
    return width == 4 ? load32(at) : width == 2 ? load16(at) : *at;
}

// Whether the type is shown as one value although it is made of items.
inline bool is_address(const TarnInfoType &type) {
    return type.form == TarnInfoDotted;
}

// The parts of an IpAddress, each a byte with tag and length of its own.
constexpr std::uint32_t addressParts = 4;
constexpr std::uint32_t addressItem = headerSize + 1;

// Where the bytes come from.
enum class Origin {
    wire,  // a peer: the codec does not go by the lengths of sequences, so neither does this
    packed // an object, whose IEs may stand in any order: lengths are exact
};

// The visitor has enter(part, slot) and leave(part) for what has parts of its own, leaf(part, slot)
// for the rest; enter and leaf return false to stop. `slot` is null for items and elements.
template <class Visitor>
class Reader {
public:
    // `taken` is what the message took of the bytes: nothing is read behind that.
    Reader(const std::uint8_t *bytes, std::uint32_t taken, Origin origin, Visitor *visitor)
        : bytes_(bytes), end_(taken), origin_(origin), visitor_(visitor) {}

    bool message(const TarnInfoMessage &message) { return slots(slots_of(message), end_, 0); }

private:
    std::uint32_t left() const { return end_ - at_; }
    bool has_header() const { return left() >= headerSize; }

    // There is no more, which ends all that is open.
    bool ended() {
        at_ = end_;
        return true;
    }

    // Fills in what the header at the position tells, and moves behind it.
    TarnInfoPart header(const TarnInfoType &type, const char *name, std::uint32_t depth,
                        std::uint32_t index) {
        const std::uint8_t *at = bytes_ + at_;
        TarnInfoPart part{name, &type, at_, depth, index, at + headerSize, load32(at + tagSize), 0};
        at_ += headerSize;
        return part;
    }

    // Where what has this length ends, if that is to be believed.
    std::uint32_t end_of(const TarnInfoPart &part) const {
        return part.length < left() ? at_ + part.length : end_;
    }

    bool slots(const Slots &slots, std::uint32_t end, std::uint32_t depth) {
        const TarnInfoSlot *next = slots.begin();
        std::uint32_t repeated = 0;
        while (at_ <= end && end - at_ >= headerSize) {
            const std::uint32_t tag = load16(bytes_ + at_);
            const TarnInfoSlot *slot = find(next, slots.end(), tag);
            if (slot == slots.end() && origin_ == Origin::packed)
                slot = find(slots.begin(), slots.end(), tag);
            if (slot == slots.end())
                return true;
            const bool repeats = slot->presence == TarnInfoRepeated;
            const std::uint32_t index = repeats && repeated++ != 0 ? repeated - 1 : TarnInfoNoIndex;
            if (!part(*slot->type, slot->name, slot, depth, index))
                return false;
            next = repeats ? slot : slot + 1;
        }
        return true;
    }

    static const TarnInfoSlot *find(const TarnInfoSlot *from, const TarnInfoSlot *to,
                                    std::uint32_t tag) {
        while (from != to && from->type->tag != tag)
            ++from;
        return from;
    }

    // Reads one part, header included; false if the visitor stops.
    bool part(const TarnInfoType &type, const char *name, const TarnInfoSlot *slot,
              std::uint32_t depth, std::uint32_t index) {
        TarnInfoPart part = header(type, name, depth, index);
        if (type.shape == TarnInfoNumber || type.shape == TarnInfoBytes)
            return leaf(&part, slot);
        if (is_address(type))
            return address(&part, slot);
        if (!visitor_->enter(part, slot) || !inside(part))
            return false;
        visitor_->leave(part);
        return true;
    }

    bool leaf(TarnInfoPart *part, const TarnInfoSlot *slot) {
        const TarnInfoType &type = *part->type;
        const bool isNumber = type.shape == TarnInfoNumber;
        const std::uint32_t size = isNumber ? type.width : part->length;
        if (size > left())
            return ended();
        if (isNumber)
            part->number = load_number(part->value, type.width);
        at_ += size;
        return visitor_->leaf(*part, slot);
    }

    bool address(TarnInfoPart *part, const TarnInfoSlot *slot) {
        if (left() < addressParts * addressItem)
            return ended();
        for (std::uint32_t i = 0; i < addressParts; ++i)
            part->number = part->number << 8 | part->value[i * addressItem + headerSize];
        at_ += addressParts * addressItem;
        return visitor_->leaf(*part, slot);
    }

    bool inside(const TarnInfoPart &owner) {
        const TarnInfoType &type = *owner.type;
        if (type.shape == TarnInfoSequence)
            return slots(slots_of(type), origin_ == Origin::packed ? end_of(owner) : end_,
                         owner.depth + 1);
        return type.shape == TarnInfoRecord ? members(owner) : items(owner);
    }

    bool members(const TarnInfoPart &owner) {
        for (const TarnInfoSlot &member : slots_of(*owner.type)) {
            if (!has_header())
                return ended();
            if (!part(*member.type, member.name, &member, owner.depth + 1, TarnInfoNoIndex))
                return false;
        }
        return true;
    }

    bool items(const TarnInfoPart &owner) {
        const TarnInfoType &item = *owner.type->item;
        const std::uint32_t end = end_of(owner);
        for (std::uint32_t i = 0; at_ < end; ++i) {
            if (!has_header())
                return ended();
            if (!part(item, item.name, nullptr, owner.depth + 1, i))
                return false;
        }
        return true;
    }

    const std::uint8_t *bytes_;
    std::uint32_t end_;
    std::uint32_t at_ = 0;
    Origin origin_;
    Visitor *visitor_;
};

} // namespace info

#endif
