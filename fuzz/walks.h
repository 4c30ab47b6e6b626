// Generic walks over messages and IE objects by the protocol's tables.
#ifndef TARN_FUZZ_WALKS_H
#define TARN_FUZZ_WALKS_H

#include "fuzz.h"
#include "protocol/protocol.h"

namespace fuzz {

// The IE objects that a list holds, in its order.
std::vector<TarnIe *> members_of(const VelDllHead *list);

// The message or IE object as bytes, checked to fill a buffer of its size exactly.
Block pack(const protocol::Message &type, const TarnMsg *msg);
Block pack(const protocol::Type &type, const void *ie);

// Whether all IE objects of the list, to any depth, pass the validators of their own types.
bool all_are_valid(const VelDllHead *list);

// Whether `packed`, which must be well-formed, is how the library should write what it read from
// `bytes`: the same to the last byte, except that records, lists and sequence composites bear their
// true lengths. When reading, their length fields are not what ends them.
bool is_canonical_form(const Block &packed, const std::uint8_t *bytes, std::size_t size);

} // namespace fuzz

#endif
