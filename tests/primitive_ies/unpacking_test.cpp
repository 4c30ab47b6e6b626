// Unpacking every primitive type: whole IEs come back, damaged ones are refused with exact counts.
#include "primitive_ies/primitive_values.h"
#include "support/library_test.h"

namespace {

using samples::untouched;

class UnpackingTest : public LibraryTest {
protected:
    struct Outcome {
        std::uint32_t result = untouched;
        std::uint32_t consumed = untouched;
        Bytes value;
        bool operator==(const Outcome &) const = default;
    };

    // Unpacks into an IE object of another tag: only its value may change.
    static Outcome unpack_ie(const Type &type, const Bytes &bytes) {
        const samples::Input input(bytes);
        Bytes ie = samples::make_ie(type, Bytes(type.valueSize, 0xCD));
        reinterpret_cast<TarnIe *>(ie.data())->tag = 0xCDCD;
        Outcome outcome;
        outcome.result = type.unpackIe(ie.data(), input.data(), input.size(), &outcome.consumed);
        const auto value = ie.begin() + sizeof(TarnIe);
        EXPECT_EQ(Bytes(ie.begin(), value), Bytes(sizeof(TarnIe), 0xCD)) << "head of the IE object";
        outcome.value.assign(value, ie.end());
        return outcome;
    }

    static Outcome unpack_value(const Type &type, std::uint32_t length, const Bytes &bytes) {
        const samples::Input input(bytes);
        Outcome outcome;
        outcome.value.assign(type.valueSize, 0xCD);
        outcome.result = type.unpack(outcome.value.data(), length, input.data(), input.size(),
                                     &outcome.consumed);
        return outcome;
    }

    static void expect_refused(const Type &type, const Bytes &bytes, std::uint32_t consumed) {
        const Outcome outcome = unpack_ie(type, bytes);
        EXPECT_EQ(outcome.result, 0U) << type.name;
        EXPECT_EQ(outcome.consumed, consumed) << type.name;
        if (type.shape == Shape::scalar || type.shape == Shape::bytes) {
            EXPECT_EQ(outcome.value, Bytes(type.valueSize, 0xCD)) << type.name;
        }
    }

    static void expect_taken(const Type &type, const Bytes &bytes, std::uint32_t consumed,
                             const std::string &value) {
        const Outcome outcome = unpack_ie(type, bytes);
        EXPECT_EQ(outcome.result, 1U) << type.name;
        EXPECT_EQ(outcome.consumed, consumed) << type.name;
        EXPECT_EQ(samples::show(type, outcome.value.data()), value);
    }

    static Bytes sample_ie(const Type &type, Amount amount = Amount::full) {
        return samples::ie_wire(type, samples::make_value(type, amount).data());
    }
};

// Puts another number into an IE's length field.
Bytes with_length(Bytes ie, std::uint32_t length) {
    for (unsigned i = 0; i < 4; ++i)
        ie[2 + i] = std::uint8_t(length >> (8 * (3 - i)));
    return ie;
}

Bytes first(const Bytes &bytes, std::size_t count) {
    return {bytes.begin(), bytes.begin() + std::ptrdiff_t(count)};
}

Bytes followed_by(Bytes bytes, std::size_t more) {
    bytes.insert(bytes.end(), more, 0x3D);
    return bytes;
}

TEST_F(UnpackingTest, TakesWhatWasPackedAtBothBounds) {
    for (const Type *type : samples::primitive_ies())
        for (Amount amount : samples::allAmounts) {
            const Bytes value = samples::make_value(*type, amount);
            const Bytes bytes = sample_ie(*type, amount);
            const auto size = std::uint32_t(bytes.size());
            const std::string expected = samples::show(*type, value.data());
            expect_taken(*type, bytes, size, expected);
            expect_taken(*type, followed_by(bytes, 9), size, expected);
        }
}

TEST_F(UnpackingTest, TakesBareValues) {
    for (const Type *type : samples::primitives())
        for (Amount amount : samples::allAmounts) {
            const Bytes value = samples::make_value(*type, amount);
            const Bytes bytes = samples::encode_value(*type, value.data());
            const auto size = std::uint32_t(bytes.size());
            for (std::size_t more : {0U, 9U}) {
                const Outcome outcome = unpack_value(*type, size, followed_by(bytes, more));
                EXPECT_EQ(outcome.result, 1U) << type->name;
                EXPECT_EQ(outcome.consumed, size) << type->name;
                EXPECT_EQ(samples::show(*type, outcome.value.data()),
                          samples::show(*type, value.data()));
            }
        }
}

// Decoding is apart from validation.
TEST_F(UnpackingTest, TakesWhatIsOutOfRange) {
    for (const Type *type : samples::primitive_ies())
        for (const samples::Spoiler &spoiler : samples::spoilers(*type)) {
            Bytes value = samples::make_value(*type, Amount::most);
            spoiler.spoil(value.data());
            if (!samples::fits_its_arrays(*type, value.data()))
                continue;
            SCOPED_TRACE(spoiler.what);
            const Bytes bytes = samples::ie_wire(*type, value.data());
            expect_taken(*type, bytes, std::uint32_t(bytes.size()),
                         samples::show(*type, value.data()));
        }
}

TEST_F(UnpackingTest, RefusesEveryStrictPrefix) {
    for (const Type *type : samples::primitive_ies())
        for (Amount amount : {Amount::most, Amount::least}) {
            const Bytes bytes = sample_ie(*type, amount);
            for (std::size_t size = 0; size < bytes.size(); ++size) {
                SCOPED_TRACE(size);
                expect_refused(*type, first(bytes, size), size < 2 ? 0 : size < 6 ? 2 : 6);
            }
        }
}

TEST_F(UnpackingTest, RefusesEveryStrictPrefixOfABareValue) {
    for (const Type *type : samples::primitives()) {
        const Bytes bytes =
            samples::encode_value(*type, samples::make_value(*type, Amount::full).data());
        const bool counts = type->shape == Shape::record || type->shape == Shape::list;
        for (std::size_t size = 0; size < bytes.size(); ++size) {
            const Outcome expected{0, counts ? 0 : untouched, Bytes(type->valueSize, 0xCD)};
            EXPECT_EQ(unpack_value(*type, std::uint32_t(bytes.size()), first(bytes, size)),
                      expected)
                << type->name << " cut to " << size;
        }
    }
}

TEST_F(UnpackingTest, RefusesEveryOtherTag) {
    for (const Type *type : samples::primitive_ies()) {
        Bytes bytes = sample_ie(*type);
        for (std::uint32_t tag = 0; tag <= 0x200; ++tag) {
            if (tag == type->tag)
                continue;
            bytes[0] = std::uint8_t(tag >> 8);
            bytes[1] = std::uint8_t(tag);
            expect_refused(*type, bytes, 0);
            expect_refused(*type, first(bytes, 2), 0);
        }
        bytes[0] = std::uint8_t(type->tag); // the two bytes the other way round
        bytes[1] = 0;
        expect_refused(*type, bytes, 0);
    }
}

TEST_F(UnpackingTest, AScalarNeedsItsExactWidth) {
    for (const Type *type : samples::primitives()) {
        if (type->shape != Shape::scalar)
            continue;
        for (std::uint32_t length : {0U, 1U, 2U, 3U, 4U, 5U, 0x100U, 0x02000000U, 0xFFFFFFFFU}) {
            if (length == type->width)
                continue;
            const Outcome refused{0, untouched, Bytes(type->valueSize, 0xCD)};
            EXPECT_EQ(unpack_value(*type, length, Bytes(8, 0x11)), refused) << type->name;
            if (type->hasIe)
                expect_refused(*type, followed_by(with_length(sample_ie(*type), length), 8), 6);
        }
    }
}

TEST_F(UnpackingTest, ALengthBeyondTheBufferIsRefusedHoweverLarge) {
    for (const Type *type : samples::primitive_ies()) {
        const Bytes bytes = sample_ie(*type);
        const auto length = std::uint32_t(bytes.size()) - 6;
        // The last ones wrap when a header's size, or the address of the value, is added.
        for (std::uint32_t wrong :
             {length + 1, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFF9U, 0xFFFFFFFAU, 0xFFFFFFFFU})
            expect_refused(*type, with_length(bytes, wrong), 6);
    }
}

// One byte less than there is. A string is shorter then. A record's and a list's last member is
// bounded by the buffer alone and is read to its end.
TEST_F(UnpackingTest, ALengthOneTooSmall) {
    for (const Type *type : samples::primitive_ies()) {
        Bytes value = samples::make_value(*type, Amount::full);
        const Bytes bytes = sample_ie(*type);
        auto consumed = std::uint32_t(bytes.size());
        const Bytes damaged = with_length(bytes, consumed - 7);
        if (type->shape == Shape::scalar) {
            expect_refused(*type, damaged, 6);
            continue;
        }
        if (type->shape == Shape::bytes) {
            --*reinterpret_cast<std::uint32_t *>(value.data());
            --consumed;
        }
        expect_taken(*type, damaged, consumed, samples::show(*type, value.data()));
    }
}

// One byte more, and the byte is there. A string takes it if its array does. A record does not look
// behind its last member. A list tries to read another item.
TEST_F(UnpackingTest, ALengthOneTooLarge) {
    for (const Type *type : samples::primitive_ies()) {
        Bytes value = samples::make_value(*type, Amount::full);
        const Bytes bytes = sample_ie(*type);
        const auto size = std::uint32_t(bytes.size());
        const Bytes damaged = followed_by(with_length(bytes, size - 5), 1);
        if (type->shape == Shape::record) {
            expect_taken(*type, damaged, size, samples::show(*type, value.data()));
        } else if (type->shape == Shape::bytes && type->capacity > type->greatest) {
            ++*reinterpret_cast<std::uint32_t *>(value.data());
            value[4 + type->greatest] = 0x3D;
            expect_taken(*type, damaged, size + 1, samples::show(*type, value.data()));
        } else {
            expect_refused(*type, damaged, 6);
        }
    }
}

// Whatever one byte is made of, a refusal tells one of three counts, and a success no more than was
// there, with a value that stays within its arrays.
TEST_F(UnpackingTest, StandsDamageToAnyByte) {
    for (const Type *type : samples::primitive_ies()) {
        const Bytes whole = sample_ie(*type);
        for (std::size_t i = 0; i < std::min<std::size_t>(whole.size(), 300); ++i)
            for (unsigned damage : {0x01U, 0x02U, 0x03U, 0x04U, 0x08U, 0x10U, 0x80U, 0xFFU}) {
                Bytes bytes = whole;
                bytes[i] = std::uint8_t(bytes[i] ^ damage);
                const Outcome outcome = unpack_ie(*type, bytes);
                SCOPED_TRACE(testing::Message() << type->name << " byte " << i);
                if (outcome.result == 0) {
                    ASSERT_TRUE(outcome.consumed == (i < 2 ? 0U : 6U)) << outcome.consumed;
                    continue;
                }
                ASSERT_EQ(outcome.result, 1U);
                ASSERT_LE(outcome.consumed, bytes.size());
                ASSERT_TRUE(samples::fits_its_arrays(*type, outcome.value.data()));
            }
    }
}

} // namespace
