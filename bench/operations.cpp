#include "operations.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstring>

#include "floor/floor.h"
#include "object_road.h"
#include "peers/peers.h"
#include "samples.h"

namespace bench {

namespace {

// No encoded sample is longer.
constexpr std::uint32_t bufferSize = 8192;

struct Bytes {
    alignas(8) std::uint8_t at[bufferSize]; // as Cap'n Proto wants it
    std::uint32_t length;
};

// The library's form of a message and the peers'.
enum Format { wire, nanopb, protobuf_c, protobuf, flatbuffers, capnp, formats };
constexpr const char *formatNames[] = {"",         "nanopb",      "protobuf-c",
                                       "protobuf", "flatbuffers", "capnp"};

// What the operations of one message work on. `sample` and the encoded forms are made once and then
// only read.
template <class Record>
struct Bench {
    Record sample;
    Record decoded;
    Bytes encoded[formats];
    Bytes out; // what an encoder writes
    std::uint32_t result;
};

template <class Record>
Bench<Record> workbench;

// ---- Runs --------------------------------------------------------------------------------------

template <class Record, auto encoder>
void encode() {
    Bench<Record> &bench = workbench<Record>;
    bench.result = encoder(bench.out.at, bufferSize, &bench.sample);
}

template <class Record, auto decoder, Format format>
void decode() {
    Bench<Record> &bench = workbench<Record>;
    const Bytes &from = bench.encoded[format];
    bench.result = decoder(from.at, from.length, &bench.decoded);
}

// ---- Agreement ---------------------------------------------------------------------------------

bool same(const Bytes &a, const std::uint8_t *b, std::uint32_t length) {
    return a.length == length && std::memcmp(a.at, b, length) == 0;
}

bool report(bool ok, const std::string &name) {
    if (!ok)
        std::fprintf(stderr, "tarn_bench: %s does not agree\n", name.c_str());
    return ok;
}

// One message's part of the table, and the check of it.
struct Message {
    const char *name;
    void (*prepare)();
    // Whether the last run of an encoder wrote the expected bytes, or that of a decoder the sample.
    bool (*encodedAs)(const char *road);
    bool (*decodedWell)();
};

template <class Record, auto... encoders>
void prepare() {
    Bench<Record> &bench = workbench<Record>;
    fill(&bench.sample);
    Bytes *next = bench.encoded;
    ((next->length = encoders(next->at, bufferSize, &bench.sample), ++next), ...);
}

template <class Record>
bool encoded_as(const char *road) {
    Bench<Record> &bench = workbench<Record>;
    const auto *found =
        std::find_if(formatNames + 1, formatNames + formats,
                     [road](const char *name) { return std::strcmp(name, road) == 0; });
    const Bytes &expected = bench.encoded[(found - formatNames) % formats];
    const bool ok = bench.result != 0 && same(expected, bench.out.at, expected.length);
    std::memset(bench.out.at, 0, sizeof bench.out.at);
    return ok;
}

template <class Record, auto builder>
bool decoded_well() {
    Bench<Record> &bench = workbench<Record>;
    std::uint8_t again[bufferSize];
    const std::uint32_t length = builder(again, bufferSize, &bench.decoded);
    const bool ok = bench.result != 0 && same(bench.encoded[wire], again, length);
    bench.decoded = {};
    return ok;
}

#define TARN_MESSAGE(name_)                                                                        \
    {#name_,                                                                                       \
     prepare<Tarn##name_##Record, TarnBuild##name_##Msg, nanopb_encode_##name_,                    \
             protobuf_c_encode_##name_, protobuf_encode_##name_, flatbuffers_encode_##name_,       \
             capnp_encode_##name_>,                                                                \
     encoded_as<Tarn##name_##Record>, decoded_well<Tarn##name_##Record, TarnBuild##name_##Msg>},

const Message messages[] = {TARN_MESSAGE(SecurityModeReject) TARN_MESSAGE(AccessControlRequest)
                                TARN_MESSAGE(UlDirectTransfer) TARN_MESSAGE(RabAssignmentRequest)};

#define TARN_ROAD(name_, road_, encoder_, decoder_, format_)                                       \
    {#name_ "/encode/" road_, encode<Tarn##name_##Record, encoder_>},                              \
        {#name_ "/decode/" road_, decode<Tarn##name_##Record, decoder_, format_>},
#define TARN_PEER(name_, peer_)                                                                    \
    TARN_ROAD(name_, +std::string(formatNames[peer_]), peer_##_encode_##name_,                     \
              peer_##_decode_##name_, peer_)
#define TARN_OPERATIONS(name_)                                                                     \
    TARN_ROAD(name_, "objects", encode_##name_, decode_##name_, wire)                              \
    TARN_ROAD(name_, "floor", FloorEncode##name_, FloorDecode##name_, wire)                        \
    TARN_ROAD(name_, "one call", TarnBuild##name_##Msg, TarnGet##name_##Msg, wire)                 \
    TARN_ROAD(name_, "wire", WireEncode##name_, WireDecode##name_, wire)                           \
    TARN_PEER(name_, nanopb)                                                                       \
    TARN_PEER(name_, protobuf_c)                                                                   \
    TARN_PEER(name_, protobuf)                                                                     \
    TARN_PEER(name_, flatbuffers)                                                                  \
    TARN_PEER(name_, capnp)

const Message &message_of(const std::string &operation) {
    for (const Message &message : messages)
        if (operation.compare(0, std::strlen(message.name), message.name) == 0)
            return message;
    __builtin_unreachable();
}

} // namespace

const std::vector<Operation> &operations() {
    static const std::vector<Operation> all = [] {
        for (const Message &message : messages)
            message.prepare();
        return std::vector<Operation>{
            TARN_OPERATIONS(SecurityModeReject) TARN_OPERATIONS(AccessControlRequest)
                TARN_OPERATIONS(UlDirectTransfer) TARN_OPERATIONS(RabAssignmentRequest)};
    }();
    return all;
}

bool all_agree() {
    bool ok = true;
    for (const Operation &operation : operations()) {
        operation.run();
        const Message &message = message_of(operation.name);
        const std::string road = operation.name.substr(operation.name.rfind('/') + 1);
        const bool encodes = operation.name.find("/encode/") != std::string::npos;
        ok &= report(encodes ? message.encodedAs(road.c_str()) : message.decodedWell(),
                     operation.name);
    }
    return ok;
}

} // namespace bench
