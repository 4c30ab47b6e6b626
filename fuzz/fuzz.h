// What the fuzz targets share: checks that end the run, choices made from the input, buffers whose
// every neighbouring byte is guarded, and the watch that each input is run under.
#ifndef TARN_FUZZ_H
#define TARN_FUZZ_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <vector>

#include "support/test_host.h"

// Each target is this one function. libFuzzer calls it, or replay.cpp.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

namespace fuzz {

[[noreturn]] void broken(const char *condition, const char *file, int line);

// Ends the run when a property does not hold, in every kind of build.
#define HOLDS(condition_) ((condition_) ? void() : ::fuzz::broken(#condition_, __FILE__, __LINE__))

// A block of its own with exactly this many bytes, so that the sanitizer sees the first byte beyond
// either end. The library takes addresses of any alignment for wire bytes; values and records go
// to the block's start, which is aligned for any type.
class Block {
public:
    explicit Block(std::size_t size, int pattern = 0)
        : bytes_(new std::uint8_t[size]), size_(size) {
        std::fill_n(bytes_.get(), size, std::uint8_t(pattern));
    }
    Block(const void *bytes, std::size_t size) : Block(size) {
        if (size != 0)
            std::memcpy(bytes_.get(), bytes, size);
    }

    std::uint8_t *data() { return bytes_.get(); }
    const std::uint8_t *data() const { return bytes_.get(); }
    std::uint32_t size() const { return std::uint32_t(size_); }
    bool operator==(const Block &other) const {
        return std::equal(data(), data() + size_, other.data(), other.data() + other.size_);
    }
    bool is_filled_with(int pattern, std::size_t from = 0) const {
        return std::all_of(data() + from, data() + size_,
                           [pattern](std::uint8_t byte) { return byte == pattern; });
    }

private:
    std::unique_ptr<std::uint8_t[]> bytes_;
    std::size_t size_;
};

// The input as a run of choices. One that has ended goes on with zeros.
class Choices {
public:
    Choices(const std::uint8_t *data, std::size_t size) : at_(data), left_(size) {}

    bool ended() const { return left_ == 0; }

    std::uint8_t byte() {
        if (left_ == 0)
            return 0;
        --left_;
        return *at_++;
    }

    // A number below `limit`, which is at most 256.
    std::size_t below(std::size_t limit) { return byte() % limit; }

    std::uint32_t word() {
        std::uint32_t number = 0;
        for (int i = 0; i < 4; ++i)
            number = number << 8 | byte();
        return number;
    }

    // All that is left.
    Block rest() const { return Block(at_, left_); }

    // Fills memory from what is left, over and over, so that a short input fills a large record.
    void fill(void *memory, std::size_t size) const {
        auto *to = static_cast<std::uint8_t *>(memory);
        for (std::size_t i = 0; i < size; ++i)
            to[i] = left_ == 0 ? 0 : at_[i % left_];
    }

private:
    const std::uint8_t *at_;
    std::size_t left_;
};

// Watches the library through one input: a fatal error ends the run unless it was provoked, and so
// does a block that is left at the end.
class Watch {
public:
    Watch();
    ~Watch();
};

// Returns what `call` returns, which must report exactly `count` fatal errors.
template <class Call>
auto with_fatal_errors(std::size_t count, Call call) {
    const std::size_t before = test_host::fatal_reports().size();
    test_host::set_on_fatal(test_host::OnFatal::returns);
    const auto result = call();
    test_host::set_on_fatal(test_host::OnFatal::aborts);
    HOLDS(test_host::fatal_reports().size() == before + count);
    return result;
}

} // namespace fuzz

#endif
