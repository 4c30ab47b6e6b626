// JSON for the tool to encode. What it takes decodes to the same bytes again, what it forces is
// written without a failure, and both ways of reading JSON come to the same end.
#include "fuzz.h"
#include "tarn/json_encode.h"

namespace {

struct Outcome {
    bool isJson = false;
    std::string fault;
    std::vector<std::uint8_t> bytes;

    bool operator==(const Outcome &) const = default;
};

Outcome encode_first(const std::string &text, bool isForced) {
    capture::Source source(
        capture::View{reinterpret_cast<const std::uint8_t *>(text.data()), text.size()});
    tool::JsonReader reader(source);
    tool::JsonTree tree;
    Outcome outcome;
    outcome.isJson = reader.next(&tree) == tool::JsonReader::Step::value;
    if (!outcome.isJson)
        return outcome;
    tool::JsonEncoder encoder =
        isForced ? tool::JsonEncoder([](const tool::JsonFault &) {}) : tool::JsonEncoder();
    try {
        encoder.encode(tree);
        outcome.bytes = encoder.bytes();
    } catch (const tool::JsonFault &fault) {
        outcome.fault = words(fault);
        HOLDS(!outcome.fault.empty());
    }
    return outcome;
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const std::string text(reinterpret_cast<const char *>(data), size);
    const Outcome outcome = encode_first(text, false);
    encode_first(text, true);
    if (!outcome.bytes.empty())
        HOLDS(tarnInfoJudge(outcome.bytes.data(), std::uint32_t(outcome.bytes.size())).verdict ==
              TarnInfoValid);
    // A tab makes a line one that the plain way leaves to the parser.
    const std::size_t brace = text.find('{');
    if (brace != text.npos && text.find_first_not_of(" \t\r\n[") == brace)
        HOLDS(encode_first(std::string(text).insert(brace + 1, "\t"), false) == outcome);
    return 0;
}
