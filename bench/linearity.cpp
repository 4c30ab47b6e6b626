// Counts instructions as messages grow: every operation on a message should take a number of them
// that is proportional to its IEs. Run under callgrind by scripts/bench.sh.
//
// Extracting is counted apart from the rest: an extract walks from the list's head to the first IE
// not yet taken, so that taking n elements of one list one by one costs the square of n.
#include <cstdint>
#include <string>
#include <vector>

#include "counting.h"
#include "protocol/protocol.h"
#include "samples.h"

namespace {

// Each operation is counted over this many messages, so that the host's batches even out.
constexpr unsigned turns = 32;

// No message here is longer.
constexpr std::uint32_t bufferSize = 32768;

// Holds any primitive value: NasMsg is the largest.
alignas(8) std::uint8_t value[8192];

// ---- Walks -------------------------------------------------------------------------------------

unsigned count_ies(const VelDllHead *list) {
    unsigned count = 0;
    for (const VelDllNode *node = xVelDllGetHead(list, "bench", __LINE__); node != nullptr;
         node = xVelDllGetNext(list, node, "bench", __LINE__)) {
        const auto *ie = reinterpret_cast<const TarnIe *>(node);
        count += 1;
        if (TarnIsComplexType(ie->tag))
            count += count_ies(protocol::children_of(ie));
    }
    return count;
}

void extract_all(const std::vector<protocol::Slot> &slots, void *owner) {
    for (const protocol::Slot &slot : slots) {
        if (slot.extract == nullptr)
            continue;
        if (!slot.type->is_composite()) {
            while (slot.extract(owner, value) != 0) {
            }
            continue;
        }
        for (void *ie = nullptr; slot.extract(owner, &ie) != 0;)
            extract_all(slot.type->slots, ie);
    }
}

// ---- One size of one message -------------------------------------------------------------------

class Subject {
public:
    Subject(const char *name, const void *record, void *decoded)
        : name_(name), message_(*protocol::message_by_name(name)), record_(record),
          decoded_(decoded), length_(message_.build(buffer_, bufferSize, record)) {}

    // `size` is what the row is about.
    void measure(const char *of, unsigned size) {
        TarnMsg *msg = message_.unpack(buffer_, length_);
        prefix_ = std::string(name_) + " by " + of + "/";
        suffix_ = "/" + std::to_string(size) + "/" + std::to_string(count_ies(&msg->ies)) + "/" +
                  std::to_string(turns);
        TarnDeleteMsg(msg);
        run_all([](const std::string &, const auto &run) { run(); }); // fills what the host keeps
        run_all([](const std::string &name, const auto &run) { bench::count(name, run); });
    }

private:
    template <class Counter>
    void run_all(const Counter &counter) {
        TarnMsg *msgs[turns];
        const auto each = [&](const char *verb, const auto &operation) {
            counter(prefix_ + verb + suffix_, [&] {
                for (TarnMsg *&msg : msgs)
                    operation(msg);
            });
        };
        each("build", [&](TarnMsg *) { message_.build(out_, bufferSize, record_); });
        each("get", [&](TarnMsg *) { message_.get(buffer_, length_, decoded_); });
        each("unpack", [&](TarnMsg *&msg) { msg = message_.unpack(buffer_, length_); });
        each("validate", [&](TarnMsg *msg) { message_.isValid(msg); });
        each("pack", [&](TarnMsg *msg) { message_.pack(msg, out_, bufferSize); });
        each("extract", [&](TarnMsg *msg) { extract_all(message_.slots, msg); });
        each("delete", [&](TarnMsg *msg) { TarnDeleteMsg(msg); });
    }

    const char *name_;
    const protocol::Message &message_;
    const void *record_;
    void *decoded_;
    std::uint8_t buffer_[bufferSize];
    std::uint8_t out_[bufferSize];
    std::uint32_t length_;
    std::string prefix_;
    std::string suffix_;
};

template <class Record>
void measure(const char *message, const Record &record, const char *of, unsigned size) {
    static Record decoded;
    Subject(message, &record, &decoded).measure(of, size);
}

// ---- What grows --------------------------------------------------------------------------------

void measure_rabs() {
    static TarnRabAssignmentRequestRecord record;
    bench::fill(&record);
    for (std::uint16_t count = 0; count <= bench::rabCount; ++count) {
        record.RabList.count = count;
        measure("RabAssignmentRequest", record, "RABs", count);
    }
}

void measure_formats() {
    static TarnRabAssignmentRequestRecord record;
    bench::fill(&record);
    record.RabList.count = 1;
    TarnSduParamsRecord &subflows = record.RabList.items[0].RabParams.SduParams;
    subflows.count = 1;
    TarnSduFormatInfoParamListRecord &formats = subflows.items[0].SduFormatInfoParamList;
    for (std::uint16_t count = 0; count <= 64; count = std::uint16_t(count + 8)) {
        for (unsigned i = formats.count; i < count; ++i)
            formats.items[i] = formats.items[0];
        formats.count = count;
        measure("RabAssignmentRequest", record, "formats", count);
    }
}

void measure_paging() {
    TarnIdleModePagingRecord idle = {};
    TarnConnectedModePagingRecord connected = {};
    idle.TempUeId.TempUeIdValue.length = 4;
    for (unsigned length = 3; length <= 8; ++length) {
        idle.NasUeId.length = length;
        idle.presence = 0x80 | 0x40;
        measure("IdleModePaging", idle, "bytes of NasUeId", length);
        connected.NasUeId.length = length;
        measure("ConnectedModePaging", connected, "bytes of NasUeId", length);
    }
    const std::uint8_t optionals[] = {0, 0x80, 0x80 | 0x40};
    for (unsigned i = 0; i < 3; ++i) {
        idle.presence = optionals[i];
        measure("IdleModePaging", idle, "optional IEs", i);
    }
}

} // namespace

int main() {
    measure_rabs();
    measure_formats();
    measure_paging();
    return 0;
}
