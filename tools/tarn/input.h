// Reading what the tool is given: files, hex text, raw bytes.
#ifndef TARN_TOOL_INPUT_H
#define TARN_TOOL_INPUT_H

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "tarn/values.h"

namespace tool {

// What cannot be read: the text names the file and, where there is one, the line.
struct InputError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

enum class Format { detect, hex, raw };

struct RawMessage {
    unsigned line; // on which it begins; 0 in raw input
    Bytes bytes;
};

// The whole content of a file, or of standard input for "-".
std::string read_file(const std::string &path);

// The bytes that a run of text holds as hex digits, with any of " \t,;:-._|" between bytes and 0x
// before them. Throws InputError, without a place, for anything else.
void append_hex(std::string_view text, Bytes *bytes);

// The messages of a file's content. `name` is what errors call the file.
std::vector<RawMessage> split_messages(const std::string &content, Format format,
                                       const std::string &name);

} // namespace tool

#endif
