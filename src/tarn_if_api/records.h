// The one-call road: a plain record to bytes, and bytes to a plain record.
//
// One walk over the slots in each direction; messages and composites have records of one pattern
// (presence mask, then a member per slot; a count, then an array), so none has code of its own.
#ifndef TARN_RECORDS_H
#define TARN_RECORDS_H

#include "catalogue/descriptors.h"
#include "platform_calls.h"

namespace [[gnu::visibility("hidden")]] tarn {

// Returns the number of bytes written, or 0 after reporting the failure's debug token.
uint32_t build_msg(uint8_t *buffer, uint32_t size, const void *record, MessageNumber id);

// Fills the record from the bytes and returns 1, or 0 after reporting the debug token.
uint32_t get_msg(const uint8_t *buffer, uint32_t length, void *record, MessageNumber id);

} // namespace tarn

#endif
