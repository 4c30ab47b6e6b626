#include "transport.h"

#include <arpa/inet.h>
#include <errno.h>
#include <fcntl.h>
#include <limits.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <stdbool.h>
#include <stddef.h>
#include <string.h>
#include <sys/socket.h>
#include <time.h>
#include <unistd.h>

enum { frameHeader = 4 };

const char *transfer_text(Transfer transfer) {
    switch (transfer) {
    case transferDone:
        return "done";
    case transferClosed:
        return "the peer closed the connection";
    case transferCut:
        return "the peer closed the connection within a message";
    case transferTooLong:
        return "the frame is longer than any message";
    case transferTimedOut:
        return "the peer kept silent for too long";
    case transferFailed:
        break;
    }
    return strerror(errno);
}

/* ---- Waiting --------------------------------------------------------------------------------- */

static int64_t now_ms(void) {
    struct timespec now;
    clock_gettime(CLOCK_MONOTONIC, &now);
    return (int64_t)now.tv_sec * 1000 + now.tv_nsec / 1000000;
}

static Transfer wait_for(int fd, short events, int64_t deadline) {
    for (;;) {
        const int64_t left = deadline - now_ms();
        struct pollfd waiting = {.fd = fd, .events = events};
        const int ready = poll(&waiting, 1, left < 0 ? 0 : left > INT_MAX ? INT_MAX : (int)left);
        if (ready > 0)
            return transferDone;
        if (ready == 0)
            return transferTimedOut;
        if (errno != EINTR)
            return transferFailed;
    }
}

static bool is_passing(int error) {
    return error == EINTR || error == EAGAIN || error == EWOULDBLOCK;
}

/* ---- Whole runs of bytes --------------------------------------------------------------------- */

static Transfer send_all(int connection, const uint8_t *bytes, size_t length, int64_t deadline) {
    while (length != 0) {
        const Transfer transfer = wait_for(connection, POLLOUT, deadline);
        if (transfer != transferDone)
            return transfer;
        /* A peer that has gone is an error here, not a signal that ends the program. */
        const ssize_t sent = send(connection, bytes, length, MSG_NOSIGNAL);
        if (sent < 0 && !is_passing(errno))
            return transferFailed;
        if (sent > 0) {
            bytes += sent;
            length -= (size_t)sent;
        }
    }
    return transferDone;
}

static Transfer receive_all(int connection, uint8_t *bytes, size_t length, int64_t deadline) {
    size_t received = 0;
    while (received < length) {
        const Transfer transfer = wait_for(connection, POLLIN, deadline);
        if (transfer != transferDone)
            return transfer;
        const ssize_t count = recv(connection, bytes + received, length - received, 0);
        if (count == 0)
            return received == 0 ? transferClosed : transferCut;
        if (count < 0 && !is_passing(errno))
            return transferFailed;
        if (count > 0)
            received += (size_t)count;
    }
    return transferDone;
}

/* ---- Frames ---------------------------------------------------------------------------------- */

Transfer send_frame(int connection, const uint8_t *message, uint32_t length, int timeoutMs) {
    const int64_t deadline = now_ms() + timeoutMs;
    const uint8_t header[frameHeader] = {(uint8_t)(length >> 24), (uint8_t)(length >> 16),
                                         (uint8_t)(length >> 8), (uint8_t)length};
    const Transfer transfer = send_all(connection, header, sizeof header, deadline);
    return transfer == transferDone ? send_all(connection, message, length, deadline) : transfer;
}

Transfer receive_frame(int connection, uint8_t *buffer, uint32_t size, uint32_t *length,
                       int timeoutMs) {
    const int64_t deadline = now_ms() + timeoutMs;
    uint8_t header[frameHeader];
    Transfer transfer = receive_all(connection, header, sizeof header, deadline);
    if (transfer != transferDone)
        return transfer;
    *length = (uint32_t)header[0] << 24 | (uint32_t)header[1] << 16 | (uint32_t)header[2] << 8 |
              header[3];
    /* Never read what a peer announces beyond the room there is for it. */
    if (*length > size)
        return transferTooLong;
    transfer = receive_all(connection, buffer, *length, deadline);
    return transfer == transferClosed ? transferCut : transfer;
}

/* ---- Connections ----------------------------------------------------------------------------- */

static struct sockaddr_in loopback(uint16_t port) {
    return (struct sockaddr_in){
        .sin_family = AF_INET, .sin_port = htons(port), .sin_addr.s_addr = htonl(INADDR_LOOPBACK)};
}

/* Messages are small and each waits for an answer: without delay, or the system would hold them
 * back to gather more. */
static bool prepare_socket(int fd) {
    const int yes = 1;
    const int flags = fcntl(fd, F_GETFL);
    return flags != -1 && fcntl(fd, F_SETFL, flags | O_NONBLOCK) != -1 &&
           setsockopt(fd, IPPROTO_TCP, TCP_NODELAY, &yes, sizeof yes) == 0;
}

static int open_socket(void) {
    const int fd = socket(AF_INET, SOCK_STREAM, 0);
    if (fd == -1 || prepare_socket(fd))
        return fd;
    close(fd);
    return -1;
}

Transfer listen_on_loopback(int *listener, uint16_t *port) {
    struct sockaddr_in address = loopback(0);
    socklen_t size = sizeof address;
    *listener = open_socket();
    if (*listener == -1)
        return transferFailed;
    if (bind(*listener, (const struct sockaddr *)&address, sizeof address) == 0 &&
        listen(*listener, 1) == 0 &&
        getsockname(*listener, (struct sockaddr *)&address, &size) == 0) {
        *port = ntohs(address.sin_port);
        return transferDone;
    }
    close(*listener);
    return transferFailed;
}

Transfer accept_peer(int listener, int timeoutMs, int *connection) {
    const Transfer transfer = wait_for(listener, POLLIN, now_ms() + timeoutMs);
    if (transfer != transferDone)
        return transfer;
    *connection = accept(listener, NULL, NULL);
    if (*connection == -1)
        return transferFailed;
    if (prepare_socket(*connection))
        return transferDone;
    close(*connection);
    return transferFailed;
}

static Transfer finish_connecting(int connection, int timeoutMs) {
    int error = 0;
    socklen_t size = sizeof error;
    const Transfer transfer = wait_for(connection, POLLOUT, now_ms() + timeoutMs);
    if (transfer != transferDone)
        return transfer;
    if (getsockopt(connection, SOL_SOCKET, SO_ERROR, &error, &size) == 0 && error == 0)
        return transferDone;
    errno = error;
    return transferFailed;
}

Transfer connect_to_loopback(uint16_t port, int timeoutMs, int *connection) {
    const struct sockaddr_in address = loopback(port);
    *connection = open_socket();
    if (*connection == -1)
        return transferFailed;
    const bool isConnected =
        connect(*connection, (const struct sockaddr *)&address, sizeof address) == 0;
    const Transfer transfer = isConnected            ? transferDone
                              : errno == EINPROGRESS ? finish_connecting(*connection, timeoutMs)
                                                     : transferFailed;
    if (transfer != transferDone)
        close(*connection);
    return transfer;
}
