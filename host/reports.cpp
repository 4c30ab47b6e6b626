// Fatal errors and debug tokens: reported to the program's handlers, or to stderr.

#include "support.h"
#include "tarn_host.h"

#include <cinttypes>
#include <cstdio>
#include <cstdlib>

namespace {

// A handler and its context change together, which is why a lock guards them. Handlers run outside
// it: they may throw, jump away, or set handlers themselves.
TarnHostFatalErrorReport fatal_error_report;
TarnHostDebugTokenReport debug_token_report;

template <typename Report>
Report current(const Report &report) {
    const tarn_host::Locked locked;
    return report;
}

template <typename Report>
Report exchange(Report &report, const Report &replacement) {
    const tarn_host::Locked locked;
    const Report former = report;
    report = replacement;
    return former;
}

// libtarn leaves the text empty: these are the only two errors that it reports.
const char *describe(const char *text) {
    const bool is_empty = text == nullptr || *text == '\0';
    return is_empty ? "a required pointer is null or a buffer is too small" : text;
}

} // namespace

TarnHostFatalErrorReport tarnHostSetFatalErrorHandler(TarnHostFatalErrorHandler handler,
                                                      void *context) {
    return exchange(fatal_error_report, {handler, context});
}

TarnHostDebugTokenReport tarnHostSetDebugTokenHandler(TarnHostDebugTokenHandler handler,
                                                      void *context) {
    return exchange(debug_token_report, {handler, context});
}

void velSwFatalError(const char *text, const char *module, uint32_t line) {
    const TarnHostFatalErrorReport report = current(fatal_error_report);
    if (report.handler != nullptr) {
        report.handler(report.context, describe(text), module, line);
        return;
    }
    std::fprintf(stderr, "tarn: fatal error in %s:%" PRIu32 ": %s\n", module, line, describe(text));
    std::abort();
}

void velSwTokenDebug(uint32_t token, uint32_t value) {
    const TarnHostDebugTokenReport report = current(debug_token_report);
    if (report.handler != nullptr) {
        report.handler(report.context, token, value);
        return;
    }
    std::fprintf(stderr, "tarn: debug token 0x%08" PRIX32 " value %" PRIu32 "\n", token, value);
}
