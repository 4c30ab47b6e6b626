/* The course of the exchange. */
#ifndef EXCHANGE_PROCEDURES_H
#define EXCHANGE_PROCEDURES_H

#include <stddef.h>

#include "messages.h"

enum { mostSteps = 8 };

typedef struct Procedure {
    const char *title;
    TarnCnDomainId domain;
    const MessageKind *steps[mostSteps + 1]; /* in order, null behind the last one */
} Procedure;

extern const Procedure procedures[];
extern const size_t procedureCount;

#endif
