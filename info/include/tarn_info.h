/* libtarn_info: what the messages of libtarn are made of, and why one was refused.
 *
 * The companion of libtarn (tarn_if.h) for programs that look at messages of any type: tools,
 * tests, logs, relays. It names messages, IEs and debug tokens, handles messages by their id,
 * explains refusals, and prints. Link it beside libtarn:
 *
 *   cc program.c -ltarn_info -ltarn -ltarn_host
 *
 * The most frequent question, in one call:
 *
 *   const TarnInfoExplanation *why = tarnInfoExplainBytes(bytes, length);
 *   if (why != NULL && why->faultCount != 0)
 *       printf("byte %u, %s: %s\n", why->faults[0].offset, why->faults[0].path,
 *              why->faults[0].sentence);
 *   tarnInfoFreeExplanation(why);
 *
 * Results. Nothing here is fatal and nothing is reported to the host: a null pointer, an unknown
 * id, tag or name gives null, 0, or the result that a comment names. Nothing is thrown.
 *
 * Memory. Message objects and IE objects are made with the host's services, as in libtarn. An
 * explanation lives on the heap of the C library. Facts are constants of the library: never
 * freed, the same address each time.
 *
 * Threads. As in libtarn: no state, no locks. Facts may be read by all threads at once. Functions
 * that take a const object only read it, so several threads may print or compare one message as
 * long as none changes it; extracting does change it. */
#ifndef TARN_INFO_H
#define TARN_INFO_H

#include <stdint.h>

#include "tarn_if.h"

#ifdef __cplusplus
extern "C" {
#endif

#pragma GCC visibility push(default)

/* ---- Facts ----------------------------------------------------------------------------------- */

/* The protocol as data. Everything can be reached from the lists of types and of messages. */

typedef enum TarnInfoShape {
    TarnInfoNumber,        /* an unsigned integer */
    TarnInfoBytes,         /* a counted string of bytes */
    TarnInfoRecord,        /* values in fixed order, each with tag and length of its own */
    TarnInfoList,          /* one value repeated, each time with tag and length */
    TarnInfoSequence,      /* composite: IEs in the order of its slots */
    TarnInfoCompositeList, /* composite: one composite IE repeated */
} TarnInfoShape;

typedef enum TarnInfoPresence {
    TarnInfoMandatory,
    TarnInfoOptional,
    TarnInfoConditional, /* there exactly if the slot's condition holds */
    TarnInfoRepeated,    /* as conditional, and then once or more */
} TarnInfoPresence;

/* How a value is shown to people beside its bytes; see tarnInfoReadable. */
typedef enum TarnInfoForm {
    TarnInfoPlainForm, /* numbers decimal, bytes in hex */
    TarnInfoDotted,    /* IpAddress: 10.0.0.1 */
    TarnInfoDigits,    /* Imsi, NasUeId: 001010123456789 */
    TarnInfoMccMnc,    /* PLMNId: 001-01 */
    TarnInfoHexNumber, /* TempUeIdValue, LAC, CI: 0xc0a80001 */
} TarnInfoForm;

/* Why a value is blacked out when a print asks for it; see TarnInfoRedact. */
typedef enum TarnInfoSecrecy {
    TarnInfoPublic,
    TarnInfoKey,      /* IntProtKey, EncryptKey, MasterKey, MasterSalt */
    TarnInfoIdentity, /* Imsi, NasUeId, TempUeIdValue */
    TarnInfoPayload,  /* NasMsg, RrcContainer, L3Information, OldBssToNewBssInfo: may hold either */
} TarnInfoSecrecy;

/* One predicate of conditional presence: it looks for an IE in the same list and is true if that
 * IE's value is one of a set, or none of it. It is false if the IE is not there. */
typedef struct TarnInfoCondition {
    const char *name;      /* "intraRatRelocation" */
    const char *predicate; /* the exported function: "TarnIsIntraRatRelocForMsg" */
    const char *meaning;   /* "RelocationType is 1 (intra-RAT)" */
    uint32_t tag;          /* of the IE looked for */
    uint32_t values;       /* the set: bit n stands for the value n */
    uint32_t isInside;     /* 1: true for values in the set; 0: for all others */
} TarnInfoCondition;

/* One place in a message, a sequence or a record. */
typedef struct TarnInfoSlot {
    const char *name; /* the member's in TarnXRecord: the type's, but for the second of one type */
    const struct TarnInfoType *type;
    TarnInfoPresence presence;
    const TarnInfoCondition *condition; /* null where presence does not depend on one */
    uint32_t presenceBit;               /* in the presence mask of the record; 0 if mandatory */
    uint32_t offset;                    /* of the member in TarnXRecord, or in a record's value */
} TarnInfoSlot;

/* One IE, or one value that travels only within others. Sizes in memory are those of sizeof. */
typedef struct TarnInfoType {
    const char *name;
    const char *term; /* what it is, in the field's own words */
    uint32_t tag;     /* 0 for the values that have none */
    TarnInfoShape shape;
    TarnInfoForm form;
    TarnInfoSecrecy secrecy;
    uint32_t hasIe;      /* 0: there is no IE of this tag, it travels only in lists and records */
    uint32_t width;      /* number: bytes on the wire */
    uint32_t least;      /* number: value; bytes: length; lists: count */
    uint32_t greatest;   /* likewise. A code word takes 32 bits in memory and has 65535 here, as */
                         /* only 16 bits travel; more than that is valid too, and cut off */
    uint32_t capacity;   /* bytes, lists: elements of the array */
    uint32_t valueSize;  /* primitive: sizeof(TarnX) */
    uint32_t ieSize;     /* sizeof(TarnXIe) */
    uint32_t recordSize; /* composite: sizeof(TarnXRecord) */
    uint32_t largest;    /* the most bytes that a valid one takes on the wire, header included */
    const TarnInfoSlot *slots; /* sequence: its children; record: its members, all mandatory; */
    uint32_t slotCount;        /* composite list: one, its element. In wire order */
    const struct TarnInfoType *item; /* lists of both kinds */
    uint32_t itemsOffset;            /* of the array, in TarnX or TarnXRecord */
    uint32_t stride;                 /* from one item to the next */
} TarnInfoType;

typedef struct TarnInfoMessage {
    const char *name;
    const char *term;
    uint32_t id;
    uint32_t appendToken; /* the debug tokens of Build's three steps */
    uint32_t validityToken;
    uint32_t packToken;
    uint32_t recordSize;       /* sizeof(TarnMRecord) */
    uint32_t largest;          /* the most bytes that Build writes */
    const TarnInfoSlot *slots; /* the MessageId first */
    uint32_t slotCount;
} TarnInfoMessage;

/* tarnInfoTypes and tarnInfoMessages return all types in tag order, those without a tag last, and
 * all messages by id, as arrays of pointers, setting *count (which may be null). */
const TarnInfoType *const *tarnInfoTypes(uint32_t *count);
const TarnInfoMessage *const *tarnInfoMessages(uint32_t *count);
const TarnInfoCondition *tarnInfoConditions(uint32_t *count);

/* Each returns null for a tag, id or name that the protocol lacks. A tag finds the items of lists
 * as well as IEs. Names are told apart by case. Tags and ids are found without a search. */
const TarnInfoType *tarnInfoTypeByTag(uint32_t tag);
const TarnInfoType *tarnInfoTypeByName(const char *name);
const TarnInfoMessage *tarnInfoMessageById(uint32_t id);
const TarnInfoMessage *tarnInfoMessageByName(const char *name);

typedef enum TarnInfoStep {
    TarnInfoNoStep,       /* no such token */
    TarnInfoAppendStep,   /* Build: a value is out of range, or a count beyond its array */
    TarnInfoValidityStep, /* Build: the values are good and the message is not */
    TarnInfoPackStep,     /* Build: the buffer is too small */
    TarnInfoGetStep,      /* Get: the bytes cannot be decoded */
} TarnInfoStep;

/* tarnInfoToken returns the step that the debug token stands for, and sets *message (which may be
 * null) to the message that was built: null for Get, whose token is the same for all messages. */
TarnInfoStep tarnInfoToken(uint32_t token, const TarnInfoMessage **message);

/* tarnInfoStepWords returns what the step means as a sentence, or "unknown". */
const char *tarnInfoStepWords(TarnInfoStep step);

/* tarnInfoModuleWords returns which operations report a null pointer under this module name, the
 * one that velSwFatalError was given, or "unknown". */
const char *tarnInfoModuleWords(const char *module);

/* ---- Messages of any type -------------------------------------------------------------------- */

/* The operations of tarn_if_messages.h by message id. For an object the id is its own. */

/* tarnInfoNewMsg returns a new message that holds its MessageId, owned by the caller; null for an
 * unknown id. */
TarnMsg *tarnInfoNewMsg(uint32_t id);

/* tarnInfoIsMsgValid returns 1 if the validator of its type accepts msg, and 0 otherwise. */
uint32_t tarnInfoIsMsgValid(const TarnMsg *msg);

/* tarnInfoPackMsg writes msg to buffer and returns the bytes written, 0 on failure. A buffer that
 * is too small is no fatal error here: nothing is written. */
uint32_t tarnInfoPackMsg(const TarnMsg *msg, uint8_t *buffer, uint32_t size);

/* tarnInfoUnpackMsg returns a new message of the type asked for, owned by the caller, or null. */
TarnMsg *tarnInfoUnpackMsg(uint32_t id, const uint8_t *buffer, uint32_t length);

/* tarnInfoBuildMsg and tarnInfoGetMsg call TarnBuildMMsg and TarnGetMMsg with a TarnMRecord; their
 * failures tell the host their debug token, and too small a buffer is fatal as it is there. */
uint32_t tarnInfoBuildMsg(uint32_t id, uint8_t *buffer, uint32_t size, const void *record);
uint32_t tarnInfoGetMsg(uint32_t id, const uint8_t *buffer, uint32_t length, void *record);

/* tarnInfoNewIe returns a new composite IE object without children, owned by the caller; null if
 * tag is not that of a composite IE. */
TarnIe *tarnInfoNewIe(uint32_t tag);

/* tarnInfoAppendToMsg and tarnInfoAppendToIe append a child of this tag, as the TarnAppend of that
 * child does: of a primitive a copy of the TarnX at `child`, of a composite the IE object at
 * `child` itself, which the owner owns from then on. They return 1, or 0 with nothing changed if
 * the owner has no slot for the tag or the value is invalid. */
uint32_t tarnInfoAppendToMsg(TarnMsg *msg, uint32_t tag, void *child);
uint32_t tarnInfoAppendToIe(TarnIe *owner, uint32_t tag, void *child);

/* tarnInfoIsValueValid returns 1 if the TarnX at value is valid. The type must be primitive. */
uint32_t tarnInfoIsValueValid(const TarnInfoType *type, const void *value);

/* tarnInfoIsCalledForInMsg and tarnInfoIsCalledForInIe return 1 if the slot has no condition or its
 * condition holds in the owner. */
uint32_t tarnInfoIsCalledForInMsg(const TarnInfoSlot *slot, const TarnMsg *owner);
uint32_t tarnInfoIsCalledForInIe(const TarnInfoSlot *slot, const TarnIe *owner);

/* ---- Children -------------------------------------------------------------------------------- */

/* Walks what a message or a composite IE holds, in list order, without marking anything as
 * extracted:
 *
 *   TarnInfoWalk walk = tarnInfoWalkMsg(msg);
 *   TarnInfoChild child;
 *   while (tarnInfoNextChild(&walk, &child))
 *       printf("%s\n", child.slot->name); */

typedef struct TarnInfoChild {
    uint32_t tag;
    const TarnInfoType *type; /* null for a tag that no IE has */
    const TarnInfoSlot *slot; /* where it stands; null for an IE that does not belong there */
    uint32_t index;           /* among the children of its tag, from 0; 0 without a slot */
    const TarnIe *ie;
    const void *value; /* the TarnX of a primitive; null for a composite */
} TarnInfoChild;

/* Where a walk is. Nothing to be released; the owner must not change meanwhile. */
typedef struct TarnInfoWalk {
    const VelDllHead *list;
    const TarnIe *next;
    const TarnInfoSlot *slots;
    uint32_t slotCount;
    uint32_t seen[16]; /* for each slot, the children of its tag so far */
} TarnInfoWalk;

TarnInfoWalk tarnInfoWalkMsg(const TarnMsg *msg);
TarnInfoWalk tarnInfoWalkIe(const TarnIe *composite);

/* tarnInfoNextChild sets *child and returns 1, or returns 0 behind the last one. */
uint32_t tarnInfoNextChild(TarnInfoWalk *walk, TarnInfoChild *child);

/* ---- Copies and comparisons ------------------------------------------------------------------ */

/* Each returns a copy with all that is below it, not marked as extracted, owned by the caller. */
TarnMsg *tarnInfoCopyMsg(const TarnMsg *msg);
TarnIe *tarnInfoCopyIe(const TarnIe *ie);

/* One difference. Path as in TarnInfoFinding, values as JSON; null on the side that lacks it. */
typedef struct TarnInfoDifference {
    const char *path;
    const char *left;
    const char *right;
} TarnInfoDifference;
typedef void TarnInfoTellDifference(void *context, const TarnInfoDifference *difference);

/* tarnInfoCompareMsgs calls `tell` (which may be null) with each number, string and address that is
 * not the same in both messages, in the order of the left one and then of what the right one has
 * more, and returns how many. Messages of two types differ at "MessageId". UINT32_MAX for a null
 * message, or one that cannot be packed. */
uint32_t tarnInfoCompareMsgs(const TarnMsg *left, const TarnMsg *right,
                             TarnInfoTellDifference *tell, void *context);

/* ---- Explaining ------------------------------------------------------------------------------ */

typedef enum TarnInfoVerdict {
    TarnInfoValid,   /* decodes, and its validator agrees */
    TarnInfoInvalid, /* decodes, and its validator does not */
    TarnInfoRefused, /* does not decode; of a record: is not built */
} TarnInfoVerdict;

/* tarnInfoVerdictWord returns "valid", "invalid" or "refused"; else "unknown". */
const char *tarnInfoVerdictWord(TarnInfoVerdict verdict);

/* What is wrong, one row of reasons.def each. */
typedef enum TarnInfoReason {
#define REASON(name_, sentence_) TarnInfo##name_,
#include "tarn_info_reasons.def"
    TarnInfoReasonCount
} TarnInfoReason;

/* tarnInfoReasonName returns the name in the enum without TarnInfo ("WrongTag"), and
 * tarnInfoReasonSentence the sentence with its place holders; "unknown" for other numbers. */
const char *tarnInfoReasonName(TarnInfoReason reason);
const char *tarnInfoReasonSentence(TarnInfoReason reason);

/* Something found at a place. The path names IEs from the message down, list elements by number:
 * "RabList[1].RabParams.TransDelay". The offset counts bytes from the beginning of the message; of
 * a record, which has none, it is the offset of the member in the record, and of a message object
 * the byte where the IE would stand once packed. */
typedef struct TarnInfoFinding {
    uint32_t offset;
    TarnInfoReason reason;
    const char *path;     /* "" for the message as a whole */
    const char *sentence; /* "its length field says 3, where Srnti takes exactly 4 bytes" */
} TarnInfoFinding;

typedef struct TarnInfoExplanation {
    TarnInfoVerdict verdict;
    const TarnInfoMessage *message; /* null if it is not known */
    uint32_t consumed;              /* bytes that the message took, or took before it was refused */
    uint32_t token;                 /* what Build or Get tells the host; 0 if they succeed */
    const TarnInfoFinding *faults;  /* why it is not valid: the first is where it stopped, those */
    uint32_t faultCount;            /* behind it are what was left out just there. 0 if valid */
    const TarnInfoFinding *notes;   /* what was let pass: bytes ignored, optional IEs left out, */
    uint32_t noteCount;             /* lengths that differ */
} TarnInfoExplanation;

/* tarnInfoExplainBytes explains what TarnUnpackNewMsg, TarnGetMMsg and then the validator make of
 * the bytes. Null bytes or a length of 0 are refused as no message. */
const TarnInfoExplanation *tarnInfoExplainBytes(const uint8_t *bytes, uint32_t length);

/* tarnInfoExplainMsg explains what the validator makes of the object: valid or invalid. */
const TarnInfoExplanation *tarnInfoExplainMsg(const TarnMsg *msg);

/* tarnInfoExplainRecord explains what TarnBuildMMsg makes of the TarnMRecord with a buffer of
 * `room` bytes; UINT32_MAX says that the buffer is large enough. */
const TarnInfoExplanation *tarnInfoExplainRecord(uint32_t id, const void *record, uint32_t room);

/* Each of the three returns null only if memory has run out. The caller frees the explanation;
 * null is allowed. */
void tarnInfoFreeExplanation(const TarnInfoExplanation *explanation);

/* What fills the place holders of a sentence: see reasons.def for which reason uses what. */
typedef struct TarnInfoWords {
    const TarnInfoType *type;
    const TarnInfoSlot *slot;
    const TarnInfoMessage *message;
    const char *owner;
    uint32_t found; /* a tag */
    int64_t number;
    int64_t other;
} TarnInfoWords;

/* tarnInfoSentence writes the sentence to text, ended by a zero and cut off at size, and returns
 * its whole length. For programs that judge input of their own and want to put it alike. */
uint32_t tarnInfoSentence(TarnInfoReason reason, const TarnInfoWords *words, char *text,
                          uint32_t size);

/* ---- Judging in haste ------------------------------------------------------------------------ */

/* The verdict alone, for programs that see very many messages: explain only what is not plain. */

typedef struct TarnInfoJudgement {
    TarnInfoVerdict verdict;
    const TarnInfoMessage *message; /* null if it is not known */
    uint32_t consumed;              /* as in TarnInfoExplanation */
    uint32_t isPlain; /* valid, and packing it again gives the same bytes: nothing to explain */
} TarnInfoJudgement;

TarnInfoJudgement tarnInfoJudge(const uint8_t *bytes, uint32_t length);

/* ---- Reading --------------------------------------------------------------------------------- */

/* Every part of a message in wire order, straight from its bytes, without an object. */

#define TarnInfoNoIndex UINT32_MAX

/* One IE, nested value or element. */
typedef struct TarnInfoPart {
    const char *name; /* the slot's, or the item type's */
    const TarnInfoType *type;
    uint32_t offset;      /* of its header */
    uint32_t depth;       /* 0 for the message's own IEs */
    uint32_t index;       /* in a list, from 0; of a repeated IE from its second on, which has 1; */
                          /* else TarnInfoNoIndex */
    const uint8_t *value; /* behind the header */
    uint32_t length;      /* of the value; for composites, records and lists as declared */
    uint32_t number;      /* of a number: its value */
} TarnInfoPart;

/* Called for each part, parents before what is in them; 0 stops the reading. */
typedef uint32_t TarnInfoVisitPart(void *context, const TarnInfoPart *part);

/* tarnInfoReadBytes visits what the message holds: all that its type takes, and of a refused one
 * what stands before the place where it stopped. `judgement` is what tarnInfoJudge said of the same
 * bytes, or null. It returns 0 if the visit was stopped or the bytes are no known message. */
uint32_t tarnInfoReadBytes(const uint8_t *bytes, uint32_t length,
                           const TarnInfoJudgement *judgement, TarnInfoVisitPart *visit,
                           void *context);

/* ---- Printing -------------------------------------------------------------------------------- */

/* To a sink of the caller's: text arrives in pieces of some kilobytes at most, a small message in
 * one piece; no zero ends them. */

typedef void TarnInfoSink(void *context, const char *text, uint32_t length);

typedef enum TarnInfoFormat {
    /* One line per IE, nested value or element: the byte at which it begins, name, tag, value. */
    TarnInfoTree,
    /* One object: {"message": name, then a member per IE, by name, in wire order}; the MessageId
     * follows from the name. Numbers stand as numbers, byte strings as hex strings, an IpAddress
     * as a dotted string, records and sequences as objects, lists of both kinds as arrays, an IE
     * that may be repeated as an array of however many there are. */
    TarnInfoJson,
} TarnInfoFormat;

/* Switches, to be added up. */
enum {
    TarnInfoPretty = 1,  /* JSON: indented, on many lines */
    TarnInfoMembers = 2, /* JSON: without the outer braces, to stand in an object of the caller's */
    TarnInfoReadably = 4,        /* JSON: readable forms instead of hex, where a value has one */
    TarnInfoRedact = 8,          /* keys and subscriber identities are shown as "redacted" */
    TarnInfoRedactPayloads = 16, /* likewise what is passed through and may hold either */
};

/* Each prints and returns 1, or returns 0 with nothing printed: no known message, or an object
 * that cannot be packed. tarnInfoPrintBytes prints what tarnInfoReadBytes visits. */
uint32_t tarnInfoPrintBytes(const uint8_t *bytes, uint32_t length,
                            const TarnInfoJudgement *judgement, TarnInfoFormat format,
                            uint32_t switches, TarnInfoSink *sink, void *context);
uint32_t tarnInfoPrintMsg(const TarnMsg *msg, TarnInfoFormat format, uint32_t switches,
                          TarnInfoSink *sink, void *context);

/* tarnInfoReadable writes the readable form of a value as it lies on the wire, ended by a zero and
 * cut off at size, and returns its whole length; 0 if it has none.
 *
 *   Imsi, NasUeId       the digits: of ASCII digits with zeros behind them, or of one digit in
 *                       each half byte, the low half first, up to a half byte of 15
 *   PLMNId              MCC-MNC, as 001-01 or 310-410
 *   TempUeIdValue, LAC, CI  one hexadecimal number
 *   IpAddress           four numbers with dots between them */
uint32_t tarnInfoReadable(const TarnInfoType *type, const uint8_t *value, uint32_t length,
                          char *text, uint32_t size);

#pragma GCC visibility pop

#ifdef __cplusplus
}
#endif

#endif
