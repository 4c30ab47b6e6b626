// Whether IE and message objects keep the rules of their types: positions, mandatory children,
// counts, conditions. What travels on the wire is the unpackers' affair.
#ifndef TARN_VALIDITY_H
#define TARN_VALIDITY_H

#include "catalogue/descriptors.h"
#include "platform_calls.h"

namespace [[gnu::visibility("hidden")]] tarn {

// The operations of the public interface. A missing value or primitive IE is reported; a missing
// composite or message just answers 0, so that the result of a failed Extract or Unpack can be
// passed on as it is.
uint32_t is_valid_checked(const void *value, TypeId id);
uint32_t is_valid_checked(const TarnIe *ie, TypeId id);
uint32_t is_valid_checked(const TarnMsg *msg, MessageNumber id);

} // namespace tarn

#endif
