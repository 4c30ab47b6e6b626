// The calls of tarn.hpp beside those of the C interface that they stand for. Run under callgrind by
// scripts/bench_cpp.sh.
#include <cstdio>
#include <cstring>

#include "counting.h"
#include "tarn.hpp"

namespace {

std::uint8_t room[tarn::RabAssignmentRequest::max_size];
std::uint32_t length;
tarn::RabAssignmentRequest request;

template <class Value>
void keep(const Value &value) { // from being optimised away
    asm volatile("" : : "m"(value));
}

const TarnRabAssignmentRequestRecord *c_request() {
    return reinterpret_cast<const TarnRabAssignmentRequestRecord *>(&request);
}

void fill_request() {
    request.Srnti = 0x12001;
    request.AcUeId = 7001;
    for (std::uint8_t id = 5; id < 8; ++id) {
        tarn::RabToSetUpInfo *rab = request.RabList.emplace_back();
        rab->RabId = id;
        rab->RabParams.TrafficClass = 1;
        for (unsigned i = 0; i < 3; ++i)
            rab->RabParams.SduParams.emplace_back()->DeliveryOfErrSdu = i;
    }
}

void build_c() {
    keep(TarnBuildRabAssignmentRequestMsg(room, sizeof room, c_request()));
}
void build_cpp() {
    keep(tarn::build(request, room));
}

void get_c() {
    TarnRabAssignmentRequestRecord record;
    std::memset(&record, 0, sizeof record);
    keep(TarnGetRabAssignmentRequestMsg(room, length, &record));
    keep(record);
}
void get_cpp() {
    keep(tarn::get<tarn::RabAssignmentRequest>({room, length}));
}

void decode_c() {
    TarnMsg *msg;
    TarnSrnti srnti;
    TarnAcUeId ue;
    TarnCnDomainId domain;
    TarnSecRejCause cause;
    if (TarnUnpackNewMsg(room, length, &msg)) {
        if (msg->messageId == TarnSecurityModeRejectMsgId) {
            keep(TarnExtractSrntiFromSecurityModeRejectMsg(msg, &srnti));
            keep(TarnExtractAcUeIdFromSecurityModeRejectMsg(msg, &ue));
            keep(TarnExtractCnDomainIdFromSecurityModeRejectMsg(msg, &domain));
            keep(TarnExtractSecRejCauseFromSecurityModeRejectMsg(msg, &cause));
        }
        TarnDeleteMsg(msg);
    }
}
void decode_cpp() {
    const auto message = tarn::unpack({room, length});
    if (const auto reject = message->as<tarn::SecurityModeRejectMsgRef>()) {
        keep(reject->extract_Srnti());
        keep(reject->extract_AcUeId());
        keep(reject->extract_CnDomainId());
        keep(reject->extract_SecRejCause());
    }
}

// Twice, since the first call of each resolves symbols and fills the host's pool.
void count_pair(const char *name, void (*c)(), void (*cpp)()) {
    c();
    cpp();
    bench::count(std::string(name) + "/C", c);
    bench::count(std::string(name) + "/C++", cpp);
}

} // namespace

int main() {
    fill_request();
    length = TarnBuildRabAssignmentRequestMsg(room, sizeof room, c_request());
    if (length == 0 || !tarn::get<tarn::RabAssignmentRequest>({room, length}))
        return 1;
    count_pair("RabAssignmentRequest build", build_c, build_cpp);
    count_pair("RabAssignmentRequest get", get_c, get_cpp);
    length = std::uint32_t(*tarn::build(
        tarn::SecurityModeReject{.Srnti = 1, .AcUeId = 2, .CnDomainId = 1, .SecRejCause = 6},
        room));
    count_pair("SecurityModeReject decode", decode_c, decode_cpp);
}
