/* The access controller. Listens on a port of the loopback address, prints the port, serves one
 * access point, and ends. */
#include <stdio.h>
#include <stdlib.h>

#include "party.h"
#include "transport.h"

int main(void) {
    int listener = -1;
    uint16_t port = 0;
    if (listen_on_loopback(&listener, &port) != transferDone) {
        perror("AC: cannot listen");
        return EXIT_FAILURE;
    }
    printf("%u\n", port);
    fflush(stdout); /* whoever started this program waits for the port */
    return run_ac(listener);
}
