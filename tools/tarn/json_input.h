// Splitting JSON input into messages.
#ifndef TARN_TOOL_JSON_INPUT_H
#define TARN_TOOL_JSON_INPUT_H

#include "tarn/json_form.h"

namespace tool {

struct JsonMessage {
    unsigned line; // on which the value begins that holds it
    Json json;
};

// The messages of a file's content: objects one after the other, each on one line or on several,
// or arrays of objects. `name` is what errors call the file. Throws InputError.
std::vector<JsonMessage> split_json(const std::string &content, const std::string &name);

} // namespace tool

#endif
