#include <cerrno>
#include <cstring>
#include <fstream>

#include "tarn/commands.h"
#include "tarn/json_input.h"
#include "tarn/wording.h"

namespace tool {

namespace {

Bytes pack(const TarnMsg &msg) {
    Bytes bytes(std::size_t(TarnSizeOfMsg(&msg)));
    const Message &message = *protocol::message_by_id(msg.messageId);
    if (message.pack(&msg, bytes.data(), std::uint32_t(bytes.size())) == 0)
        throw JsonFault{"", "libtarn does not pack it"};
    return bytes;
}

// One line, with a blank between the IEs of the message.
std::string hex_line(const TarnMsg &msg, const Bytes &bytes) {
    std::string line;
    std::size_t at = 0;
    const Message &message = *protocol::message_by_id(msg.messageId);
    for (const Child &child : children({const_cast<TarnMsg *>(&msg), nullptr, message.slots})) {
        const std::size_t size = TarnSizeOfIe(child.ie);
        line += (at != 0 ? " " : "") + compact_hex(bytes.data() + at, size);
        at += size;
    }
    return line;
}

// Encodes the messages of all files, keeping the bytes.
class Encoder {
public:
    Encoder(const EncodeOptions &options, const Streams &streams)
        : options_(options), streams_(streams) {}

    int run() {
        for (const std::string &file : options_.files) {
            try {
                const std::string name = file == "-" ? "standard input" : file;
                for (const JsonMessage &message : split_json(read_file(file), name))
                    add(message, name);
            } catch (const InputError &error) {
                refuse(exitUnusable, error.what());
            }
        }
        if (options_.raw || !options_.rawOutput.empty())
            write_raw();
        return status_;
    }

private:
    void add(const JsonMessage &message, const std::string &file) {
        ++number_;
        try {
            const MsgPtr msg = from_json(message.json);
            const Bytes bytes = pack(*msg);
            if (!options_.raw)
                streams_.out << hex_line(*msg, bytes) << '\n';
            raw_.insert(raw_.end(), bytes.begin(), bytes.end());
        } catch (const JsonFault &fault) {
            refuse(exitRefused, "message " + std::to_string(number_) + " (" + file + ":" +
                                    std::to_string(message.line) + "): " +
                                    (fault.path.empty() ? "" : fault.path + ": ") + fault.what);
        }
    }

    void refuse(int status, const std::string &why) {
        streams_.err << "tarn: " << why << '\n';
        status_ = std::max(status_, status);
    }

    void write_raw() {
        if (number_ > 1)
            return refuse(exitUnusable,
                          "nothing in raw bytes tells where a message ends: encode one "
                          "at a time, not " +
                              std::to_string(number_));
        if (options_.raw)
            streams_.out.write(reinterpret_cast<const char *>(raw_.data()),
                               std::streamsize(raw_.size()));
        if (options_.rawOutput.empty() || status_ != exitOk)
            return;
        std::ofstream file(options_.rawOutput, std::ios::binary);
        file.write(reinterpret_cast<const char *>(raw_.data()), std::streamsize(raw_.size()));
        if (!file.flush())
            refuse(exitUnusable, options_.rawOutput + ": " + std::strerror(errno));
    }

    const EncodeOptions &options_;
    Streams streams_;
    Bytes raw_;
    unsigned number_ = 0;
    int status_ = exitOk;
};

} // namespace

int encode(const EncodeOptions &options, const Streams &streams) {
    return Encoder(options, streams).run();
}

} // namespace tool
