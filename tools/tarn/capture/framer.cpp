#include "tarn/capture/framer.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace capture {

bool MessageMark::begins(View bytes) {
    return bytes.size() >= sizeof start && std::memcmp(bytes.data(), start, sizeof start) == 0;
}

bool MessageMark::may_begin(View bytes) {
    return std::equal(bytes.begin(),
                      bytes.begin() + std::ptrdiff_t(std::min(bytes.size(), sizeof start)), start);
}

// Whether a frame begins with these bytes, and its size with the length.
Framer::Step Framer::look(View bytes, std::size_t *frame) const {
    if (bytes.size() < lengthSize)
        return Step::needsMore;
    const std::uint32_t length = big32(bytes.data());
    if (length == 0 || length > longest_)
        return Step::no;
    const View message = first_of(bytes.subspan(lengthSize), length);
    const bool mayBeAny = isTrusted_ && isInStep_;
    if (!mayBeAny && (length < sizeof MessageMark::start || !MessageMark::may_begin(message)))
        return Step::no;
    *frame = lengthSize + length;
    return message.size() < length ? Step::needsMore : Step::whole;
}

// Where the next frame may begin, one whose bytes have not all come included. The bytes at the very
// start are known not to be one.
std::size_t Framer::find(View bytes) const {
    std::size_t frame = 0;
    for (std::size_t at = 1; at < bytes.size(); ++at) {
        if (look(bytes.subspan(at), &frame) != Step::no)
            return at;
        // A length is far from filling its bytes, and so begins with a zero.
        const void *zero = std::memchr(bytes.data() + at + 1, 0, bytes.size() - at - 1);
        if (zero == nullptr)
            return bytes.size();
        at = std::size_t(static_cast<const std::uint8_t *>(zero) - bytes.data()) - 1;
    }
    return bytes.size();
}

// Takes frames off the front; what is left needs more bytes. Returns how many were taken.
std::size_t Framer::take(View bytes, Taker &taker) {
    const std::size_t size = bytes.size();
    while (!bytes.empty()) {
        std::size_t frame = 0;
        const Step step = look(bytes, &frame);
        if (step == Step::needsMore)
            break;
        if (step == Step::whole) {
            isKnown_ = isInStep_ = true;
            taker.framed(bytes.subspan(lengthSize, frame - lengthSize));
            bytes = bytes.subspan(frame);
            continue;
        }
        isInStep_ = false;
        const std::size_t next = find(bytes);
        taker.skipped(next);
        bytes = bytes.subspan(next);
    }
    return size - bytes.size();
}

void Framer::feed(View bytes, Taker &taker) {
    if (held_.empty()) {
        bytes = bytes.subspan(take(bytes, taker));
        held_.assign(bytes.begin(), bytes.end());
        return;
    }
    held_.insert(held_.end(), bytes.begin(), bytes.end());
    // A long frame comes in many pieces: looked at only when it may be whole.
    const std::size_t taken = take(held_, taker);
    held_.erase(held_.begin(), held_.begin() + std::ptrdiff_t(taken));
}

void Framer::lose(Taker &taker) {
    if (!held_.empty())
        taker.skipped(held_.size());
    held_.clear();
    isInStep_ = false;
}

} // namespace capture
