/* Messages over a stream. A message carries no overall length, so each travels as a frame: a 4-byte
 * length, most significant byte first, and the message. */
#ifndef EXCHANGE_TRANSPORT_H
#define EXCHANGE_TRANSPORT_H

#include <stdint.h>

typedef enum Transfer {
    transferDone,
    transferClosed,   /* the peer closed the connection between two frames */
    transferCut,      /* the peer closed the connection within a frame */
    transferTooLong,  /* the frame's length is beyond the buffer */
    transferTimedOut, /* the peer was silent, or read nothing, for too long */
    transferFailed,   /* errno tells why */
} Transfer;

/* What became of a transfer, in words. */
const char *transfer_text(Transfer transfer);

/* Every call waits for at most timeoutMs, all its partial reads or writes together. The sockets are
 * non-blocking; those that are set here belong to the caller, who closes them. */

/* Listens on the loopback address, on a port that the system chooses, and sets both. */
Transfer listen_on_loopback(int *listener, uint16_t *port);

Transfer accept_peer(int listener, int timeoutMs, int *connection);

Transfer connect_to_loopback(uint16_t port, int timeoutMs, int *connection);

/* Sends the message as one frame. */
Transfer send_frame(int connection, const uint8_t *message, uint32_t length, int timeoutMs);

/* Receives one frame, however the stream cuts it, and sets *length to the message's bytes. */
Transfer receive_frame(int connection, uint8_t *buffer, uint32_t size, uint32_t *length,
                       int timeoutMs);

#endif
