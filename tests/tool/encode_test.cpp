// What encode refuses, and how it says so; what it takes beside the form that decode writes.
#include <fstream>
#include <sstream>

#include "outcome.h"
#include "support/library_test.h"
#include "tarn/json_encode.h"
#include "temporary_directory.h"

namespace {

capture::View view_of(std::string_view text) {
    return {reinterpret_cast<const std::uint8_t *>(text.data()), text.size()};
}

std::vector<std::uint8_t> encode(const char *text) {
    capture::Source source(view_of(text));
    tool::JsonReader reader(source);
    tool::JsonTree tree;
    EXPECT_EQ(reader.next(&tree), tool::JsonReader::Step::value) << reader.what();
    tool::JsonEncoder encoder;
    encoder.encode(tree);
    return encoder.bytes();
}

std::string fault_of(const char *text) {
    try {
        encode(text);
    } catch (const tool::JsonFault &fault) {
        return fault.path + ": " + fault.what;
    }
    return "none";
}

std::string hex_of(const char *text) {
    std::ostringstream out;
    for (const std::uint8_t byte : encode(text))
        out << std::hex << (byte >> 4) << (byte & 15);
    return out.str();
}

class Encode : public LibraryTest {};

// A RabAssignmentRequest with one RAB, whose RabParams are given.
std::string with_rab_params(const std::string &params) {
    return R"({"message": "RabAssignmentRequest", "Srnti": 1, "AcUeId": 2, "CnDomainId": 0,
               "RabList": [{"RabId": 5, "AcUserPlaneAssociation": 1, "RabParams": )" +
           params + "}]}";
}

std::string rab_params(int trafficClass, const std::string &more) {
    return R"({"TrafficClass": )" + std::to_string(trafficClass) +
           R"(, "RabAssymetryInd": 0, "DeliveryOrder": 0, "MaxSduSize": 0, "BitRates": [],
              "SduParams": [])" +
           more + "}";
}

TEST_F(Encode, NamesThePlaceAndTheRule) {
    const struct {
        const char *json;
        const char *fault;
    } cases[] = {
        // The message.
        {"{}", ": the member \"message\" with the message's name is missing"},
        {R"({"message": 17})", "message: expected a message's name, found 17"},
        {R"({"message": "Rest"})",
         "message: no message has the name \"Rest\"; did you mean Reset?"},
        {R"({"message": "Reset"})", "CnDomainId: missing: it is mandatory"},
        {R"({"message": "Reset", "CnDomainId": 1, "MessageId": 17})",
         "MessageId: not allowed: it follows from the message's name"},
        {R"({"message": "Reset", "CnDomainID": 1})",
         "CnDomainID: Reset has no such IE; did you mean CnDomainId?"},
        {R"({"message": "Reset", "a\u0007": 1})", "\"a\\x07\": Reset has no such IE"},
        {R"({"message": "Reset", "CnDomainId": 1, "CnDomainId": 1})",
         "CnDomainId: stands twice in one object"},
        // Numbers.
        {R"({"message": "Reset", "CnDomainId": 65536})", "CnDomainId: 65536 is above 65535"},
        {R"({"message": "Reset", "CnDomainId": -1})", "CnDomainId: -1 is below 0"},
        {R"({"message": "Reset", "CnDomainId": 4294967296})",
         "CnDomainId: 4294967296 is above 65535"},
        {R"({"message": "Reset", "CnDomainId": 1.5})",
         "CnDomainId: expected a whole number, or a string like \"0x1f\", found 1.5"},
        {R"({"message": "Reset", "CnDomainId": "0x"})",
         "CnDomainId: expected a whole number, or a string like \"0x1f\", found \"0x\""},
        {R"({"message": "Reset", "CnDomainId": "0x10000"})", "CnDomainId: 65536 is above 65535"},
        // Byte strings.
        {R"({"message": "UlDirectTransfer", "Srnti": 1, "AcUeId": 2, "CnDomainId": 0,
             "NasMsg": ""})",
         "NasMsg: 0 bytes, where 1 to 4095 are allowed"},
        {R"({"message": "UlDirectTransfer", "Srnti": 1, "AcUeId": 2, "CnDomainId": 0,
             "NasMsg": "123"})",
         "NasMsg: '123' has an odd number of hex digits"},
        {R"({"message": "UlDirectTransfer", "Srnti": 1, "AcUeId": 2, "CnDomainId": 0,
             "NasMsg": 12})",
         "NasMsg: expected a string of hex digits, found 12"},
        // Records and lists.
        {R"({"message": "RabReleaseRequest", "Srnti": 1, "AcUeId": 2, "CnDomainId": 0,
             "RabReleaseList": [{"RabId": 1, "RabReleaseCause": 1}, {"RabId": 1}]})",
         "RabReleaseList[1].RabReleaseCause: missing: RabReleaseInfo [67] needs all its members"},
        {R"({"message": "RabReleaseRequest", "Srnti": 1, "AcUeId": 2, "CnDomainId": 0,
             "RabReleaseList": [1, 2, 3, 4]})",
         "RabReleaseList: 4 items, where 0 to 3 are allowed"},
        {R"({"message": "RabReleaseRequest", "Srnti": 1, "AcUeId": 2, "CnDomainId": 0,
             "RabReleaseList": [{"RabId": 256, "RabReleaseCause": 1}]})",
         "RabReleaseList[0].RabId: 256 is above 255"},
        {R"({"message": "RabReleaseRequest", "Srnti": 1, "AcUeId": 2, "CnDomainId": 0,
             "RabReleaseList": [{"RabId": 1, "RabReleaseCause": 1, "Rab": 1}]})",
         "RabReleaseList[0].Rab: RabReleaseInfo has no such IE; did you mean RabId or "
         "RabReleaseCause?"},
        // Composites.
        {R"({"message": "IuReleaseComplete", "Srnti": 1, "AcUeId": 2, "RabDataInfoList": []})",
         "RabDataInfoList: 0 elements, where 1 to 3 are allowed"},
        {R"({"message": "IuReleaseComplete", "Srnti": 1, "AcUeId": 2,
             "RabDataInfoList": [{"RabId": 1}]})",
         "RabDataInfoList[0].SuccTransferAtPsiw: missing: it is mandatory"},
        {R"({"message": "IuReleaseComplete", "Srnti": 1, "AcUeId": 2, "RabDataInfoList": {}})",
         "RabDataInfoList: expected an array, found an object"},
        // Conditions.
        {R"({"message": "IapReset", "ErrorCause": 1, "Reset3GAP": 2})",
         "UeContextRef: missing: it is required where Reset3GAP is anything but 1"},
        {R"({"message": "IapReset", "ErrorCause": 1, "Reset3GAP": 2, "UeContextRef": []})",
         "UeContextRef: an empty array"},
        {R"({"message": "IapReset", "ErrorCause": 1, "Reset3GAP": 1,
             "UeContextRef": {"AcUeId": 1}})",
         "UeContextRef: not allowed here: it stands only where Reset3GAP is anything but 1"},
    };
    for (const auto &[json, fault] : cases)
        EXPECT_EQ(fault_of(json), fault) << json;
}

TEST_F(Encode, NamesThePlaceDeepInRabParams) {
    const std::string path = "RabList[0].RabParams.";
    EXPECT_EQ(fault_of(with_rab_params(rab_params(1, R"(, "TransDelay": 80)")).c_str()),
              path + "TransDelay: not allowed here: it stands only where TrafficClass is 0 or 2 "
                     "(real-time)");
    EXPECT_EQ(fault_of(with_rab_params(rab_params(3, "")).c_str()),
              path + "TrafficHandlingPriority: missing: it is required where TrafficClass is 3 "
                     "(interactive)");
    EXPECT_EQ(fault_of(with_rab_params(R"({"TrafficClass": 1, "RabAssymetryInd": 0,
                                           "DeliveryOrder": 0, "MaxSduSize": 70000})")
                           .c_str()),
              path + "MaxSduSize: 70000 is above 65535");
}

TEST_F(Encode, RefusesWhatIsNoAddress) {
    const std::string start = R"({"message": "UserPlaneConfigResponse", "Srnti": 1, "AcUeId": 2,
        "ApUserPlaneAssociation": 3, "UserPlaneResult": 0, "RtpServerInfo": {"UdpPort": 1,
        "IpAddress": )";
    EXPECT_EQ(fault_of((start + R"("10.0.0.255"}})").c_str()), "none");
    EXPECT_EQ(fault_of((start + "[10, 0, 0, 255]}}").c_str()), "none");
    for (const char *address : {"10.0.0.256", "10.0.0", "10.0.0.1.1", "10.0.0.", "010.0.0.1",
                                "-1.0.0.1", " 1.0.0.1", "10.0.0.1 ", "10..0.1", ""})
        EXPECT_EQ(fault_of((start + "\"" + address + "\"}}").c_str()),
                  std::string("RtpServerInfo.IpAddress: expected an address like \"10.0.0.1\", "
                              "found \"") +
                      address + "\"");
}

TEST_F(Encode, PutsIesIntoTheirOrder) {
    EXPECT_EQ(hex_of(R"({"AcUeId": "0x2a", "message": "HandoverDetect", "Srnti": 16909060})"),
              "0048000000011e"
              "00010000000401020304"
              "0003000000040000002a");
}

TEST_F(Encode, RepeatsUeContextRef) {
    EXPECT_EQ(hex_of(R"({"message": "IapReset", "ErrorCause": 1, "Reset3GAP": 0,
                         "UeContextRef": [{"AcUeId": 1}, {"AcUeId": 2}]})"),
              "00480000000112"
              "0049000000020001"
              "0064000000020000"
              "005f0000000a"
              "00030000000400000001"
              "005f0000000a"
              "00030000000400000002");
}

TEST_F(Encode, TakesBytesWithBlanksBetween) {
    EXPECT_EQ(hex_of(R"({"message": "UlDirectTransfer", "Srnti": 1, "AcUeId": 2, "CnDomainId": 0,
                         "NasMsg": "05 08:F1"})"),
              "00480000000106"
              "00010000000400000001"
              "00030000000400000002"
              "0006000000020000"
              "0007000000030508f1");
}

// ---- Reading the input --------------------------------------------------------------------------

// Where each value begins, and what is wrong elsewhere.
std::vector<std::string> read_json(std::string_view text) {
    capture::Source source(view_of(text));
    tool::JsonReader reader(source);
    tool::JsonTree tree;
    std::vector<std::string> found;
    for (auto step = reader.next(&tree); step != tool::JsonReader::Step::end;
         step = reader.next(&tree))
        found.push_back(std::to_string(reader.line()) +
                        (step == tool::JsonReader::Step::wrong ? ": " + reader.what() : ""));
    return found;
}

TEST(JsonInput, TakesLinesIndentedObjectsAndArrays) {
    using Lines = std::vector<std::string>;
    EXPECT_EQ(read_json("{}\n\n{}{}\n"), (Lines{"1", "3", "3"}));
    EXPECT_EQ(read_json("\xEF\xBB\xBF{\n \"a\": {}\n}\n{}"), (Lines{"1", "4"}));
    EXPECT_EQ(read_json("\n[{},\n{}]"), (Lines{"2", "3"}));
    EXPECT_EQ(read_json(R"({"a}\"{": "]\\"}{})"), (Lines{"1", "1"}));
    EXPECT_EQ(read_json("[]\n"), Lines{});
}

TEST(JsonInput, GoesOnBehindWhatIsNoJson) {
    using Lines = std::vector<std::string>;
    EXPECT_EQ(read_json("{}\nx\n{}"), (Lines{"1", "2: expected { or [", "3"}));
    EXPECT_EQ(read_json("[{}{}\n{}"), (Lines{"1", "1: expected , or ]", "2"}));
    EXPECT_EQ(read_json("[{}"), (Lines{"1", "1: an array that does not end"}));
    EXPECT_EQ(read_json("{\"a\": 1e400}\n{}"), (Lines{"1: number overflow parsing '1e400'", "2"}));
    for (const char *text : {"{}\n{\n\n1}\n{}", "{}\n{\n\n{}", "{}\n{\n\n\"\x80\"}\n{}"}) {
        const Lines lines = read_json(text);
        ASSERT_GE(lines.size(), 2U) << text;
        EXPECT_TRUE(lines[1].starts_with("4: ")) << lines[1];
    }
}

TEST(JsonInput, BoundsWhatOneMessageTakes) {
    EXPECT_EQ(read_json("{\"a\":" + std::string(100, '[') + "\n{}"),
              (std::vector<std::string>{"1: nested deeper than any message", "2"}));
    std::string many = "{\"a\":[{}";
    for (int i = 0; i < 350000; ++i)
        many += ",{}";
    EXPECT_EQ(read_json(many + "]}\n{}"), (std::vector<std::string>{"1", "2"}));
}

// What --force writes, and what it leaves out and tells.
TEST_F(Encode, ForcesWhatNoReceiverTakes) {
    const struct {
        const char *json;
        const char *hex;
        const char *told;
    } cases[] = {
        {R"({"message": "Reset"})", "00480000000111", ""},
        {R"({"message": "UlDirectTransfer", "NasMsg": "", "Srnti": 1})",
         "00480000000106"
         "000700000000"
         "00010000000400000001",
         ""},
        {R"({"message": "Reset", "CnDomainId": 65536, "Srnti": 1})",
         "00480000000111"
         "00010000000400000001",
         "CnDomainId: 65536 is above 65535"},
        {R"({"message": "Reset", "CnDomainId": 1, "CnDomainId": 2, "Nonsense": 1})",
         "00480000000111"
         "0006000000020001"
         "0006000000020002",
         "Nonsense: Reset has no such IE"},
        {R"({"message": null, "fault": {}, "bytes": "0048"})", "0048", ""},
    };
    for (const auto &[json, hex, told] : cases) {
        const tool::EncodeOptions options{.files = {temporary_file("forced")}, .force = true};
        std::ofstream(options.files.front()) << json;
        const Outcome run =
            outcome_of([&](auto streams) { return tool::encode(options, streams); });
        std::string digits = run.out;
        std::erase_if(digits, [](char c) { return c == ' ' || c == '\n'; });
        EXPECT_EQ(digits, hex) << json;
        EXPECT_EQ(run.err.empty(), *told == 0) << run.err;
        EXPECT_NE(run.err.find(told), std::string::npos) << run.err;
    }
}

} // namespace
