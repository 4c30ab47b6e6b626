#include "fuzz.h"

#include <cstdio>
#include <cstdlib>

namespace fuzz {

void broken(const char *condition, const char *file, int line) {
    std::fprintf(stderr, "%s:%d: does not hold: %s\n", file, line, condition);
    std::abort();
}

Watch::Watch() {
    test_host::reset();
    test_host::set_on_fatal(test_host::OnFatal::aborts);
}

Watch::~Watch() {
    HOLDS(test_host::live_blocks() == 0);
}

} // namespace fuzz
