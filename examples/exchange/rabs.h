/* The RABs of the exchange, one per domain: their parameters, and the composite IEs that carry
 * them. */
#ifndef EXCHANGE_RABS_H
#define EXCHANGE_RABS_H

#include "messages.h"

/* Makes the list of the domain's one RAB; the caller owns it until it appends it. *ok becomes 0 if
 * a value was refused. */
TarnRabListIe *new_rab_list(TarnCnDomainId domain, uint32_t *ok);

/* Takes over the RABs of a list that was received. False if something is missing. */
bool learn_rab_list(TarnRabListIe *list, Bearer *bearer, Notes *notes);

#endif
