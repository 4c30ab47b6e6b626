#include <algorithm>

#include "tarn/commands.h"
#include "tarn/diagnosis.h"
#include "tarn/json_form.h"
#include "tarn/tree.h"
#include "tarn/wording.h"

namespace tool {

namespace {

// A message with what libtarn makes of it and why.
struct Decoded {
    std::string place; // "message 2 (rab.hex:12)"
    const RawMessage &raw;
    MsgPtr msg; // null if it is not decodable
    bool isValid = false;
    Diagnosis diagnosis;
};

MsgPtr unpack(const Bytes &bytes) {
    TarnMsg *msg = nullptr;
    TarnUnpackNewMsg(bytes.data(), std::uint32_t(bytes.size()), &msg);
    return MsgPtr(msg);
}

Decoded decode_message(const RawMessage &raw, std::string place) {
    Decoded decoded{std::move(place), raw, unpack(raw.bytes), false, {}};
    decoded.diagnosis = diagnose(raw.bytes.data(), std::uint32_t(raw.bytes.size()));
    if (decoded.msg)
        decoded.isValid =
            protocol::message_by_id(decoded.msg->messageId)->isValid(decoded.msg.get()) != 0;
    return decoded;
}

std::string verdict(const Decoded &decoded) {
    if (!decoded.msg)
        return "not decodable";
    return decoded.isValid ? "valid" : "not valid";
}

// Some of the bytes at a position, to find it again in a trace.
std::string bytes_at(const Bytes &bytes, std::uint32_t at) {
    constexpr std::size_t shown = 12;
    if (at >= bytes.size())
        return "none, they have ended";
    const std::size_t count = std::min(shown, bytes.size() - at);
    return hex_bytes(bytes.data() + at, count) + (at + count < bytes.size() ? " ..." : "");
}

std::string reason(const Decoded &decoded, const std::string &indent) {
    std::string text;
    for (const Finding &fault : decoded.diagnosis.faults)
        text += indent + (text.empty() ? verdict(decoded) + ": " : "  ") + words(fault) + "\n";
    if (!text.empty())
        text += indent + "  bytes there: " +
                bytes_at(decoded.raw.bytes, decoded.diagnosis.faults.front().at) + "\n";
    return text;
}

void print_text(const Decoded &decoded, const Streams &streams) {
    const Message *message = decoded.diagnosis.message;
    streams.out << decoded.place << ": "
                << (message != nullptr
                        ? message->name + (" (id " + std::to_string(message->id) + ")")
                        : "no known message")
                << ", " << counted(decoded.raw.bytes.size(), "byte") << ", " << verdict(decoded)
                << '\n';
    const TarnMsg *shown = decoded.msg ? decoded.msg.get() : decoded.diagnosis.decoded.get();
    if (shown != nullptr)
        print_tree(streams.out, *shown, *message);
    streams.out << reason(decoded, "  ");
    for (const Finding &note : decoded.diagnosis.notes)
        streams.out << "  note: " << words(note) << '\n';
    streams.out << '\n';
}

void print_json(const Decoded &decoded, bool pretty, const Streams &streams) {
    if (decoded.msg)
        streams.out << to_json(*decoded.msg).dump(pretty ? 2 : -1) << '\n';
    if (!decoded.diagnosis.faults.empty())
        streams.err << "tarn: " << decoded.place << ": " << reason(decoded, "");
    for (const Finding &note : decoded.diagnosis.notes)
        streams.err << "tarn: " << decoded.place << ": note: " << words(note) << '\n';
}

} // namespace

int decode(const DecodeOptions &options, const Streams &streams) {
    int status = exitOk;
    unsigned number = 0;
    for (const std::string &file : options.files) {
        try {
            const std::string name = file == "-" ? "standard input" : file;
            for (const RawMessage &raw : split_messages(read_file(file), options.format, name)) {
                std::string place = "message " + std::to_string(++number) + " (" + name;
                place += (raw.line != 0 ? ":" + std::to_string(raw.line) : "") + ")";
                const Decoded decoded = decode_message(raw, std::move(place));
                if (options.json)
                    print_json(decoded, options.pretty, streams);
                else
                    print_text(decoded, streams);
                if (!decoded.isValid)
                    status = std::max(status, exitRefused);
            }
        } catch (const InputError &error) {
            streams.err << "tarn: " << error.what() << '\n';
            status = exitUnusable;
        }
    }
    return status;
}

} // namespace tool
