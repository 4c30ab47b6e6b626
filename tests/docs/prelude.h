/* What the examples in the documents take for granted. */
#include <stdio.h>
#include <string.h>

#include "tarn_host.h"
#include "tarn_info.h"

extern const uint8_t *bytes;
extern uint32_t length;
extern uint8_t buffer[4200];
extern uint32_t ok;
extern TarnMsg *msg;

extern TarnSrnti srnti;
extern TarnAcUeId acUeId;
extern TarnCnDomainId domain;
extern TarnNasMsg nas;
extern TarnRabId rabId;
extern TarnSuccTransferAtPsiw octets;
extern TarnIuRelCause cause;
extern TarnIuRelCauseNew newCause;
extern TarnBitRates guaranteed;
extern TarnSourceStatsDescriptor statistics;
extern TarnTransDelay delay;

extern TarnRabListIe *list;
extern TarnRabToSetUpInfoIe *rab;
extern TarnRabParamsIe *params;

void set_up(TarnRabToSetUpInfoIe *rab);
void write_log(void *context, const char *text, uint32_t length);
void on_fatal(void *context, const char *text, const char *module, uint32_t line);
