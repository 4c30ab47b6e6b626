/* The host for ordinary Linux programs: what such a program may ask of it.
 *
 * Linking libtarn_host gives libtarn its memory, its lists and its reports. A program that is
 * content with the defaults needs nothing from this header. */
#ifndef TARN_HOST_H
#define TARN_HOST_H

#include <stdint.h>
#include <stdio.h>

#pragma GCC visibility push(default)
#ifdef __cplusplus
extern "C" {
#endif

/* ---- Memory ---------------------------------------------------------------------------------- */

/* Returns how many blocks, of all threads, are allocated and not yet freed. The number is exact
 * while no other thread allocates or frees. Meant for tests and for the end of a program: it visits
 * every thread's counters. */
uint64_t tarnHostLiveBlocks(void);

/* Prints the number of live blocks and the bytes that they take, as one line. In checking mode
 * lines follow that name the blocks and the places that allocated them. */
void tarnHostReportLiveBlocks(FILE *stream);

/* Gives free memory back to the system: what the calling thread keeps for reuse and what malloc
 * holds. Other threads go on keeping up to 64 KB each. */
void tarnHostTrim(void);

/* Limits what the host holds, live blocks and those kept for reuse, to so many bytes; 0 for no
 * limit, which is the default. An allocation beyond it is a fatal error, like one for which the
 * system has no memory. Returns the former limit. */
uint64_t tarnHostSetLimit(uint64_t bytes);

/* ---- Fatal errors ---------------------------------------------------------------------------- */

/* Told of a programming error, or that there is no more memory: `text` says what is wrong and is
 * never empty; `module` and `line` name the place that noticed. The handler may throw a C++
 * exception, jump out with longjmp or end the program. Should it return, the call that reported
 * fails, or, for want of memory, the program is aborted. */
typedef void (*TarnHostFatalErrorHandler)(void *context, const char *text, const char *module,
                                          uint32_t line);

/* A handler with the context that it is called with. */
typedef struct TarnHostFatalErrorReport {
    TarnHostFatalErrorHandler handler;
    void *context;
} TarnHostFatalErrorReport;

/* Has fatal errors of all threads told to `handler` from now on; null restores the default, which
 * prints the error to stderr and aborts. Returns what was set before (a null handler for the
 * default), so that it can be put back. May be called from any thread at any time; a handler
 * replaced while it runs finishes. */
TarnHostFatalErrorReport tarnHostSetFatalErrorHandler(TarnHostFatalErrorHandler handler,
                                                      void *context);

/* ---- Debug tokens ---------------------------------------------------------------------------- */

/* Told of a failed one-call Build or Get operation: `token` names the point of failure. */
typedef void (*TarnHostDebugTokenHandler)(void *context, uint32_t token, uint32_t value);

/* A handler with the context that it is called with. */
typedef struct TarnHostDebugTokenReport {
    TarnHostDebugTokenHandler handler;
    void *context;
} TarnHostDebugTokenReport;

/* Has debug tokens of all threads told to `handler` from now on; null restores the default, which
 * prints them to stderr. Returns what was set before (a null handler for the default). May be
 * called from any thread at any time. */
TarnHostDebugTokenReport tarnHostSetDebugTokenHandler(TarnHostDebugTokenHandler handler,
                                                      void *context);

#ifdef __cplusplus
}
#endif
#pragma GCC visibility pop

#endif
