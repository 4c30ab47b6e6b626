/* A program in C, with a host that leaves its reports by longjmp: the jump passes through the
 * library, nothing is lost, and the library goes on working. */
#include <setjmp.h>
#include <stdio.h>
#include <string.h>

#include "tarn_host.h"
#include "tarn_if.h"

static jmp_buf landing;
static char reportedModule[64];
static int failures;

static void jump(void *context, const char *text, const char *module, uint32_t line) {
    (void)context;
    (void)text;
    (void)line;
    strncpy(reportedModule, module, sizeof reportedModule - 1);
    longjmp(landing, 1);
}

static void jump_from_token(void *context, uint32_t token, uint32_t value) {
    (void)token;
    (void)value;
    jump(context, "", "token", 0);
}

static void expect(int holds, const char *what) {
    if (!holds) {
        ++failures;
        fprintf(stderr, "failed: %s\n", what);
    }
}

/* Whether the operation was left by a jump. */
static int is_left(void (*operation)(void)) {
    reportedModule[0] = '\0';
    if (setjmp(landing) != 0)
        return 1;
    operation();
    return 0;
}

static void delete_nothing(void) {
    TarnDeleteMsg(NULL);
}

static void unpack_nothing(void) {
    TarnUnpackResetMsg(NULL, 15);
}

static void append_nothing(void) {
    TarnAppendSrntiToHandoverDetectMsg(NULL, NULL);
}

static void build_into_too_little_room(void) {
    uint8_t buffer[14]; /* one less than a Reset takes */
    const TarnResetRecord record = {.CnDomainId = 1};
    TarnBuildResetMsg(buffer, sizeof buffer, &record);
}

static void build_of_a_bad_value(void) {
    uint8_t buffer[15];
    static const TarnUlDirectTransferRecord record = {.NasMsg.length = 4097};
    TarnBuildUlDirectTransferMsg(buffer, sizeof buffer, &record);
}

static void get_from_cut_bytes(void) {
    static const uint8_t bytes[12] = {0, 72, 0, 0, 0, 1, 17, 0, 6, 0, 0, 0};
    TarnResetRecord record;
    TarnGetResetMsg(bytes, sizeof bytes, &record);
}

int main(void) {
    static const struct {
        const char *name;
        void (*operation)(void);
        const char *module;
    } cases[] = {
        {"delete", delete_nothing, "tarn_if_api"},
        {"unpack", unpack_nothing, "tarn_if_internal_funcs"},
        {"append", append_nothing, "tarn_if_api"},
        {"build", build_into_too_little_room, "tarn_if_api"},
        {"bad value", build_of_a_bad_value, "token"},
        {"cut bytes", get_from_cut_bytes, "token"},
    };
    static const uint8_t reset[15] = {0, 72, 0, 0, 0, 1, 17, 0, 6, 0, 0, 0, 2, 0, 1};
    uint8_t buffer[15];
    const TarnResetRecord record = {.CnDomainId = 1};
    size_t i;

    tarnHostSetFatalErrorHandler(jump, NULL);
    tarnHostSetDebugTokenHandler(jump_from_token, NULL);
    for (i = 0; i < sizeof cases / sizeof cases[0]; ++i) {
        expect(is_left(cases[i].operation), cases[i].name);
        expect(strcmp(reportedModule, cases[i].module) == 0, cases[i].module);
        expect(tarnHostLiveBlocks() == 0, "nothing is lost");
        expect(TarnBuildResetMsg(buffer, sizeof buffer, &record) == sizeof reset, "still builds");
        expect(memcmp(buffer, reset, sizeof reset) == 0, "the bytes of a Reset");
    }
    tarnHostSetFatalErrorHandler(NULL, NULL);
    tarnHostSetDebugTokenHandler(NULL, NULL);
    return failures != 0;
}
