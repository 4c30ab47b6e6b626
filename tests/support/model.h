// What the library has to answer, worked out a second time: a plain reading of the protocol's rules
// over Nodes, slow and without objects, to hold the library against.
#ifndef TARN_TEST_MODEL_H
#define TARN_TEST_MODEL_H

#include <cstdint>
#include <optional>
#include <span>

#include "support/samples.h"

namespace model {

using Input = std::span<const std::uint8_t>;

struct Unpacked {
    bool ok = false;
    std::uint32_t consumed = 0;
    samples::Nodes children; // those taken, also on failure
};

Unpacked unpack_composite(const protocol::Type &type, Input bytes);
std::optional<samples::Nodes> unpack_msg(const protocol::Message &message, Input bytes);

bool is_valid(const samples::Node &node); // as an IE of its own type
bool is_valid(const protocol::Message &message, const samples::Nodes &nodes);

} // namespace model

#endif
