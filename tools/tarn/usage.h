// The command line: what there is, and what is said of it.
#ifndef TARN_TOOL_USAGE_H
#define TARN_TOOL_USAGE_H

namespace tool {

extern const char *const toolFooter;
extern const char *const decodeFooter;
extern const char *const statsFooter;
extern const char *const diffFooter;
extern const char *const encodeFooter;
extern const char *const describeFooter;

} // namespace tool

#endif
