// The subcommands of the tool. Each returns an exit status.
#ifndef TARN_TOOL_COMMANDS_H
#define TARN_TOOL_COMMANDS_H

#include <ostream>
#include <string>
#include <vector>

#include "tarn/input.h"

namespace tool {

constexpr int exitOk = 0;
constexpr int exitRefused = 1;  // a message is not decodable or not valid, or cannot be built
constexpr int exitUnusable = 2; // the command line or the input

// Where the subcommands write: results, and errors.
struct Streams {
    std::ostream &out;
    std::ostream &err;
};

struct DecodeOptions {
    std::vector<std::string> files; // none for standard input
    Format format = Format::detect;
    bool json = false;
    bool pretty = false;
};

struct EncodeOptions {
    std::vector<std::string> files; // none for standard input
    bool raw = false;
    std::string rawOutput; // file for the raw bytes, beside the hex text
};

int decode(const DecodeOptions &options, const Streams &streams);
int encode(const EncodeOptions &options, const Streams &streams);
// An empty name asks for the overview.
int describe(const std::string &name, const Streams &streams);

} // namespace tool

#endif
