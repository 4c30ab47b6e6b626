// Text on its way to a sink: a block on the stack that is handed over when it is full.
#ifndef TARN_INFO_TEXT_H
#define TARN_INFO_TEXT_H

#include <cstdint>
#include <cstring>
#include <string_view>

#include "tarn_info.h"

namespace info {

class Text {
public:
    Text(TarnInfoSink *sink, void *context) : sink_(sink), context_(context) {}
    Text(const Text &) = delete;
    Text &operator=(const Text &) = delete;

    void flush() {
        if (used_ != 0)
            sink_(context_, block_, used_);
        used_ = 0;
    }

    // Room for this many bytes, which must be far fewer than the block's; advance() to behind what
    // was written there.
    char *room(std::uint32_t count) {
        if (sizeof block_ - used_ < count)
            flush();
        return block_ + used_;
    }
    void advance(const char *end) { used_ = std::uint32_t(end - block_); }

    void put(char c) {
        char *at = room(1);
        *at = c;
        advance(at + 1);
    }

    void put(std::string_view text) {
        while (text.size() > sizeof block_ - used_) {
            const std::size_t part = sizeof block_ - used_;
            std::memcpy(block_ + used_, text.data(), part);
            used_ = sizeof block_;
            flush();
            text.remove_prefix(part);
        }
        std::memcpy(block_ + used_, text.data(), text.size());
        used_ += std::uint32_t(text.size());
    }

    void fill(std::size_t count) {
        for (; count != 0; --count)
            put(' ');
    }

    void number(std::uint32_t number) {
        std::uint32_t length = 1;
        for (std::uint32_t rest = number; rest >= 10; rest /= 10)
            ++length;
        char *at = room(length);
        for (char *digit = at + length; digit != at; number /= 10)
            *--digit = char('0' + number % 10);
        advance(at + length);
    }

    void hex(const std::uint8_t *bytes, std::uint32_t count, bool spaced) {
        for (std::uint32_t i = 0; i < count; ++i) {
            char *at = room(3);
            *at = ' ';
            at += spaced && i != 0 ? 1 : 0;
            at[0] = hexDigits[bytes[i] >> 4];
            at[1] = hexDigits[bytes[i] & 15];
            advance(at + 2);
        }
    }

    // As many digits as the width has: 0x002a.
    void hex_number(std::uint32_t number, std::uint32_t width) {
        put("0x");
        for (std::uint32_t shift = width * 8; shift != 0; shift -= 4)
            put(hexDigits[number >> (shift - 4) & 15]);
    }

private:
    static constexpr char hexDigits[] = "0123456789abcdef";

    TarnInfoSink *sink_;
    void *context_;
    std::uint32_t used_ = 0;
    char block_[4096];
};

} // namespace info

#endif
