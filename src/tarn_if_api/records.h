// The one-call road: a plain record to bytes, and bytes to a plain record.
//
// One walk over the slots in each direction: messages and composites have records of one pattern
// (presence mask, then a member per slot; a count, then an array), so none has code written for it.
#ifndef TARN_RECORDS_H
#define TARN_RECORDS_H

#include "catalogue/descriptors.h"
#include "platform_calls.h"

namespace [[gnu::visibility("hidden")]] tarn {

// Returns the number of bytes written, or 0 after reporting the failure's debug token.
template <class Id>
uint32_t build_msg(uint8_t *buffer, uint32_t size, const void *record, Id id);

// Fills the record from the bytes and returns 1, or 0 after reporting the debug token.
template <class Id>
uint32_t get_msg(const uint8_t *buffer, uint32_t length, void *record, Id id);

} // namespace tarn

#endif
