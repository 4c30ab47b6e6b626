// The subcommands of the tool. Each returns an exit status.
#ifndef TARN_TOOL_COMMANDS_H
#define TARN_TOOL_COMMANDS_H

#include <ostream>
#include <string>
#include <vector>

#include "tarn/capture/capture.h"

namespace tool {

constexpr int exitOk = 0;
constexpr int exitRefused = 1;  // a message is refused or invalid, or cannot be built; files differ
constexpr int exitUnusable = 2; // the command line, input that cannot be read, or the output

// Where the subcommands write: results, and errors.
struct Streams {
    std::ostream &out;
    std::ostream &err;
};

// What an option asks for that makes no sense; the text tells what is wrong.
struct UsageError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

enum class Form { detect, hex, raw, framed, capture };

struct InputOptions {
    Form form = Form::detect;
    capture::Options capture;
};

// Which messages are wanted.
struct FilterOptions {
    std::vector<std::string> only;   // terms, of which one must hold
    std::vector<std::string> butNot; // terms, of which none may hold
    std::string where;               // an expression that must hold
    bool errors = false;             // refused and invalid ones alone
};

enum class Output { tree, summary, hex, json, fields };

struct DecodeOptions {
    std::vector<std::string> files = {}; // "-" for standard input
    InputOptions input = {};
    FilterOptions filter = {};
    Output output = Output::tree;
    std::string fields = {};    // of Output::fields, with commas between
    std::string pcapng = {};    // file to write the messages to, or empty
    bool pretty = false;        // JSON on many lines
    std::uint32_t switches = 0; // of TarnInfoReadably and its kin
    bool colours = false;
    bool progress = false;
};

struct StatsOptions {
    std::vector<std::string> files = {};
    InputOptions input = {};
    FilterOptions filter = {};
    bool perSecond = false;
    bool progress = false;
};

struct EncodeOptions {
    std::vector<std::string> files = {}; // "-" for standard input
    bool raw = false;
    std::string rawOutput = {}; // file for the raw bytes, beside the hex text
    bool force = false;
};

int decode(const DecodeOptions &options, const Streams &streams);
int stats(const StatsOptions &options, const Streams &streams);
// Tells the messages of two files apart: the first of one with the first of the other, and so on.
int diff(const std::vector<std::string> &files, const InputOptions &input, const Streams &streams);
int encode(const EncodeOptions &options, const Streams &streams);
// No name asks for the overview, or as JSON for everything.
int describe(const std::vector<std::string> &names, bool json, const Streams &streams);
// The columns of the JSON lines for "duckdb" or "spark".
int describe_schema(const std::string &engine, const Streams &streams);

} // namespace tool

#endif
