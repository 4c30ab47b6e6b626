// What a subcommand wrote and returned.
#ifndef TARN_TEST_TOOL_OUTCOME_H
#define TARN_TEST_TOOL_OUTCOME_H

#include <sstream>
#include <string>

#include "tarn/commands.h"

struct Outcome {
    int status;
    std::string out;
    std::string err;
};

// call(streams): that of a subcommand, called in this process.
template <class Call>
Outcome outcome_of(Call call) {
    std::ostringstream out;
    std::ostringstream err;
    const int status = call(tool::Streams{out, err});
    return {status, out.str(), err.str()};
}

#endif
