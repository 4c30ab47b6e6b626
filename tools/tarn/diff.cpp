#include <algorithm>

#include "tarn/input.h"
#include "tarn/judged.h"
#include "tarn/terminal.h"
#include "tarn/writing.h"

namespace tool {

namespace {

using Bytes = std::vector<std::uint8_t>;

struct Kept {
    Bytes bytes;
    std::string place; // "line 3", "packet 12"
};

class Keeper final : public FileSink {
public:
    explicit Keeper(const Streams &streams) : FileSink(streams, false) {}

    void message(const capture::Found &found) override {
        kept_.push_back({{found.bytes.begin(), found.bytes.end()},
                         found.line != 0 ? "line " + std::to_string(found.line)
                                         : "packet " + std::to_string(found.packet)});
    }
    const std::vector<Kept> &kept() const { return kept_; }

private:
    std::vector<Kept> kept_;
};

struct DeleteMsg {
    void operator()(TarnMsg *msg) const { TarnDeleteMsg(msg); }
};
using MsgPtr = std::unique_ptr<TarnMsg, DeleteMsg>;

MsgPtr unpack(const Bytes &bytes) {
    TarnMsg *msg = nullptr;
    TarnUnpackNewMsg(bytes.data(), std::uint32_t(bytes.size()), &msg);
    return MsgPtr(msg);
}

std::string name_of(const MsgPtr &msg) {
    return msg ? tarnInfoMessageById(msg->messageId)->name : "refused";
}

class Comparison {
public:
    explicit Comparison(const Streams &streams) : streams_(streams) {}

    void compare(std::size_t number, const Kept &left, const Kept &right) {
        const MsgPtr a = unpack(left.bytes);
        const MsgPtr b = unpack(right.bytes);
        head_ = "message " + std::to_string(number) + " (" + left.place + ", " + right.place +
                "): " + name_of(a) + "\n";
        if (a && b)
            tarnInfoCompareMsgs(a.get(), b.get(), tell, this);
        if (left.bytes != right.bytes && !head_.empty())
            compare_bytes(left.bytes, right.bytes);
    }

    bool differs() const { return differs_; }

    void line(const std::string &text) {
        streams_.out << head_ << "  " << text << '\n';
        head_.clear();
        differs_ = true;
    }

private:
    static void tell(void *context, const TarnInfoDifference *difference) {
        const auto side = [](const char *value) { return std::string(value ? value : "absent"); };
        static_cast<Comparison *>(context)->line(std::string(difference->path) + ": " +
                                                 side(difference->left) + " -> " +
                                                 side(difference->right));
    }

    // What is not decodable, and what the decoder passes over.
    void compare_bytes(const Bytes &left, const Bytes &right) {
        const auto common = std::min(left.size(), right.size());
        const auto at = std::size_t(
            std::mismatch(left.begin(), left.begin() + std::ptrdiff_t(common), right.begin())
                .first -
            left.begin());
        const auto from = [at](const Bytes &bytes) {
            constexpr std::size_t shown = 12;
            std::string text;
            append_hex(capture::first_of(capture::View(bytes).subspan(at), shown), &text);
            return text.empty() ? "the end" : text + (bytes.size() > at + shown ? "..." : "");
        };
        line("byte " + std::to_string(at) + ": " + from(left) + " -> " + from(right));
    }

    Streams streams_;
    std::string head_; // of the message, until it is printed
    bool differs_ = false;
};

} // namespace

int diff(const std::vector<std::string> &files, const InputOptions &input, const Streams &streams) {
    Keeper sides[2] = {Keeper(streams), Keeper(streams)};
    int status = exitOk;
    for (std::size_t i = 0; i < 2; ++i)
        status = std::max(status, sides[i].read({files[i]}, input));
    const std::vector<Kept> &left = sides[0].kept();
    const std::vector<Kept> &right = sides[1].kept();
    Comparison comparison(streams);
    const std::size_t common = std::min(left.size(), right.size());
    for (std::size_t i = 0; i < common; ++i)
        comparison.compare(i + 1, left[i], right[i]);
    if (left.size() != right.size())
        streams.out << printable(files[left.size() < right.size() ? 1 : 0]) << " has "
                    << std::max(left.size(), right.size()) - common << " more\n";
    const bool differs = comparison.differs() || left.size() != right.size();
    return std::max(status, differs ? exitRefused : exitOk);
}

} // namespace tool
