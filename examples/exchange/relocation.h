/* What the two halves of the relocation share. */
#ifndef EXCHANGE_RELOCATION_H
#define EXCHANGE_RELOCATION_H

#include "messages.h"

/* Makes the container that goes from the source to the target; the caller owns it until it appends
 * it. *ok becomes 0 if a value was refused. */
TarnModifiedSrncContainerIe *new_srnc_container(const Knowledge *known, const TarnRrcContainer *rrc,
                                                TarnTargetCellId cell, uint32_t *ok);

/* Takes over a container that was received. False if something is missing. */
bool learn_srnc_container(TarnModifiedSrncContainerIe *ie, Knowledge *known, Notes *notes);

#endif
