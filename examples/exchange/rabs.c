#include "rabs.h"

#include <stddef.h>

enum { conversational = 0, interactive = 3 };
enum { mostSubflows = 3, mostFormats = 3 };

typedef struct Subflow {
    TarnDeliveryOfErrSdu deliveryOfErrSdu;
    TarnBitErrRatio residualErrors;
    size_t formatCount;
    TarnSduSize formats[mostFormats]; /* bits */
    bool isErrorChecked;
    TarnBitErrRatio sduErrors; /* where they are checked */
} Subflow;

typedef struct Rab {
    Bearer bearer;
    TarnTrafficClass trafficClass;
    TarnRabAssymetryInd asymmetry;
    TarnMaxSduSize maxSduSize; /* bits */
    TarnBitRates maxBitRates;
    TarnUserPlaneInfo userPlane;
    size_t subflowCount;
    Subflow subflows[mostSubflows];
    /* For a real-time class. */
    TarnBitRates guaranteedBitRates;
    TarnSourceStatsDescriptor source;
    TarnTransDelay transDelay; /* ms */
    /* For the interactive class. */
    TarnTrafficHandlingPriority handlingPriority;
} Rab;

static const Rab rabs[domainCount] = {
    /* AMR speech at 12.2 kbit/s: three classes of bits, each in speech and in comfort noise. */
    {.bearer = {.rabId = 5, .acAssociation = 0xAC000005},
     .trafficClass = conversational,
     .asymmetry = 0,
     .maxSduSize = 244,
     .maxBitRates = {.count = 1, .items = {12200}},
     .userPlane = {.UserPlaneMode = 1, .UserPlaneModeVersions = 2},
     .subflowCount = 3,
     .subflows = {{1, {1, 6}, 2, {81, 39}, true, {7, 3}},
                  {0, {1, 3}, 2, {103, 0}, false, {0, 0}},
                  {0, {5, 3}, 2, {60, 0}, false, {0, 0}}},
     .guaranteedBitRates = {.count = 1, .items = {12200}},
     .source = 0,
     .transDelay = 80},
    /* Data: as fast as it goes. */
    {.bearer = {.rabId = 6, .acAssociation = 0xAC000006},
     .trafficClass = interactive,
     .asymmetry = 2,
     .maxSduSize = 12000,
     .maxBitRates = {.count = 2, .items = {384000, 64000}},
     .userPlane = {.UserPlaneMode = 0, .UserPlaneModeVersions = 1},
     .subflowCount = 1,
     .subflows = {{0, {1, 5}, 0, {0}, true, {1, 4}}},
     .handlingPriority = 2},
};

/* ---- Values to objects, from the leaves up --------------------------------------------------- */

/* Appending a value fails if the value is invalid; appending a composite IE cannot fail, and makes
 * the parent its owner. */

static TarnSduFormatInfoParamListIe *new_formats(const Subflow *subflow, uint32_t *ok) {
    TarnSduFormatInfoParamListIe *list = TarnNewSduFormatInfoParamListIe();
    for (size_t i = 0; i < subflow->formatCount; ++i) {
        TarnSduFormatInfoParamsIe *format = TarnNewSduFormatInfoParamsIe();
        *ok &= TarnAppendSduSizeToSduFormatInfoParamsIe(format, &subflow->formats[i]);
        TarnAppendSduFormatInfoParamsIeToSduFormatInfoParamListIe(list, format);
    }
    return list;
}

/* BitErrRatio has two places: the first append fills the first one, the second append the other. */
static TarnSduParamValueIe *new_subflow(const Subflow *subflow, uint32_t *ok) {
    TarnSduParamValueIe *ie = TarnNewSduParamValueIe();
    *ok &= TarnAppendDeliveryOfErrSduToSduParamValueIe(ie, &subflow->deliveryOfErrSdu);
    *ok &= TarnAppendBitErrRatioToSduParamValueIe(ie, &subflow->residualErrors);
    if (subflow->formatCount != 0)
        TarnAppendSduFormatInfoParamListIeToSduParamValueIe(ie, new_formats(subflow, ok));
    if (subflow->isErrorChecked)
        *ok &= TarnAppendBitErrRatioToSduParamValueIe(ie, &subflow->sduErrors);
    return ie;
}

static TarnSduParamsIe *new_subflows(const Rab *rab, uint32_t *ok) {
    TarnSduParamsIe *list = TarnNewSduParamsIe();
    for (size_t i = 0; i < rab->subflowCount; ++i)
        TarnAppendSduParamValueIeToSduParamsIe(list, new_subflow(&rab->subflows[i], ok));
    return list;
}

/* The traffic class calls for some children and forbids the others: ask the library which. */
static void append_conditional(TarnRabParamsIe *ie, const Rab *rab, uint32_t *ok) {
    if (TarnIfTrafficClassIsRealTimeForIe(NULL, ie)) {
        *ok &= TarnAppendBitRatesToRabParamsIe(ie, &rab->guaranteedBitRates);
        *ok &= TarnAppendSourceStatsDescriptorToRabParamsIe(ie, &rab->source);
        *ok &= TarnAppendTransDelayToRabParamsIe(ie, &rab->transDelay);
    }
    if (TarnIfTrafficClassInteractiveForIe(NULL, ie))
        *ok &= TarnAppendTrafficHandlingPriorityToRabParamsIe(ie, &rab->handlingPriority);
}

static TarnRabParamsIe *new_rab_params(const Rab *rab, uint32_t *ok) {
    const TarnDeliveryOrder inOrder = 0;
    const TarnAllocRetPriority priority = {.PriorityLevel = 3};
    TarnRabParamsIe *ie = TarnNewRabParamsIe();
    *ok &= TarnAppendTrafficClassToRabParamsIe(ie, &rab->trafficClass);
    *ok &= TarnAppendRabAssymetryIndToRabParamsIe(ie, &rab->asymmetry);
    *ok &= TarnAppendDeliveryOrderToRabParamsIe(ie, &inOrder);
    *ok &= TarnAppendMaxSduSizeToRabParamsIe(ie, &rab->maxSduSize);
    *ok &= TarnAppendBitRatesToRabParamsIe(ie, &rab->maxBitRates);
    TarnAppendSduParamsIeToRabParamsIe(ie, new_subflows(rab, ok));
    *ok &= TarnAppendAllocRetPriorityToRabParamsIe(ie, &priority);
    append_conditional(ie, rab, ok);
    return ie;
}

static TarnRabToSetUpInfoIe *new_rab(const Rab *rab, uint32_t *ok) {
    TarnRabToSetUpInfoIe *ie = TarnNewRabToSetUpInfoIe();
    *ok &= TarnAppendRabIdToRabToSetUpInfoIe(ie, &rab->bearer.rabId);
    *ok &= TarnAppendAcUserPlaneAssociationToRabToSetUpInfoIe(ie, &rab->bearer.acAssociation);
    TarnAppendRabParamsIeToRabToSetUpInfoIe(ie, new_rab_params(rab, ok));
    *ok &= TarnAppendUserPlaneInfoToRabToSetUpInfoIe(ie, &rab->userPlane);
    return ie;
}

TarnRabListIe *new_rab_list(TarnCnDomainId domain, uint32_t *ok) {
    TarnRabListIe *list = TarnNewRabListIe();
    TarnAppendRabToSetUpInfoIeToRabListIe(list, new_rab(&rabs[domain], ok));
    return list;
}

/* ---- Objects to values ----------------------------------------------------------------------- */

static unsigned count_formats(TarnSduParamValueIe *subflow) {
    unsigned count = 0;
    TarnSduFormatInfoParamListIe *list;
    TarnSduFormatInfoParamsIe *format;
    if (TarnExtractSduFormatInfoParamListIeFromSduParamValueIe(subflow, &list))
        while (TarnExtractSduFormatInfoParamsIeFromSduFormatInfoParamListIe(list, &format))
            ++count;
    return count;
}

static bool note_subflows(TarnRabParamsIe *ie, Notes *notes) {
    unsigned count = 0;
    unsigned formats = 0;
    TarnSduParamsIe *list;
    TarnSduParamValueIe *subflow;
    if (!TarnExtractSduParamsIeFromRabParamsIe(ie, &list))
        return false;
    for (; TarnExtractSduParamValueIeFromSduParamsIe(list, &subflow); ++count)
        formats += count_formats(subflow);
    note(notes, "  subflows %u, SDU formats %u", count, formats);
    return true;
}

static bool note_conditional(TarnRabParamsIe *ie, Notes *notes) {
    TarnBitRates guaranteed;
    TarnTransDelay delay;
    TarnTrafficHandlingPriority priority;
    if (TarnIfTrafficClassIsRealTimeForIe(NULL, ie)) {
        /* The second extract of BitRates: the first one took the maximum rates. */
        if (!TarnExtractBitRatesFromRabParamsIe(ie, &guaranteed) ||
            !TarnExtractTransDelayFromRabParamsIe(ie, &delay) || guaranteed.count == 0)
            return false;
        note(notes, "  guaranteed %u bit/s, delay %u ms", (unsigned)guaranteed.items[0],
             (unsigned)delay);
    }
    if (TarnIfTrafficClassInteractiveForIe(NULL, ie)) {
        if (!TarnExtractTrafficHandlingPriorityFromRabParamsIe(ie, &priority))
            return false;
        note(notes, "  handling priority %u", (unsigned)priority);
    }
    return true;
}

static bool note_rab_params(TarnRabParamsIe *ie, Notes *notes) {
    TarnTrafficClass trafficClass;
    TarnMaxSduSize maxSduSize;
    TarnBitRates maximum;
    if (!TarnExtractTrafficClassFromRabParamsIe(ie, &trafficClass) ||
        !TarnExtractMaxSduSizeFromRabParamsIe(ie, &maxSduSize) ||
        !TarnExtractBitRatesFromRabParamsIe(ie, &maximum) || maximum.count == 0)
        return false;
    note(notes, "  class %u, at most %u bit/s, SDUs of %u bits", (unsigned)trafficClass,
         (unsigned)maximum.items[0], (unsigned)maxSduSize);
    return note_subflows(ie, notes) && note_conditional(ie, notes);
}

bool learn_rab_list(TarnRabListIe *list, Bearer *bearer, Notes *notes) {
    TarnRabToSetUpInfoIe *rab;
    TarnRabParamsIe *params;
    while (TarnExtractRabToSetUpInfoIeFromRabListIe(list, &rab)) {
        if (!TarnExtractRabIdFromRabToSetUpInfoIe(rab, &bearer->rabId) ||
            !TarnExtractAcUserPlaneAssociationFromRabToSetUpInfoIe(rab, &bearer->acAssociation) ||
            !TarnExtractRabParamsIeFromRabToSetUpInfoIe(rab, &params))
            return false;
        note(notes, "RAB %u, association 0x%08X", (unsigned)bearer->rabId,
             (unsigned)bearer->acAssociation);
        if (!note_rab_params(params, notes))
            return false;
    }
    return true;
}
