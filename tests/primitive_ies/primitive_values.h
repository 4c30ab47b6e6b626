// Values of any primitive type at and beyond its bounds, for tests that walk the whole catalogue,
// and blocks that show a byte read or written out of place. Their expected bytes come from
// samples.h.
#ifndef TARN_PRIMITIVE_VALUES_H
#define TARN_PRIMITIVE_VALUES_H

#include <functional>
#include <string>
#include <vector>

#include "protocol/protocol.h"
#include "support/samples.h"

namespace samples {

// What a count holds that nobody has written yet.
inline constexpr std::uint32_t untouched = 0xC0FFEE;
inline constexpr Amount allAmounts[] = {Amount::least, Amount::most, Amount::full};

// All primitive types, and those among them that are IEs.
std::vector<const protocol::Type *> primitives();
std::vector<const protocol::Type *> primitive_ies();

// Returns a valid value, in a block that ends where the value ends.
Bytes make_value(const protocol::Type &type, Amount amount);

// Returns an IE object with this value and its type's tag, in a block that ends where it ends.
// Everything else of it holds a pattern.
Bytes make_ie(const protocol::Type &type, const Bytes &value);

// Each makes a valid value invalid, by one number, length or count just beyond a bound or far from
// it. Lengths and counts may then lie beyond their array.
struct Spoiler {
    std::string what;
    std::function<void(void *value)> spoil;
};
std::vector<Spoiler> spoilers(const protocol::Type &type);

// Whether all lengths and counts are within their arrays.
bool fits_its_arrays(const protocol::Type &type, const void *value);

// The value in words, for comparing and for messages.
std::string show(const protocol::Type &type, const void *value);

// The bytes of an IE with this value.
Bytes ie_wire(const protocol::Type &type, const void *value);

// Appends tag and length.
void put_header(Bytes *bytes, std::uint32_t tag, std::uint32_t length);

// Where the nested TLVs of a record's or list's bytes begin, and where the last one ends.
std::vector<std::uint32_t> boundaries(const Bytes &wire);

// Bytes that end where their heap block ends and start at an odd address, so that a read beyond
// them does not go unnoticed and no alignment can be relied on.
class Input {
public:
    explicit Input(const Bytes &bytes) : block_(bytes.size() + 1) {
        std::copy(bytes.begin(), bytes.end(), block_.begin() + 1);
    }
    const std::uint8_t *data() const { return block_.data() + 1; }
    std::uint32_t size() const { return std::uint32_t(block_.size() - 1); }

private:
    Bytes block_;
};

// Room for `available` bytes at an odd address, with more behind it that must not be touched.
class Room {
public:
    explicit Room(std::size_t available) : available_(available), block_(available + 65, filler) {}
    std::uint8_t *data() { return block_.data() + 1; }
    std::uint32_t available() const { return std::uint32_t(available_); }
    Bytes first(std::size_t count) const {
        return {block_.begin() + 1, block_.begin() + 1 + std::ptrdiff_t(count)};
    }
    // Whether nothing was written behind the first `count` bytes, nor in front of them.
    bool is_untouched_behind(std::size_t count) const;

private:
    static constexpr std::uint8_t filler = 0xEE;
    std::size_t available_;
    Bytes block_;
};

} // namespace samples

#endif
