// A host for tests and fuzzing that distrusts the library: it guards both ends of every block,
// fills fresh and freed blocks with a pattern, knows each live block, and keeps what is reported.
#ifndef TARN_TEST_HOST_H
#define TARN_TEST_HOST_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace test_host {

struct FatalReport {
    std::string text;
    std::string module;
    std::uint32_t line;
};

struct DebugToken {
    std::uint32_t token;
    std::uint32_t value;
    bool operator==(const DebugToken &) const = default;
};

// What velSwFatalError does once it has noted the report.
enum class OnFatal {
    returns,
    throws, // the FatalReport
    aborts,
};

// Forgets all reports and counts, and lets fatal errors return.
void reset();
void set_on_fatal(OnFatal reaction);
// Has debug tokens thrown, as the DebugToken, once they are noted.
void throw_tokens();

// Is told of each call for memory or lists, from now on and also after a reset; null for nobody.
using Watch = void (*)(const char *service, const char *module);
void set_watch(Watch watch);

const std::vector<FatalReport> &fatal_reports();
const std::vector<DebugToken> &debug_tokens();

// Blocks allocated and not released; blocks ever allocated since the reset.
std::size_t live_blocks();
std::size_t allocations();
// IE objects linked with nothing written yet where their value begins, as far as the pattern tells.
std::size_t unset_links();
// List calls (get head, get next, find) since the reset, as a measure of work.
std::size_t list_calls();

// Foreign and double frees and overwritten guards abort the program with a message.

} // namespace test_host

#endif
