// All messages of a capture.
#ifndef TARN_TOOL_CAPTURE_CAPTURE_H
#define TARN_TOOL_CAPTURE_CAPTURE_H

#include "tarn/capture/found.h"
#include "tarn/capture/source.h"

namespace capture {

struct Options {
    std::uint32_t longest = 0;        // bytes of the longest message
    std::vector<std::uint16_t> ports; // whatever travels on these is a message
    std::vector<std::uint32_t> links; // whatever these link types hold is a message
};

void read_capture(Source &source, const Options &options, Sink &sink);

} // namespace capture

#endif
