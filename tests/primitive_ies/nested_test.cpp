// Records and lists: what happens at each of their nested tags and lengths. Counts are those of the
// bare value, which tells the bytes before the point of failure.
#include <algorithm>

#include "primitive_ies/primitive_values.h"
#include "support/library_test.h"

namespace {

class NestedTest : public LibraryTest {
protected:
    struct Outcome {
        std::uint32_t result = 7;
        std::uint32_t consumed = 0xC0FFEE;
        std::uint32_t count = 0; // of a list
    };

    static Outcome unpack(const Type &type, std::uint32_t length, const Bytes &bytes) {
        const samples::Input input(bytes);
        Bytes value(type.valueSize, 0xCD);
        Outcome outcome;
        outcome.result =
            type.unpack(value.data(), length, input.data(), input.size(), &outcome.consumed);
        if (type.shape == Shape::list)
            outcome.count = *reinterpret_cast<const std::uint32_t *>(value.data());
        return outcome;
    }

    static void expect(const Type &type, std::uint32_t length, const Bytes &bytes,
                       std::uint32_t result, std::uint32_t consumed) {
        const Outcome outcome = unpack(type, length, bytes);
        EXPECT_EQ(outcome.result, result) << type.name << " of length " << length;
        EXPECT_EQ(outcome.consumed, consumed) << type.name << " of length " << length;
    }

    static std::vector<const Type *> all(Shape shape) {
        std::vector<const Type *> found = samples::primitives();
        std::erase_if(found, [shape](const Type *type) { return type->shape != shape; });
        return found;
    }

    static Bytes sample_wire(const Type &type) {
        return samples::encode_value(type, samples::make_value(type, Amount::full).data());
    }
};

// The nested TLVs of a record's or list's bytes.
std::vector<Bytes> split(const Bytes &wire) {
    const std::vector<std::uint32_t> bounds = samples::boundaries(wire);
    std::vector<Bytes> parts;
    for (std::size_t i = 0; i + 1 < bounds.size(); ++i)
        parts.emplace_back(wire.begin() + bounds[i], wire.begin() + bounds[i + 1]);
    return parts;
}

Bytes join(const std::vector<Bytes> &parts) {
    Bytes all;
    for (const Bytes &part : parts)
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

// Bytes before the failing point when nested TLVs are cut off at `size`.
std::uint32_t consumed_of_cut(const std::vector<std::uint32_t> &bounds, std::uint32_t size) {
    const std::uint32_t start = *std::prev(std::upper_bound(bounds.begin(), bounds.end(), size));
    const std::uint32_t rest = size - start;
    return start + (rest < 2 ? 0 : rest < 6 ? 2 : 6);
}

std::uint32_t next_bound(const std::vector<std::uint32_t> &bounds, std::uint32_t length) {
    return *std::lower_bound(bounds.begin(), bounds.end(), length);
}

TEST_F(NestedTest, ARecordMustNotBeUsedUpBeforeItsLastMember) {
    for (const Type *type : all(Shape::record)) {
        const Bytes wire = sample_wire(*type);
        const std::vector<std::uint32_t> bounds = samples::boundaries(wire);
        ASSERT_EQ(bounds.size(), type->members.size() + 1);
        const auto size = std::uint32_t(wire.size());
        // All of the bytes are there: members are bounded by the buffer, not by the length.
        for (std::uint32_t length = 0; length <= size; ++length)
            expect(*type, length, wire, length > *(bounds.end() - 2), next_bound(bounds, length));
        // As many bytes are there as the length says.
        for (std::uint32_t length = 0; length < size; ++length)
            expect(*type, length, Bytes(wire.begin(), wire.begin() + length), 0,
                   consumed_of_cut(bounds, length));
    }
}

TEST_F(NestedTest, BytesBehindARecordsLastMemberAreNotLookedAt) {
    for (const Type *type : all(Shape::record)) {
        Bytes wire = sample_wire(*type);
        const auto size = std::uint32_t(wire.size());
        wire.insert(wire.end(), 20, 0x00);
        for (std::uint32_t more : {1U, 6U, 20U})
            expect(*type, size + more, wire, 1, size);
        expect(*type, size + 21, wire, 0, 0);
    }
}

TEST_F(NestedTest, ARecordNeedsEachMemberInItsPlace) {
    for (const Type *type : all(Shape::record)) {
        const std::vector<Bytes> parts = split(sample_wire(*type));
        const std::vector<std::uint32_t> bounds = samples::boundaries(join(parts));
        const auto expect_refused = [&](std::vector<Bytes> wrong, std::uint32_t consumed) {
            const Bytes bytes = join(wrong);
            expect(*type, std::uint32_t(bytes.size()), bytes, 0, consumed);
        };
        for (std::size_t i = 0; i < parts.size(); ++i) {
            std::vector<Bytes> wrong = parts;
            wrong.erase(wrong.begin() + std::ptrdiff_t(i));
            expect_refused(wrong, bounds[i]);
            wrong = parts;
            wrong[i][1] ^= 0x80;
            expect_refused(wrong, bounds[i]);
            wrong = parts;
            wrong[i][0] = 0x01;
            expect_refused(wrong, bounds[i]);
            if (i == 0)
                continue;
            wrong = parts;
            std::swap(wrong[i - 1], wrong[i]);
            expect_refused(wrong, bounds[i - 1]);
            wrong = parts;
            wrong.insert(wrong.begin() + std::ptrdiff_t(i), parts[i - 1]);
            expect_refused(wrong, bounds[i]);
        }
    }
}

TEST_F(NestedTest, AListEndsWhenItsLengthIsReachedOrPassed) {
    for (const Type *type : all(Shape::list)) {
        const Bytes wire = sample_wire(*type);
        const std::vector<std::uint32_t> bounds = samples::boundaries(wire);
        ASSERT_EQ(bounds.size(), type->capacity + 1);
        for (std::uint32_t length = 0; length <= wire.size(); ++length) {
            const std::uint32_t end = next_bound(bounds, length);
            expect(*type, length, wire, 1, end);
            const auto index = std::find(bounds.begin(), bounds.end(), end) - bounds.begin();
            EXPECT_EQ(unpack(*type, length, wire).count, index) << type->name;
        }
    }
}

TEST_F(NestedTest, AListIsRefusedWhereItsBytesEndInsideAnItem) {
    for (const Type *type : all(Shape::list)) {
        const Bytes wire = sample_wire(*type);
        const std::vector<std::uint32_t> bounds = samples::boundaries(wire);
        for (std::uint32_t size = 0; size < wire.size(); ++size) {
            const bool whole = std::binary_search(bounds.begin(), bounds.end(), size);
            expect(*type, size, Bytes(wire.begin(), wire.begin() + size), whole,
                   whole ? size : consumed_of_cut(bounds, size));
        }
    }
}

TEST_F(NestedTest, AListIsRefusedAtAWrongItemTag) {
    for (const Type *type : all(Shape::list)) {
        const Bytes wire = sample_wire(*type);
        const std::vector<std::uint32_t> bounds = samples::boundaries(wire);
        for (std::size_t i = 0; i < type->capacity; ++i)
            for (std::uint32_t tag : {type->tag, type->item->tag ^ 1, type->item->tag << 8, 0U}) {
                Bytes wrong = wire;
                wrong[bounds[i]] = std::uint8_t(tag >> 8);
                wrong[bounds[i] + 1] = std::uint8_t(tag);
                expect(*type, std::uint32_t(wire.size()), wrong, 0, bounds[i]);
                EXPECT_EQ(unpack(*type, std::uint32_t(wire.size()), wrong).count, i) << type->name;
            }
    }
}

// Lengths of nested TLVs that say something else than their values, worked out by hand.
TEST_F(NestedTest, NestedLengthsDecideWhereTheNextTagIs) {
    const struct {
        const char *what;
        const char *type;
        std::uint32_t length;
        const char *bytes;
        std::uint32_t result;
        std::uint32_t consumed;
    } cases[] = {
        {"a scalar member of another width", "BitErrRatio", 15,
         "00 25 00 00 00 02 00 09  00 26 00 00 00 01 07", 0, 6},
        {"a scalar member of no width", "BitErrRatio", 13,
         "00 25 00 00 00 00  00 26 00 00 00 01 07", 0, 6},
        {"the last member is too wide", "BitErrRatio", 15,
         "00 25 00 00 00 01 09  00 26 00 00 00 02 00 07", 0, 13},
        {"a first member shorter than its bytes", "LAI", 17,
         "00 6C 00 00 00 02 02 F8 01  00 6D 00 00 00 02 AB CD", 0, 8},
        {"a first member longer than its array", "LAI", 17,
         "00 6C 00 00 00 04 02 F8 01  00 6D 00 00 00 02 AB CD", 0, 6},
        {"a shorter string in its place", "LAI", 16,
         "00 6C 00 00 00 02 02 F8  00 6D 00 00 00 02 AB CD", 1, 16},
        {"an empty string in its place", "LAI", 14, "00 6C 00 00 00 00  00 6D 00 00 00 02 AB CD", 1,
         14},
        {"a last member shorter than its bytes", "LAI", 17,
         "00 6C 00 00 00 03 02 F8 01  00 6D 00 00 00 01 AB CD", 1, 16},
        {"a last member longer than its array", "LAI", 18,
         "00 6C 00 00 00 03 02 F8 01  00 6D 00 00 00 03 AB CD EF", 0, 15},
        {"a member beyond the buffer", "LAI", 17,
         "00 6C FF FF FF FF 02 F8 01  00 6D 00 00 00 02 AB CD", 0, 6},
        {"a last member beyond the buffer", "LAI", 17,
         "00 6C 00 00 00 03 02 F8 01  00 6D FF FF FF FA AB CD", 0, 15},
        {"an empty last member at the buffer's end", "RtpSecurityInfo", 13,
         "00 55 00 00 00 01 5A  00 56 00 00 00 00", 1, 13},
        {"a list member used up within its item", "EncryptInfo", 44,
         "00 0F 00 00 00 01  00 11 00 00 00 02 00 01"
         "  00 10 00 00 00 10 01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E 0F 10 00 00 00 00 00 00 00"
         " 00",
         1, 36},
        {"an empty list member", "EncryptInfo", 28,
         "00 0F 00 00 00 00"
         "  00 10 00 00 00 10 01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E 0F 10",
         1, 28},
        {"a list member that runs into the next member", "EncryptInfo", 36,
         "00 0F 00 00 00 09  00 11 00 00 00 02 00 01"
         "  00 10 00 00 00 10 01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E 0F 10",
         0, 6},
        {"a list member with one item too many", "EncryptInfo", 52,
         "00 0F 00 00 00 18  00 11 00 00 00 02 00 01  00 11 00 00 00 02 00 02"
         "  00 11 00 00 00 02 00 03"
         "  00 10 00 00 00 10 01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E 0F 10",
         0, 6},
        {"an item wider than its type", "BitRates", 11, "00 1F 00 00 00 05 00 00 00 00 01", 0, 6},
        {"an item narrower than its type", "RabIdList", 6, "00 17 00 00 00 00", 0, 6},
        {"a second item beyond the buffer", "RabIdList", 14,
         "00 17 00 00 00 01 05  00 17 80 00 00 00 06", 0, 13},
        // The item's length is less than its members take; they are bounded by the buffer.
        {"a record item used up within its last member", "RabReleaseList", 21,
         "00 43 00 00 00 08  00 17 00 00 00 01 05  00 44 00 00 00 02 00 06", 1, 21},
        {"a record item used up before its last member", "RabReleaseList", 21,
         "00 43 00 00 00 07  00 17 00 00 00 01 05  00 44 00 00 00 02 00 06", 0, 6},
        // Bytes behind an item's last member are no part of it: the next item's tag is sought
        // there.
        {"a record item with bytes behind its members", "RabReleaseList", 23,
         "00 43 00 00 00 11  00 17 00 00 00 01 05  00 44 00 00 00 02 00 06  00 43", 0, 23},
        {"a record item of no length", "RabReleaseList", 21,
         "00 43 00 00 00 00  00 17 00 00 00 01 05  00 44 00 00 00 02 00 06", 0, 6},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        expect(*protocol::type_by_name(c.type), c.length, from_hex(c.bytes), c.result, c.consumed);
    }
}

// As the IE unpacker reports it, a value that fails has cost the header alone.
TEST_F(NestedTest, AnIeCountsItsHeaderAlone) {
    for (Shape shape : {Shape::record, Shape::list})
        for (const Type *type : all(shape)) {
            if (!type->hasIe)
                continue;
            Bytes bytes = samples::ie_wire(*type, samples::make_value(*type, Amount::full).data());
            const std::vector<std::uint32_t> bounds = samples::boundaries(sample_wire(*type));
            bytes[6 + *(bounds.end() - 2)] ^= 0x80; // the last nested tag
            const samples::Input input(bytes);
            Bytes ie = samples::make_ie(*type, Bytes(type->valueSize, 0xCD));
            std::uint32_t consumed = 0xC0FFEE;
            EXPECT_EQ(type->unpackIe(ie.data(), input.data(), input.size(), &consumed), 0U);
            EXPECT_EQ(consumed, 6U) << type->name;
        }
}

} // namespace
