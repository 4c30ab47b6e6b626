// Sizes on the wire of whole IEs and messages.
#ifndef TARN_SIZES_H
#define TARN_SIZES_H

#include "platform_calls.h"

namespace [[gnu::visibility("hidden")]] tarn {

// Returns the bytes that the IE occupies on the wire, header included; by its own tag, and 6 for a
// tag that the protocol does not code.
uint32_t ie_size(const TarnIe *ie);

// Returns the sum over all IEs of the list. The caller tells whose list it is.
uint32_t ies_size(const VelDllHead *list, Caller caller);

} // namespace tarn

#endif
