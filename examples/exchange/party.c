#include "party.h"

#include <stdlib.h>
#include <unistd.h>

#include "tarn_host.h"
#include "transport.h"

/* No message of the exchange comes near it: what Build writes at most is 70820 bytes. */
enum { frameLimit = 71000 };

enum { patienceMs = 10000 };

static const char *side_name(Side side) {
    return side == sideAp ? "AP" : "AC";
}

static bool complain(const Party *party, const MessageKind *kind, const char *reason) {
    fprintf(party->errors, "%s: %s: %s\n", side_name(party->side), kind->name, reason);
    return false;
}

/* ---- One message ----------------------------------------------------------------------------- */

/* Why the message is not what the procedure calls for, or null if it is. */
static const char *judge(const MessageKind *kind, const TarnMsg *msg) {
    if (msg->messageId != kind->id)
        return "another message came in its place";
    return kind->isValid(msg) ? NULL : "the message is invalid";
}

/* Both ends treat the messages that they send and those that they receive alike: unpacked, judged
 * and learned from. So nothing leaves that the peer would refuse. */
static bool take_note(const Party *party, const MessageKind *kind, Knowledge *known,
                      const uint8_t *bytes, uint32_t length, Notes *notes) {
    Seen seen = {bytes, length, NULL};
    if (!TarnUnpackNewMsg(bytes, length, &seen.msg))
        return complain(party, kind, "the bytes are no message");
    const char *reason = judge(kind, seen.msg);
    if (reason == NULL && !kind->learn(known, &seen, notes))
        reason = "the message contradicts what was agreed";
    TarnDeleteMsg(seen.msg);
    return reason == NULL || complain(party, kind, reason);
}

static bool send_step(const Party *party, const MessageKind *kind, Knowledge *known,
                      uint8_t *buffer, uint32_t *length, Notes *notes) {
    *length = kind->compose(known, buffer, frameLimit);
    if (*length == 0)
        return complain(party, kind, "the message could not be composed");
    if (!take_note(party, kind, known, buffer, *length, notes))
        return false;
    const Transfer transfer = send_frame(party->connection, buffer, *length, party->timeoutMs);
    return transfer == transferDone || complain(party, kind, transfer_text(transfer));
}

static bool receive_step(const Party *party, const MessageKind *kind, Knowledge *known,
                         uint8_t *buffer, uint32_t *length, Notes *notes) {
    const Transfer transfer =
        receive_frame(party->connection, buffer, frameLimit, length, party->timeoutMs);
    if (transfer != transferDone)
        return complain(party, kind, transfer_text(transfer));
    return take_note(party, kind, known, buffer, *length, notes);
}

static bool take_step(const Party *party, const MessageKind *kind, Knowledge *known) {
    uint8_t buffer[frameLimit];
    uint32_t length = 0;
    Notes notes = {0};
    const bool isOurs = kind->sender == party->side;
    if (!(isOurs ? send_step : receive_step)(party, kind, known, buffer, &length, &notes))
        return false;
    if (party->ladder != NULL)
        print_ladder_row(party->ladder, kind->sender == sideAp, kind->name, length, &notes);
    return true;
}

/* ---- The course ------------------------------------------------------------------------------ */

static bool go_through(const Party *party, const Procedure *procedure, Knowledge *known) {
    known->domain = procedure->domain;
    if (party->ladder != NULL)
        print_ladder_title(party->ladder, procedure->title);
    for (const MessageKind *const *step = procedure->steps; *step != NULL; ++step)
        if (!take_step(party, *step, known))
            return false;
    return true;
}

bool take_part(const Party *party, const Procedure *course, size_t count) {
    Knowledge known = {0};
    if (party->ladder != NULL)
        print_ladder_head(party->ladder);
    for (size_t i = 0; i < count; ++i)
        if (!go_through(party, &course[i], &known))
            return false;
    return true;
}

/* ---- The programs ---------------------------------------------------------------------------- */

static int converse(Side side, int connection) {
    const Party party = {side, connection, patienceMs, side == sideAp ? stdout : NULL, stderr};
    const bool isDone = take_part(&party, procedures, procedureCount);
    close(connection);
    if (tarnHostLiveBlocks() != 0) {
        fprintf(stderr, "%s: memory was left: ", side_name(side));
        tarnHostReportLiveBlocks(stderr);
        return EXIT_FAILURE;
    }
    return isDone ? EXIT_SUCCESS : EXIT_FAILURE;
}

int run_ac(int listener) {
    int connection = -1;
    const Transfer transfer = accept_peer(listener, patienceMs, &connection);
    close(listener);
    if (transfer == transferDone)
        return converse(sideAc, connection);
    fprintf(stderr, "AC: %s\n", transfer_text(transfer));
    return EXIT_FAILURE;
}

int run_ap(uint16_t port) {
    int connection = -1;
    const Transfer transfer = connect_to_loopback(port, patienceMs, &connection);
    if (transfer == transferDone)
        return converse(sideAp, connection);
    fprintf(stderr, "AP: %s\n", transfer_text(transfer));
    return EXIT_FAILURE;
}
