// Messages as JSON, both ways.
//
// A message is an object: {"message": name, then one member per IE, by name, in the message's
// order}; the MessageId follows from the name. Numbers stand as numbers (when reading, a string
// like "0x1f" will do as well), byte strings as hex strings, an IpAddress as a dotted string,
// records and sequence composites as objects, lists of both kinds as arrays.
#ifndef TARN_TOOL_JSON_FORM_H
#define TARN_TOOL_JSON_FORM_H

#include <nlohmann/json.hpp>

#include "tarn/values.h"

namespace tool {

using Json = nlohmann::ordered_json;

Json to_json(const TarnMsg &msg);

// A place in a JSON message, and the rule that it breaks.
struct JsonFault {
    std::string path;
    std::string what;
};

// Builds a message object and checks it. Throws JsonFault.
MsgPtr from_json(const Json &json);

} // namespace tool

#endif
