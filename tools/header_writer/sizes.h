// How large things are: on the wire, and in the caller's memory.
#ifndef HEADER_WRITER_SIZES_H
#define HEADER_WRITER_SIZES_H

#include "model.h"

namespace header_writer {

// The header that every IE has on the wire: 2 bytes of tag, 4 of length.
constexpr uint32_t ieHeaderSize = 6;

struct WireSize {
    uint32_t least;
    uint32_t greatest;
};

// The bytes of a valid value, without the IE's header.
WireSize value_size(const Catalogue &catalogue, const Primitive &row);

// The most bytes that a message built from its record can take: every slot filled once, every
// value, count and length at its greatest.
uint32_t greatest_built_size(const Catalogue &catalogue, const Message &row);

// sizeof the records, where integers are aligned to their size.
uint32_t record_memory(const Catalogue &catalogue, const Composite &row);
uint32_t record_memory(const Catalogue &catalogue, const Message &row);

} // namespace header_writer

#endif
