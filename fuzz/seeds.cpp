// Writes what fuzzing starts from: a corpus per target, made from the protocol's tables and the
// sample messages, and a dictionary of IE headers.
#include <algorithm>
#include <cctype>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>

#include "support/samples.h"

namespace {

namespace files = std::filesystem;

// One target's corpus. Files are named by their number: what they hold tells the rest.
class Corpus {
public:
    Corpus(const files::path &folder, const char *target) : folder_(folder / target) {
        files::remove_all(folder_);
        files::create_directories(folder_);
    }

    void add(const Bytes &prefix, const Bytes &bytes) {
        char name[16];
        std::snprintf(name, sizeof name, "%05u", count_++);
        std::ofstream file(folder_ / name, std::ios::binary);
        write(&file, prefix);
        write(&file, bytes);
    }

private:
    static void write(std::ofstream *file, const Bytes &bytes) {
        file->write(reinterpret_cast<const char *>(bytes.data()), std::streamsize(bytes.size()));
    }

    files::path folder_;
    unsigned count_ = 0;
};

// A sample message is text: hexadecimal digits, of which two make a byte, and comments from # to
// the line's end.
Bytes read_sample(const files::path &path) {
    Bytes bytes;
    std::string digits;
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);)
        for (const char c : line.substr(0, line.find('#')))
            if (std::isxdigit(static_cast<unsigned char>(c)) != 0)
                digits += c;
    for (std::size_t i = 0; i + 1 < digits.size(); i += 2)
        bytes.push_back(std::uint8_t(std::stoul(digits.substr(i, 2), nullptr, 16)));
    return bytes;
}

// Longer ones would slow every run down and show nothing more.
constexpr std::size_t longEnough = 4096;

// With each of the numbers that decide on conditional IEs: 4 stands for all others.
constexpr std::uint32_t decidingNumbers = 5;

std::vector<Bytes> all_messages(const files::path &sampleFolder) {
    std::vector<Bytes> all;
    Random random(1);
    for (const Message *type : protocol::messages())
        for (const Amount amount : {Amount::least, Amount::slim, Amount::random, Amount::most})
            for (std::uint32_t deciding = 0; deciding < decidingNumbers; ++deciding) {
                Bytes bytes =
                    samples::encode(samples::make_message(*type, amount, random, deciding));
                if (bytes.size() <= longEnough)
                    all.push_back(std::move(bytes));
            }
    std::vector<files::path> paths;
    if (files::is_directory(sampleFolder))
        for (const auto &entry : files::directory_iterator(sampleFolder))
            if (entry.path().extension() == ".hex")
                paths.push_back(entry.path());
    std::sort(paths.begin(), paths.end());
    for (const auto &path : paths)
        all.push_back(read_sample(path));
    return all;
}

// Changes the numbers that decide on conditional IEs, and not these; whether there were any.
bool change_deciding(Nodes *nodes, std::uint32_t number) {
    constexpr std::uint32_t deciding[] = {27, 100, 155}; // TrafficClass, Reset3GAP, RelocationType
    bool changed = false;
    for (Node &node : *nodes) {
        if (std::count(std::begin(deciding), std::end(deciding), node.type->tag) != 0) {
            samples::set_number(node, number);
            changed = true;
        }
        changed |= change_deciding(&node.children, number);
    }
    return changed;
}

// The message as it should not be: ending behind each of its IEs, with each IE out of range, with
// conditional IEs that are not called for.
std::vector<Bytes> spoilt(const Nodes &whole, Random *random) {
    std::vector<Bytes> all;
    for (std::size_t i = 1; i < whole.size(); ++i) {
        all.push_back(samples::encode(Nodes(whole.begin(), whole.begin() + std::ptrdiff_t(i))));
        Nodes nodes = whole;
        if (auto invalid = samples::make_invalid(*nodes[i].type, *random)) {
            nodes[i] = *std::move(invalid);
            all.push_back(samples::encode(nodes));
        }
    }
    for (std::uint32_t number = 0; number < decidingNumbers; ++number) {
        Nodes nodes = whole;
        if (change_deciding(&nodes, number))
            all.push_back(samples::encode(nodes));
    }
    return all;
}

void write_decode(const files::path &folder, const std::vector<Bytes> &messages) {
    Corpus corpus(folder, "decode");
    for (const Bytes &message : messages)
        corpus.add({}, message);
    Random random(1);
    for (const Message *type : protocol::messages())
        for (std::uint32_t deciding = 0; deciding < decidingNumbers; ++deciding) {
            const Nodes whole = samples::make_message(*type, Amount::slim, random, deciding);
            for (const Bytes &bytes : spoilt(whole, &random))
                corpus.add({}, bytes);
        }
}

// A message decoded into its own record and into some other one, and records filled with one byte.
void write_record(const files::path &folder, const std::vector<Bytes> &messages) {
    enum : std::uint8_t { ownRecord, anyRecord, otherRecord };
    Corpus corpus(folder, "record");
    std::uint8_t other = 0;
    const std::size_t types = protocol::messages().size();
    for (const Bytes &message : messages) {
        corpus.add({ownRecord}, message);
        other = std::uint8_t((other + 1) % types);
        corpus.add({otherRecord, other}, message);
    }
    for (std::uint8_t type = 0; type < types; ++type)
        for (const int filling : {0x00, 0x01, 0x03, 0xFF})
            corpus.add({anyRecord, type}, {std::uint8_t(filling)});
}

constexpr std::ptrdiff_t tagSize = 2;
constexpr std::size_t headerSize = 6;

std::size_t length_at(const Bytes &bytes, std::size_t tag) {
    std::size_t length = 0;
    for (std::size_t i = tag + std::size_t(tagSize); i < tag + headerSize; ++i)
        length = length << 8 | bytes[i];
    return length;
}

void set_length(Bytes *ie, std::size_t length) {
    for (std::size_t i = headerSize; i-- != std::size_t(tagSize); length >>= 8)
        (*ie)[i] = std::uint8_t(length);
}

// What a full list or a record becomes when it lies: one item more than the array holds, or a
// length that ends behind the first member. Nothing for other shapes.
Bytes lying(const Type &type, Bytes ie) {
    if (type.shape == Shape::list) {
        const std::size_t item = headerSize + length_at(ie, headerSize);
        ie.insert(ie.end(), ie.end() - std::ptrdiff_t(item), ie.end());
        set_length(&ie, ie.size() - headerSize);
    } else if (type.shape == Shape::record) {
        set_length(&ie, headerSize + length_at(ie, headerSize));
    } else {
        ie.clear();
    }
    return ie;
}

void write_ie(const files::path &folder) {
    enum : std::uint8_t { unpackIe, unpackValue, packAnything };
    Corpus corpus(folder, "ie");
    Random random(1);
    std::uint8_t number = 0;
    const auto add = [&corpus, &number](const Type &type, const Bytes &ie) {
        if (ie.empty() || ie.size() > longEnough)
            return;
        if (type.hasIe)
            corpus.add({number, unpackIe}, ie);
        if (!type.is_composite())
            corpus.add({number, unpackValue}, {ie.begin() + tagSize, ie.end()});
    };
    for (const Type *type : protocol::types()) {
        for (const Amount amount : {Amount::least, Amount::slim, Amount::random, Amount::most})
            add(*type, samples::encode(samples::make_node(*type, amount, random)));
        add(*type, lying(*type, samples::encode(samples::make_node(*type, Amount::most, random))));
        for (std::uint32_t deciding = 0; deciding < decidingNumbers; ++deciding) {
            Nodes nodes = {samples::make_node(*type, Amount::slim, random)};
            if (change_deciding(&nodes.front().children, deciding))
                add(*type, samples::encode(nodes));
        }
        if (!type->is_composite())
            corpus.add({number, packAnything, 16, 2}, {1, 0, 0, 0, 2, 0, 0, 0, 4, 0, 0, 0});
        ++number;
    }
}

// Each message decoded, taken apart and packed, and then something built next to it.
void write_calls(const files::path &folder) {
    enum : std::uint8_t {
        makeMessage,
        makeComposite,
        decodeMessage = 3,
        appendValue,
        linkComposite = 6,
        extractValue = 8,
        extractComposite,
        resetHistory,
        packMessage = 12,
        judge = 14,
    };
    Corpus corpus(folder, "calls");
    for (std::uint8_t type = 0; type < protocol::messages().size(); ++type) {
        corpus.add({decodeMessage, type, 1, type, 0}, {extractValue,
                                                       0,
                                                       1,
                                                       1,
                                                       extractComposite,
                                                       0,
                                                       1,
                                                       3,
                                                       extractValue,
                                                       1,
                                                       0,
                                                       resetHistory,
                                                       0,
                                                       packMessage,
                                                       0,
                                                       1,
                                                       1,
                                                       judge,
                                                       0,
                                                       type});
        corpus.add({makeMessage, type}, {appendValue,
                                         0,
                                         1,
                                         1,
                                         0,
                                         0,
                                         appendValue,
                                         0,
                                         1,
                                         2,
                                         2,
                                         1,
                                         makeComposite,
                                         type,
                                         linkComposite,
                                         0,
                                         1,
                                         1,
                                         packMessage,
                                         0,
                                         1,
                                         1,
                                         judge,
                                         0,
                                         type});
    }
}

// Each message as the tool's forms of input have it, and captures.
void write_input(const files::path &folder, const std::vector<Bytes> &messages,
                 const files::path &captures) {
    constexpr std::uint8_t found = 0;
    constexpr std::uint8_t text = 1;
    Corpus corpus(folder, "input");
    for (const auto &entry : files::directory_iterator(captures)) {
        std::ifstream file(entry.path(), std::ios::binary);
        corpus.add({found}, {std::istreambuf_iterator<char>(file), {}});
    }
    for (const Bytes &message : messages) {
        const std::size_t size = message.size();
        corpus.add({found, 0, 0, std::uint8_t(size >> 8), std::uint8_t(size)}, message);
        std::string dump = "0000  ";
        std::string escapes;
        for (const std::uint8_t byte : message) {
            char piece[8];
            std::snprintf(piece, sizeof piece, "%02x ", byte);
            dump += piece;
            std::snprintf(piece, sizeof piece, "\\x%02x", byte);
            escapes += piece;
        }
        corpus.add({text}, Bytes(dump.begin(), dump.end()));
        corpus.add({text}, Bytes(escapes.begin(), escapes.end()));
    }
}

// Messages with nothing in them that can be said without knowing the rows: the fuzzer's dictionary
// and the parser's own words lead on from there.
void write_json(const files::path &folder) {
    Corpus corpus(folder, "json");
    for (const protocol::Message *type : protocol::messages()) {
        std::string line = std::string("{\"message\":\"") + type->name + "\"";
        for (const protocol::Slot &slot : type->slots)
            if (&slot != &type->slots.front())
                line += std::string(",\"") + slot.name + "\":1";
        line += "}\n";
        corpus.add({}, Bytes(line.begin(), line.end()));
    }
}

// The headers of every IE, with the lengths that its value may have, as libFuzzer's dictionaries
// have them.
void write_dictionary(const files::path &path) {
    std::ofstream file(path);
    Random random(1);
    for (const Type *type : protocol::types()) {
        if (type->tag == 0)
            continue;
        for (const Amount amount : {Amount::least, Amount::slim}) {
            const Bytes ie = samples::encode(samples::make_node(*type, amount, random));
            file << '"';
            for (std::size_t i = 0; i < 6; ++i) {
                char escaped[8];
                std::snprintf(escaped, sizeof escaped, "\\x%02X", unsigned(ie[i]));
                file << escaped;
            }
            file << "\"\n";
        }
    }
}

} // namespace

int main(int count, char **arguments) {
    if (count != 4) {
        std::fprintf(stderr, "usage: %s CORPUS-FOLDER SAMPLE-FOLDER CAPTURE-FOLDER\n",
                     arguments[0]);
        return 2;
    }
    const files::path folder = arguments[1];
    const std::vector<Bytes> messages = all_messages(arguments[2]);
    write_decode(folder, messages);
    write_record(folder, messages);
    write_ie(folder);
    write_calls(folder);
    write_input(folder, messages, arguments[3]);
    write_json(folder);
    write_dictionary(folder / "dictionary");
    return 0;
}
