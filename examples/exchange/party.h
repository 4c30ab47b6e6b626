/* One end of the exchange: walks the procedures over a connection, sending its own messages and
 * receiving the peer's. */
#ifndef EXCHANGE_PARTY_H
#define EXCHANGE_PARTY_H

#include <stdbool.h>
#include <stddef.h>
#include <stdio.h>

#include "procedures.h"

typedef struct Party {
    Side side;
    int connection;
    int timeoutMs; /* for each message */
    FILE *ladder;  /* where it is printed, or null */
    FILE *errors;
} Party;

/* Goes through the procedures and returns whether all went well. If not, the reason has been told
 * to `errors`. The connection remains the caller's. */
bool take_part(const Party *party, const Procedure *course, size_t count);

/* The whole of an AC or AP program: connects, takes part in the exchange, and returns the exit
 * status. The AC serves one AP; the AP prints the ladder. */
int run_ac(int listener);
int run_ap(uint16_t port);

#endif
