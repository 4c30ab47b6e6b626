#include "tarn/commands.h"

namespace tool {

int describe_schema(const std::string &, const Streams &) {
    throw UsageError("no schema yet");
}

} // namespace tool
