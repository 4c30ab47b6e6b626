// The access controller of the exchange in C++: one function for each procedure, records for most
// messages, objects where a message is taken apart. Speaks to any of the access points here.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>
#include <unistd.h>

#include "tarn.hpp"

extern "C" {
#include "tarn_host.h"
#include "transport.h"
}

namespace {

constexpr int patienceMs = 10000;
constexpr std::size_t frameLimit = 71000; // the largest message takes 70820 bytes

enum Domain : std::uint32_t { cs, ps };

constexpr std::uint32_t releasedByRelocation = 15;
constexpr std::uint32_t normalRelease = 83;

// A byte string of text or of numbers.
template <class String>
String text(std::string_view characters) {
    String string;
    string.assign({reinterpret_cast<const std::uint8_t *>(characters.data()), characters.size()});
    return string;
}
template <class String>
String octets(std::initializer_list<std::uint8_t> values) {
    String string;
    string.assign({values.begin(), values.size()});
    return string;
}

// ---- One connection ----------------------------------------------------------------------------

// Once something fails, all that follows does nothing, and `failed` tells.
class Link {
public:
    explicit Link(int connection) : connection_(connection) {}

    bool failed() const { return failed_; }

    template <class Record>
    void send(const Record &record) {
        if (failed_)
            return;
        const auto size = tarn::build(record, frame_);
        if (!size)
            return fail(Record::name, size.error().what());
        transfer(Record::name, send_frame(connection_, frame_, std::uint32_t(*size), patienceMs));
    }

    // The record of the message that must come next, or an empty one.
    template <class Record>
    Record receive() {
        auto record = tarn::get<Record>(next(Record::name));
        if (!record && !failed_)
            fail(Record::name, record.error().what());
        return *record;
    }

    // The bytes of the next frame, whatever they are; none on failure.
    tarn::ByteView next(const char *expected) {
        std::uint32_t length = 0;
        if (!failed_)
            transfer(expected, receive_frame(connection_, frame_, frameLimit, &length, patienceMs));
        return {frame_, failed_ ? 0 : length};
    }

    void fail(const char *message, const char *reason) {
        std::fprintf(stderr, "AC: %s: %s\n", message, reason);
        failed_ = true;
    }

private:
    void transfer(const char *message, Transfer outcome) {
        if (outcome != transferDone)
            fail(message, transfer_text(outcome));
    }

    int connection_;
    bool failed_ = false;
    std::uint8_t frame_[frameLimit];
};

// ---- What the controller knows -----------------------------------------------------------------

struct Ue {
    std::uint32_t srnti = 0;
    std::uint32_t acUeId = 0;
};

struct Controller {
    explicit Controller(int connection) : link(connection) {}
    void run();

    Link link;
    Ue ue{0, 7001};
    const tarn::NasUeId subscriber =
        octets<tarn::NasUeId>({0x09, 0x10, 0x10, 0x10, 0x32, 0x54, 0x76, 0x98});
    const tarn::IntProtInfo protection{1, text<tarn::IntProtKey>("integrity key 01")};
    const tarn::EncryptKey cipheringKey = text<tarn::EncryptKey>("ciphering key 01");

private:
    void page_idle_ue();
    void set_up_context();
    void secure();
    void assign_rab(Domain domain);
    void set_up_call();
    void page_during_call();
    void relocate();
    void release_iu(Domain domain, std::uint32_t cause);
    void release_context(std::uint32_t cause);
};

// ---- RABs --------------------------------------------------------------------------------------

void add_subflow(tarn::RabParams &params, std::uint32_t errors, tarn::BitErrRatio residual,
                 std::initializer_list<std::uint16_t> formats) {
    tarn::SduParamValue *subflow = params.SduParams.emplace_back();
    subflow->DeliveryOfErrSdu = errors;
    subflow->BitErrRatio = residual;
    if (formats.size() != 0)
        subflow->SduFormatInfoParamList().emplace();
    for (const std::uint16_t size : formats)
        subflow->SduFormatInfoParamList()->emplace_back()->SduSize() = size;
}

// AMR speech at 12.2 kbit/s: three classes of bits, each in speech and in comfort noise.
void describe_speech(tarn::RabParams &params) {
    params.TrafficClass = 0;
    params.MaxSduSize = 244;
    params.BitRates.push_back(12200);
    add_subflow(params, 1, {1, 6}, {81, 39});
    params.SduParams[0].SecondBitErrRatio() = {7, 3};
    add_subflow(params, 0, {1, 3}, {103, 0});
    add_subflow(params, 0, {5, 3}, {60, 0});
    params.SecondBitRates().emplace().push_back(12200);
    params.SourceStatsDescriptor() = 0;
    params.TransDelay() = 80;
}

void describe_data(tarn::RabParams &params) {
    params.TrafficClass = 3;
    params.RabAssymetryInd = 2;
    params.MaxSduSize = 12000;
    params.BitRates.push_back(384000);
    params.BitRates.push_back(64000);
    add_subflow(params, 0, {1, 5}, {});
    params.SduParams[0].SecondBitErrRatio() = {1, 4};
    params.TrafficHandlingPriority() = 2;
}

void add_rab(tarn::RabList &list, Domain domain) {
    tarn::RabToSetUpInfo *rab = list.emplace_back();
    rab->RabId = domain == cs ? 5 : 6;
    rab->AcUserPlaneAssociation = 0xAC000000 + rab->RabId;
    rab->RabParams.AllocRetPriority().emplace().PriorityLevel = 3;
    if (domain == cs) {
        describe_speech(rab->RabParams);
        rab->UserPlaneInfo() = {1, 2};
    } else {
        describe_data(rab->RabParams);
        rab->UserPlaneInfo() = {0, 1};
    }
}

// ---- The procedures ----------------------------------------------------------------------------

void Controller::page_idle_ue() {
    tarn::IdleModePaging paging{.NasUeId = subscriber, .CnDomainId = cs};
    paging.DrxCycleLenCoeff() = 6;
    paging.TempUeId() = {1, octets<tarn::TempUeIdValue>({0xC0, 0xFF, 0xEE, 0x01})};
    link.send(paging);
}

void Controller::set_up_context() {
    ue.srnti = link.receive<tarn::UeContextRequest>().Srnti;
    link.send(tarn::UeContextAccept{.Srnti = ue.srnti, .AcUeId = ue.acUeId});
    const auto request = link.receive<tarn::AccessControlRequest>();
    link.send(tarn::AccessControlResponse{
        .Srnti = ue.srnti, .AcUeId = ue.acUeId, .Imsi = request.Imsi, .LacMatch = 1});
    link.receive<tarn::InitDirectTransfer>();
}

void Controller::secure() {
    tarn::SecurityModeCommand command{.Srnti = ue.srnti,
                                      .AcUeId = ue.acUeId,
                                      .CnDomainId = cs,
                                      .IntProtInfo = protection,
                                      .KeyStatus = 1};
    command.EncryptInfo() = {{2, {1, 0}}, cipheringKey};
    link.send(command);
    if (link.receive<tarn::SecurityModeComplete>().IntProtAlgo != protection.IntProtAlgo)
        link.fail("SecurityModeComplete", "another algorithm was chosen");
}

void Controller::assign_rab(Domain domain) {
    tarn::RabAssignmentRequest request{
        .Srnti = ue.srnti, .AcUeId = ue.acUeId, .CnDomainId = domain};
    add_rab(request.RabList, domain);
    link.send(request);
    const auto config = link.receive<tarn::UserPlaneConfigRequest>();
    tarn::UserPlaneConfigResponse response{.Srnti = ue.srnti,
                                           .AcUeId = ue.acUeId,
                                           .ApUserPlaneAssociation = config.ApUserPlaneAssociation};
    if (domain == cs) {
        tarn::RtpServerInfo &server = response.RtpServerInfo().emplace();
        server.IpAddress = {4, {10, 0, 0, 1}};
        server.UdpPort = 16384;
        server.Tos() = 0xB8;
        server.JitterBufferSize() = 40;
        response.RtpSecurityInfo() = {text<tarn::MasterKey>("rtp master key 1"),
                                      text<tarn::MasterSalt>("rtp mastersalt")};
    } else {
        tarn::PsIuhGatewayInfo &gateway = response.PsIuhGatewayInfo().emplace();
        gateway.IpAddress = {4, {10, 0, 0, 2}};
        gateway.GtpTeid = 0x00C0FFEE;
        gateway.UdpPort() = 2152;
        gateway.GtpEchoPeriod() = 60;
    }
    link.send(response);
    if (link.receive<tarn::RabAssignmentResponse>().RabSetupFailedList())
        link.fail("RabAssignmentResponse", "a RAB was refused");
}

void Controller::set_up_call() {
    tarn::DlDirectTransfer setup{.Srnti = ue.srnti, .AcUeId = ue.acUeId, .CnDomainId = cs};
    setup.NasMsg = octets<tarn::NasMsg>(
        {0x03, 0x05, 0x04, 0x06, 0x60, 0x04, 0x02, 0x00, 0x05, 0x81, 0x5C, 0x05});
    link.send(setup);
    link.receive<tarn::UlDirectTransfer>();
}

void Controller::page_during_call() {
    link.send(tarn::ConnectedModePaging{.Srnti = ue.srnti,
                                        .AcUeId = ue.acUeId,
                                        .NasUeId = subscriber,
                                        .CnDomainId = ps,
                                        .PagingCause = 3,
                                        .PagingRecordTypeInd = 1});
    link.receive<tarn::InitDirectTransfer>();
}

// The target's container is the one that the source sent, child by child: here as objects.
void Controller::relocate() {
    const auto required = tarn::unpack(link.next("RelocationRequired"));
    const auto source = required->as<tarn::RelocationRequiredMsgRef>();
    const auto container = source ? source->extract_ModifiedSrncContainer() : std::nullopt;
    if (!container)
        return link.fail("RelocationRequired", "no container of the source");
    tarn::HandoverRequest request{.AcUeId = ue.acUeId + 1, .HandoverRequestCause = 2};
    tarn::ModifiedSrncContainer &target = request.ModifiedSrncContainer;
    target.RrcContainer = container->extract_RrcContainer().value_or(tarn::RrcContainer{});
    target.TargetCellId = container->extract_TargetCellId().value_or(0);
    target.NumIuInstances = container->extract_NumIuInstances().value_or(0);
    target.IntProtAlgo() = protection.IntProtAlgo;
    target.IntProtKey() = protection.IntProtKey;
    tarn::RabToSetupPerCnDomainList &domains = request.RabToSetupPerCnDomainList().emplace();
    for (const Domain domain : {cs, ps}) {
        tarn::RabToSetupPerCnDomain *rabs = domains.emplace_back();
        rabs->CnDomainId = domain;
        add_rab(rabs->RabList().emplace(), domain);
        rabs->EncryptInfo() = {{1, {1}}, cipheringKey};
    }
    request.IntProtInfo() = protection;
    link.send(request);

    const auto acknowledged = link.receive<tarn::HandoverReqAck>();
    tarn::RelocationCommand command{.Srnti = ue.srnti, .AcUeId = ue.acUeId};
    command.RrcContainer() = acknowledged.RrcContainer;
    link.send(command);
    link.receive<tarn::HandoverDetect>();
    link.receive<tarn::HandoverComplete>();
    for (const Domain domain : {cs, ps})
        release_iu(domain, releasedByRelocation);
    release_context(releasedByRelocation);
    ue = {acknowledged.Srnti, ue.acUeId + 1};
}

void Controller::release_iu(Domain domain, std::uint32_t cause) {
    link.send(tarn::IuReleaseCommand{.Srnti = ue.srnti,
                                     .AcUeId = ue.acUeId,
                                     .CnDomainId = domain,
                                     .IuRelCause = cause,
                                     .RespExpected = 1});
    link.receive<tarn::IuReleaseComplete>();
}

void Controller::release_context(std::uint32_t cause) {
    link.send(
        tarn::UeContextRelease{.Srnti = ue.srnti, .AcUeId = ue.acUeId, .ReleaseCause = cause});
}

void Controller::run() {
    page_idle_ue();
    set_up_context();
    secure();
    assign_rab(cs);
    set_up_call();
    page_during_call();
    assign_rab(ps);
    relocate();
    link.receive<tarn::IuReleaseRequest>();
    for (const Domain domain : {cs, ps})
        release_iu(domain, normalRelease);
    release_context(normalRelease);
}

} // namespace

// Listens on a port of the loopback address, prints the port, serves one access point, and ends.
int main() {
    int listener = -1;
    std::uint16_t port = 0;
    int connection = -1;
    if (listen_on_loopback(&listener, &port) != transferDone) {
        std::perror("AC: cannot listen");
        return EXIT_FAILURE;
    }
    std::printf("%u\n", unsigned(port));
    std::fflush(stdout); // whoever started this program waits for the port
    const Transfer accepted = accept_peer(listener, patienceMs, &connection);
    close(listener);
    if (accepted != transferDone) {
        std::fprintf(stderr, "AC: %s\n", transfer_text(accepted));
        return EXIT_FAILURE;
    }
    bool isDone = false;
    {
        Controller controller(connection);
        controller.run();
        isDone = !controller.link.failed();
    }
    close(connection);
    return isDone && tarnHostLiveBlocks() == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
