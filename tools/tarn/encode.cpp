#include <cerrno>
#include <cstring>
#include <fstream>

#include "tarn/commands.h"
#include "tarn/json_encode.h"
#include "tarn/terminal.h"
#include "tarn/writing.h"

namespace tool {

namespace {

// Encodes the messages of all files.
class Encoding {
public:
    Encoding(const EncodeOptions &options, const Streams &streams)
        : options_(options), streams_(streams) {
        if (options.force)
            encoder_ = JsonEncoder([this](const JsonFault &fault) {
                refuse(exitRefused, place_ + words(fault) + ": left out");
            });
    }

    int run() {
        for (const std::string &file : options_.files) {
            name_ = file == "-" ? "standard input" : printable(file);
            try {
                read(file);
            } catch (const capture::SourceError &error) {
                refuse(exitUnusable, name_ + ": " + error.what());
            }
        }
        if (options_.raw || !options_.rawOutput.empty())
            write_raw();
        return status_;
    }

private:
    void read(const std::string &file) {
        capture::Source source(file);
        source.beforeWaiting = [this] { streams_.out.flush(); };
        JsonReader reader(source);
        JsonTree tree;
        bool isEmpty = true;
        for (auto step = reader.next(&tree); step != JsonReader::Step::end;
             step = reader.next(&tree)) {
            isEmpty = false;
            if (step == JsonReader::Step::value)
                add(tree, reader.line());
            else
                refuse(exitUnusable,
                       name_ + ":" + std::to_string(reader.line()) + ": " + reader.what());
        }
        if (!source.defect().empty())
            refuse(exitUnusable, name_ + ": " + source.defect());
        else if (isEmpty)
            refuse(exitUnusable, name_ + ": no message in it");
    }

    void add(const JsonTree &tree, std::uint64_t line) {
        ++number_;
        place_ = "message " + std::to_string(number_) + " (" + name_ + ":" + std::to_string(line) +
                 "): ";
        try {
            encoder_.encode(tree);
        } catch (const JsonFault &fault) {
            return refuse(exitRefused, place_ + words(fault));
        }
        if (!options_.raw)
            write_hex();
        if (number_ == 1)
            raw_ = encoder_.bytes();
    }

    // One line, with a blank between the IEs of the message.
    void write_hex() {
        line_.clear();
        const capture::View bytes = encoder_.bytes();
        const std::vector<std::size_t> &starts = encoder_.starts();
        for (std::size_t i = 0; i < starts.size(); ++i) {
            const std::size_t end = i + 1 < starts.size() ? starts[i + 1] : bytes.size();
            if (end == starts[i])
                continue;
            line_ += line_.empty() ? "" : " ";
            append_hex(bytes.subspan(starts[i], end - starts[i]), &line_);
        }
        line_ += '\n';
        streams_.out.write(line_.data(), std::streamsize(line_.size()));
    }

    void refuse(int status, const std::string &why) {
        streams_.err << "tarn: " << why << '\n';
        status_ = std::max(status_, status);
    }

    void write_raw() {
        if (number_ > 1)
            return refuse(exitUnusable, "nothing in raw bytes tells where a message ends: encode "
                                        "one at a time, not " +
                                            std::to_string(number_));
        const auto *bytes = reinterpret_cast<const char *>(raw_.data());
        if (options_.raw)
            streams_.out.write(bytes, std::streamsize(raw_.size()));
        if (options_.rawOutput.empty() || raw_.empty())
            return;
        std::ofstream file(options_.rawOutput, std::ios::binary);
        file.write(bytes, std::streamsize(raw_.size()));
        if (!file.flush())
            refuse(exitUnusable, printable(options_.rawOutput) + ": " + std::strerror(errno));
    }

    const EncodeOptions &options_;
    Streams streams_;
    JsonEncoder encoder_;
    std::string name_;  // of the file
    std::string place_; // of the message
    std::string line_;
    std::vector<std::uint8_t> raw_; // of the first message
    std::uint64_t number_ = 0;
    int status_ = exitOk;
};

} // namespace

int encode(const EncodeOptions &options, const Streams &streams) {
    return Encoding(options, streams).run();
}

} // namespace tool
