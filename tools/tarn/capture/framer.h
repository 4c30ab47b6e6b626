// Messages in a stream of bytes, each behind its length in four bytes.
#ifndef TARN_TOOL_CAPTURE_FRAMER_H
#define TARN_TOOL_CAPTURE_FRAMER_H

#include <vector>

#include "tarn/capture/bytes.h"

namespace capture {

// What is known of messages before they are decoded.
struct MessageMark {
    static constexpr std::uint8_t start[] = {0x00, 0x48, 0x00, 0x00, 0x00, 0x01};
    static bool begins(View bytes);
    // As far as there are bytes to tell.
    static bool may_begin(View bytes);
};

class Framer {
public:
    // A trusted stream is known to hold messages: in it a message may begin with any bytes.
    Framer(std::uint32_t longest, bool isTrusted) : longest_(longest), isTrusted_(isTrusted) {}

    class Taker {
    public:
        virtual void framed(View message) = 0;
        virtual void skipped(std::uint64_t count) = 0; // bytes that are no message

    protected:
        ~Taker() = default;
    };

    void feed(View bytes, Taker &taker);
    // Bytes are missing here: what was begun is lost, and the next message must be looked for.
    void lose(Taker &taker);
    // Whether a message was found; until then the stream may be anything.
    bool is_known() const { return isKnown_; }
    // The bytes of a message that has not ended.
    std::size_t held() const { return held_.size(); }
    bool is_trusted() const { return isTrusted_; }

private:
    static constexpr std::size_t lengthSize = 4;

    enum class Step { whole, needsMore, no };
    Step look(View bytes, std::size_t *frame) const;
    std::size_t take(View bytes, Taker &taker);
    std::size_t find(View bytes) const;

    std::uint32_t longest_;
    bool isTrusted_;
    bool isKnown_ = false;
    bool isInStep_ = true; // where the next message begins is known
    std::vector<std::uint8_t> held_;
};

} // namespace capture

#endif
