// Bytes that a careless or hostile peer might have made of valid ones.
#ifndef TARN_TEST_MUTATIONS_H
#define TARN_TEST_MUTATIONS_H

#include "support/samples.h"

namespace samples {

// Does one or a few of: changes a byte, a bit or a length; cuts off, doubles, drops or swaps whole
// IEs at any depth.
Bytes mutate(Nodes nodes, Random &random);

} // namespace samples

#endif
