/* Why were these bytes refused, and why this record? */
#include <stdio.h>

#include "tarn_info.h"

static void print(const char *what, const TarnInfoExplanation *why) {
    if (why == NULL)
        return; /* out of memory */
    printf("%s: %s\n", what, tarnInfoVerdictWord(why->verdict));
    for (uint32_t i = 0; i < why->faultCount; ++i)
        printf("  byte %u, %s: %s\n", why->faults[i].offset, why->faults[i].path,
               why->faults[i].sentence);
    for (uint32_t i = 0; i < why->noteCount; ++i)
        printf("  let pass: byte %u, %s\n", why->notes[i].offset, why->notes[i].sentence);
    tarnInfoFreeExplanation(why);
}

int main(void) {
    const uint8_t received[] = {0, 72, 0, 0, 0, 1, 30,                /* HandoverDetect */
                                0, 1,  0, 0, 0, 4, 0,  1, 0xE2, 0x40, /* Srnti */
                                0, 3,  0, 0, 0, 3, 0,  0, 42};        /* AcUeId, one byte short */
    print("received bytes", tarnInfoExplainBytes(received, sizeof received));

    TarnUlDirectTransferRecord record = {.Srnti = 123456, .AcUeId = 42}; /* and no NAS message */
    uint8_t buffer[100];
    if (TarnBuildUlDirectTransferMsg(buffer, sizeof buffer, &record) == 0)
        print("record", tarnInfoExplainRecord(TarnUlDirectTransferMsgId, &record, sizeof buffer));
    return 0;
}
