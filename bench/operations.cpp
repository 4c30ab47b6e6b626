#include "operations.h"

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
    std::uint8_t at[bufferSize];
    std::uint32_t length;
};

// What the operations of one message work on. `sample` and the encoded forms are made once and then
// only read.
template <class Record>
struct Bench {
    Record sample;
    Record decoded;
    Bytes wire;      // the sample as the library encodes it
    Bytes nanopb;    // as the peers do
    Bytes protobufC; //
    Bytes out;       // what an encoder writes
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

template <class Record, auto decoder, Bytes Bench<Record>::*input>
void decode() {
    Bench<Record> &bench = workbench<Record>;
    const Bytes &from = bench.*input;
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

template <class Record, auto builder, auto nanopbEncoder, auto protobufCEncoder>
void prepare() {
    Bench<Record> &bench = workbench<Record>;
    fill(&bench.sample);
    bench.wire.length = builder(bench.wire.at, bufferSize, &bench.sample);
    bench.nanopb.length = nanopbEncoder(bench.nanopb.at, bufferSize, &bench.sample);
    bench.protobufC.length = protobufCEncoder(bench.protobufC.at, bufferSize, &bench.sample);
}

template <class Record>
bool encoded_as(const char *road) {
    Bench<Record> &bench = workbench<Record>;
    const bool isPeer = std::strcmp(road, "nanopb") == 0 || std::strcmp(road, "protobuf-c") == 0;
    const Bytes &expected = isPeer ? bench.nanopb : bench.wire;
    const bool ok = bench.result != 0 && same(expected, bench.out.at, expected.length);
    std::memset(bench.out.at, 0, sizeof bench.out.at);
    return ok;
}

template <class Record, auto builder>
bool decoded_well() {
    Bench<Record> &bench = workbench<Record>;
    std::uint8_t again[bufferSize];
    const std::uint32_t length = builder(again, bufferSize, &bench.decoded);
    const bool ok = bench.result != 0 && same(bench.wire, again, length);
    bench.decoded = {};
    return ok;
}

#define TARN_MESSAGE(name_)                                                                        \
    {#name_,                                                                                       \
     prepare<Tarn##name_##Record, TarnBuild##name_##Msg, nanopb_encode_##name_,                    \
             protobuf_c_encode_##name_>,                                                           \
     encoded_as<Tarn##name_##Record>, decoded_well<Tarn##name_##Record, TarnBuild##name_##Msg>},

const Message messages[] = {TARN_MESSAGE(SecurityModeReject) TARN_MESSAGE(AccessControlRequest)
                                TARN_MESSAGE(UlDirectTransfer) TARN_MESSAGE(RabAssignmentRequest)};

#define TARN_OPERATIONS(name_)                                                                     \
    {#name_ "/encode/objects", encode<Tarn##name_##Record, encode_##name_>},                       \
        {#name_ "/encode/floor", encode<Tarn##name_##Record, FloorEncode##name_>},                 \
        {#name_ "/encode/one call", encode<Tarn##name_##Record, TarnBuild##name_##Msg>},           \
        {#name_ "/encode/nanopb", encode<Tarn##name_##Record, nanopb_encode_##name_>},             \
        {#name_ "/encode/protobuf-c", encode<Tarn##name_##Record, protobuf_c_encode_##name_>},     \
        {#name_ "/decode/objects",                                                                 \
         decode<Tarn##name_##Record, decode_##name_, &Bench<Tarn##name_##Record>::wire>},          \
        {#name_ "/decode/floor",                                                                   \
         decode<Tarn##name_##Record, FloorDecode##name_, &Bench<Tarn##name_##Record>::wire>},      \
        {#name_ "/decode/one call",                                                                \
         decode<Tarn##name_##Record, TarnGet##name_##Msg, &Bench<Tarn##name_##Record>::wire>},     \
        {#name_ "/decode/nanopb",                                                                  \
         decode<Tarn##name_##Record, nanopb_decode_##name_, &Bench<Tarn##name_##Record>::nanopb>}, \
        {#name_ "/decode/protobuf-c", decode<Tarn##name_##Record, protobuf_c_decode_##name_,       \
                                             &Bench<Tarn##name_##Record>::protobufC>},

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
