/* Both ends at once: the access controller in a process of its own, the access point in this one.
 */
#include <errno.h>
#include <stdio.h>
#include <stdlib.h>
#include <sys/wait.h>
#include <unistd.h>

#include "party.h"
#include "transport.h"

static bool ended_well(pid_t child) {
    int status = 0;
    while (waitpid(child, &status, 0) == -1)
        if (errno != EINTR)
            return false;
    return WIFEXITED(status) && WEXITSTATUS(status) == EXIT_SUCCESS;
}

int main(void) {
    int listener = -1;
    uint16_t port = 0;
    /* Listening before the fork: the AP can connect whenever the AC comes to accept it. */
    if (listen_on_loopback(&listener, &port) != transferDone) {
        perror("exchange: cannot listen");
        return EXIT_FAILURE;
    }
    const pid_t ac = fork();
    if (ac == -1) {
        perror("exchange: cannot fork");
        return EXIT_FAILURE;
    }
    if (ac == 0)
        return run_ac(listener);
    close(listener);
    const int ap = run_ap(port);
    if (!ended_well(ac)) {
        fprintf(stderr, "exchange: the AC failed\n");
        return EXIT_FAILURE;
    }
    return ap;
}
