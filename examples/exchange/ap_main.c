/* The access point. Connects to the access controller's port on the loopback address, which is its
 * argument or, without one, the first word of its input, and prints the exchange as a ladder:
 *
 *   exchange_ac | exchange_ap */
#include <stdio.h>
#include <stdlib.h>

#include "party.h"

/* Returns 0 for what is no port. */
static uint16_t parse_port(const char *text) {
    char *end = NULL;
    const unsigned long port = strtoul(text, &end, 10);
    return *end == '\0' && port <= UINT16_MAX ? (uint16_t)port : 0;
}

int main(int argc, char **argv) {
    char word[8] = "";
    if (argc == 1 && scanf("%7s", word) != 1)
        fprintf(stderr, "AP: no port\n");
    const uint16_t port = parse_port(argc == 1 ? word : argv[1]);
    if (port != 0 && argc <= 2)
        return run_ap(port);
    fprintf(stderr, "usage: exchange_ap [PORT]\n");
    return 2;
}
