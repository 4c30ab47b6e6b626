// Valid IEs and messages made up from the protocol tables, and their bytes.
//
// A Node is an IE as the tests see it. The bytes made here come from the tables alone, without the
// library, so that one can be held against the other; and IE objects can be made here that the
// library's own operations would refuse.
#ifndef TARN_TEST_SAMPLES_H
#define TARN_TEST_SAMPLES_H

#include <cstdint>
#include <iosfwd>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "protocol/protocol.h"

namespace samples {

using Bytes = std::vector<std::uint8_t>;

// The debug token of every Get, held against the rows by being told once more.
constexpr std::uint32_t getToken = 0xB4D9287C;

// The same numbers for the same seed on every machine.
class Random {
public:
    explicit Random(std::uint64_t seed) : state_(seed) {}

    std::uint32_t next();
    std::uint32_t between(std::uint32_t least, std::uint32_t greatest);
    bool coin() { return (next() & 1) != 0; }

private:
    std::uint64_t state_;
};

struct Node {
    const protocol::Type *type = nullptr;
    Bytes value;                // primitive: its value as it lies in memory
    std::vector<Node> children; // composite
};
using Nodes = std::vector<Node>;

// Whether both have the same type and bytes.
bool operator==(const Node &a, const Node &b);
std::ostream &operator<<(std::ostream &out, const Node &node);

// How much a sample holds.
enum class Amount {
    least,  // no optional IEs, the shortest strings and lists, the least numbers
    slim,   // all optional IEs, yet strings and lists of an element or two
    random, // whatever is valid
    most,   // all optional IEs, the longest strings and lists, the greatest numbers that travel
    full,   // the same with any numbers that travel
};

template <class Wanted>
std::vector<const protocol::Type *> types_where(Wanted wanted) {
    std::vector<const protocol::Type *> found;
    for (const protocol::Type *type : protocol::types())
        if (wanted(*type))
            found.push_back(type);
    return found;
}

// The composite types: all, those with a table of slots, those of one repeated element.
std::vector<const protocol::Type *> composites();
std::vector<const protocol::Type *> sequences();
std::vector<const protocol::Type *> composite_lists();

const protocol::Type &type(std::string_view name);
const protocol::Message &message(std::string_view name);

// Tags that no IE has: gaps, tags that only list items carry, and what lies behind the last one.
std::vector<std::uint16_t> tags_without_ie();
// The bytes that are no message's id.
std::vector<std::uint32_t> unknown_ids();

bool is_conditional(const protocol::Slot &slot);
bool has_conditional(const std::vector<protocol::Slot> &slots);
// Whether a condition looks at the IE.
bool is_deciding(const protocol::Type &type);

// ---- Making samples up -------------------------------------------------------------------------

Node make_node(const protocol::Type &type, Amount amount, Random &random);

// The IEs of a sequence or message in table order, the conditional ones as the rules demand it.
// `deciding` is the number of the IE that the rules look at, where there is one.
Nodes make_nodes(const std::vector<protocol::Slot> &slots, Amount amount, Random &random,
                 std::optional<std::uint32_t> deciding = {});

// All IEs of a message, MessageId first.
Nodes make_message(const protocol::Message &message, Amount amount, Random &random,
                   std::optional<std::uint32_t> deciding = {});

// A primitive whose value decodes and is out of range, where its type has such values.
std::optional<Node> make_invalid(const protocol::Type &type, Random &random);

// Whether the conditional slot must hold its IE, given the IEs before it.
bool called_for(const protocol::Slot &slot, const Nodes &before);

std::uint32_t load_number(const protocol::Type &type, const void *value);
void store_number(const protocol::Type &type, void *value, std::uint32_t number);
std::uint32_t count_of(const void *value); // of a byte string or list

Node number_node(std::string_view type, std::uint32_t number);
std::uint32_t number_of(const Node &node);
void set_number(Node &node, std::uint32_t number);

// ---- Bytes -------------------------------------------------------------------------------------

Bytes encode_value(const protocol::Type &type, const void *value);
Bytes encode(const Node &node);
Bytes encode(const Nodes &nodes);

// "00 48" and the like as bytes; blanks do not count.
Bytes from_hex(std::string_view digits);

// A copy on the heap in a block of exactly its size, so that a sanitizer sees each byte read beyond
// it.
class Exact {
public:
    explicit Exact(const Bytes &bytes, std::size_t count);
    explicit Exact(const Bytes &bytes) : Exact(bytes, bytes.size()) {}

    const std::uint8_t *data() const { return block_.get(); }
    std::uint32_t size() const { return size_; }

private:
    std::unique_ptr<std::uint8_t[]> block_;
    std::uint32_t size_;
};

// ---- Objects -----------------------------------------------------------------------------------

struct Delete {
    void operator()(TarnIe *ie) const { TarnDeleteIe(ie); }
    void operator()(TarnMsg *msg) const { TarnDeleteMsg(msg); }
};
using IePtr = std::unique_ptr<TarnIe, Delete>;
using MsgPtr = std::unique_ptr<TarnMsg, Delete>;

// Objects made with the host's services alone: nothing is checked.
IePtr make_ie(const Node &node);
IePtr make_empty_ie(const protocol::Type &type);
MsgPtr make_msg(const protocol::Message &message, const Nodes &nodes);
void link(VelDllHead *list, IePtr ie);
VelDllHead *children_of(TarnIe *ie);

// What an object holds, read without the library.
Node node_of(const TarnIe *ie);
Nodes nodes_of(const VelDllHead &list);

// Objects made and read with the New, Append and Extract operations of the library. Null, or false,
// when one of them refuses.
IePtr create_ie(const Node &node);
MsgPtr create_msg(const protocol::Message &message, const Nodes &nodes);
bool append_all(void *owner, const std::vector<protocol::Slot> &slots, const Nodes &nodes);
Nodes extract_all(void *owner, const std::vector<protocol::Slot> &slots);
Nodes extract_all(TarnMsg *msg, const protocol::Message &message);

// ---- Records -----------------------------------------------------------------------------------

// A message record of so many bytes, all of one value.
class Record {
public:
    explicit Record(const protocol::Message &message, int filler = 0);

    void *data() { return words_.data(); }
    const void *data() const { return words_.data(); }
    std::uint8_t *at(std::size_t offset) {
        return reinterpret_cast<std::uint8_t *>(words_.data()) + offset;
    }
    std::uint8_t &message_id() { return *at(0); }
    std::uint8_t &presence() { return *at(1); }
    bool operator==(const Record &) const = default;

private:
    std::vector<std::uint32_t> words_; // no member needs a stricter alignment
};

// From and to the IEs behind the MessageId, which stand in table order, each at most once.
void fill_record(const protocol::Message &message, const Nodes &nodes, Record *record);
Nodes read_record(const protocol::Message &message, Record *record);

} // namespace samples

// The names that nearly every test uses.
using protocol::Message, protocol::Presence, protocol::Shape, protocol::Slot, protocol::Type;
using samples::Amount, samples::Bytes, samples::IePtr, samples::MsgPtr, samples::Node,
    samples::Nodes, samples::Random, samples::Record, samples::from_hex;

#endif
