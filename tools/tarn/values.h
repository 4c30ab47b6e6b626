// Generic access to the values, objects and slots that the public interface declares.
#ifndef TARN_TOOL_VALUES_H
#define TARN_TOOL_VALUES_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "protocol/protocol.h"

namespace tool {

using protocol::Message;
using protocol::Shape;
using protocol::Slot;
using protocol::Type;
using Bytes = std::vector<std::uint8_t>;

// ---- What a value holds ------------------------------------------------------------------------

std::uint32_t scalar_of(const Type &type, const void *value);
void store_scalar(const Type &type, void *value, std::uint32_t number);
// The greatest number that is in range and travels whole: of a code word only 16 bits do.
std::uint32_t greatest_number(const Type &type);

// Byte strings and lists begin with their count.
std::uint32_t count_of(const void *value);
void store_count(void *value, std::uint32_t count);
const std::uint8_t *bytes_of(const void *value);
std::uint8_t *bytes_of(void *value);

inline const void *at_offset(const void *value, std::size_t offset) {
    return static_cast<const std::byte *>(value) + offset;
}
inline void *at_offset(void *value, std::size_t offset) {
    return static_cast<std::byte *>(value) + offset;
}
const void *item_at(const Type &list, const void *value, std::uint32_t index);
void *item_at(const Type &list, void *value, std::uint32_t index);

bool is_ip_address(const Type &type);
std::string dotted(const Type &ipAddress, const void *value);

// ---- Memory and objects ------------------------------------------------------------------------

// Zeroed memory for one value of a primitive type.
class ValueMemory {
public:
    explicit ValueMemory(const Type &type) : memory_(new std::byte[type.valueSize]()) {}
    void *get() { return memory_.get(); }

private:
    std::unique_ptr<std::byte[]> memory_;
};

struct Deleter {
    void operator()(TarnMsg *msg) const { TarnDeleteMsg(msg); }
    void operator()(TarnIe *ie) const { TarnDeleteIe(ie); }
};
using MsgPtr = std::unique_ptr<TarnMsg, Deleter>;
using IePtr = std::unique_ptr<TarnIe, Deleter>;

IePtr create_ie(const Type &composite);

// A message or composite IE object that is being filled or looked at: exactly one of both is set.
struct Owner {
    TarnMsg *msg = nullptr;
    TarnIe *ie = nullptr;
    const std::vector<Slot> &slots;

    void *object() const { return msg != nullptr ? static_cast<void *>(msg) : ie; }
    const VelDllHead *list() const;
};

// ---- Children ----------------------------------------------------------------------------------

// One direct child, in list order. `index` counts the occurrences of a repeated child.
struct Child {
    const Slot *slot;
    const TarnIe *ie;
    unsigned index;
    const Type &type() const { return *slot->type; }
};

std::vector<Child> children(const Owner &owner);

// Appends through the slot's own function, or that of the type's first slot. Returns false for a
// value that is not valid.
bool append_value(const Owner &owner, const Slot &slot, const void *value);
void append_ie(const Owner &owner, const Slot &slot, IePtr ie);

// ---- Conditions --------------------------------------------------------------------------------

bool is_conditional(const Slot &slot);
// Whether a child is called for in this slot; true for a slot without a condition.
bool is_called_for(const Owner &owner, const Slot &slot);
// The first conditional slot that is filled although it is not called for, or the other way round.
const Slot *unmet_condition(const Owner &owner);

} // namespace tool

#endif
