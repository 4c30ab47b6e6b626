#include <map>
#include <nlohmann/json.hpp>
#include <set>
#include <sstream>

#include "outcome.h"
#include "support/library_test.h"

namespace {

Outcome describe(const std::vector<std::string> &names, bool json = false) {
    return outcome_of([&](auto streams) { return tool::describe(names, json, streams); });
}

// Whether the text has a line with these words, blanks between words not counted.
bool has_line(const std::string &text, const std::string &words) {
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        std::istringstream stream(line);
        std::string joined;
        for (std::string word; stream >> word;)
            joined += (joined.empty() ? "" : " ") + word;
        if (joined == words)
            return true;
    }
    return false;
}

TEST(Describe, TellsWhatIsInIt) {
    const auto counted = [](const char *what, std::size_t count) {
        return what + std::to_string(count) + ":";
    };
    const struct {
        std::vector<std::string> names;
        std::vector<std::string> lines;
    } cases[] = {
        {{},
         {counted("Messages (id, name), ", protocol::messages().size()),
          "4 UeContextRelease Releases a UE context",
          counted("Composite IEs, ", samples::composites().size()),
          "Imsi [169] Subscriber identity (IMSI), 16 opaque bytes"}},
        {{"4"},
         {"UeContextRelease, message id 4", "0 MessageId [72] 1 byte, any value mandatory",
          "3 ReleaseCause [5] 2 bytes, any value mandatory",
          "4 RabDataInfoList [102] 1 to 3 elements of RabDataInfo [103] optional"}},
        {{"iapreset"},
         {"IapReset, message id 18",
          "3 UeContextRef [95] 3 slots required, once or more, where Reset3GAP is anything but 1, "
          "else not allowed"}},
        {{"RabParams"},
         {"RabParams [26], composite, a sequence of slots: 13 slots",
          "0 TrafficClass [27] 2 bytes, any value mandatory",
          "9 SecondBitRates [30] 0 to 2 items of BitRate [31] required where TrafficClass is 0 or "
          "2 "
          "(real-time), else not allowed; a second BitRates",
          "12 TrafficHandlingPriority [49] 1 byte, any value required where TrafficClass is 3 "
          "(interactive), else not allowed",
          "RabToSetUpInfo [22]"}},
        {{"tag:172"},
         {"GtpEchoPeriod [172], number: 2 bytes, 60 to 600", "PsIuhGatewayInfo [173]"}},
        {{"LAI"},
         {"LAI [107], record: 2 members", "PLMNId [108] exactly 3 bytes", "TargetRNCId [106]"}},
        {{"RabId"},
         {"RabId [23], number: 1 byte, any value", "RabIdList [167]", "RabReleaseInfo [67]",
          "RabDataInfo [103]"}},
        {{"Imsi"}, {"AccessControlRequest (message 38)", "InitDirectTransfer (message 5)"}},
        {{"ReleaseCause"},
         {"A code word: 32 bits in memory, of which the low 16 travel.",
          "UeContextRelease (message 4)"}},
        {{"TransactionId"}, {"Nothing holds it.", "No IE of its own."}},
        {{"0xac"}, {"GtpEchoPeriod [172], number: 2 bytes, 60 to 600"}},
        {{"0x7A0D00B2", "0xB4D9287C"},
         {"0x7A0D00B2, debug token of RabAssignmentRequest",
          "0xB4D9287C, debug token of every message", "Get: the bytes cannot be decoded."}},
        {{"tarn_if_conditional_funcs"},
         {"Reports of null pointers by the predicates of conditional presence."}},
        {{"*detect", "gsm*[23]"},
         {"HandoverDetect, message id 30", "GsmClassmark2 [114], byte string: 0 to 5 bytes",
          "GsmClassmark3 [115], byte string: 1 to 32 bytes"}},
    };
    for (const auto &[names, lines] : cases) {
        const Outcome run = describe(names);
        EXPECT_EQ(run.err, "") << run.out;
        for (const std::string &line : lines)
            EXPECT_TRUE(has_line(run.out, line)) << line << "\nnot in\n" << run.out;
    }
}

TEST(Describe, SuggestsNearNames) {
    const struct {
        const char *name;
        const char *error;
    } cases[] = {
        {"Srntii", "tarn: no message or IE 'Srntii'; did you mean Srnti?\n"},
        {"classmark", "tarn: no message or IE 'classmark'; did you mean GsmClassmark2 or "
                      "GsmClassmark3?\n"},
        {"34", "tarn: no message or IE '34'\n"},
        {"tag:999", "tarn: no message or IE 'tag:999'\n"},
        {"qqqqqqqq", "tarn: no message or IE 'qqqqqqqq'\n"},
    };
    for (const auto &[name, error] : cases) {
        const Outcome run = describe({name});
        EXPECT_EQ(run.status, 2) << name;
        EXPECT_EQ(run.out, "") << name;
        EXPECT_EQ(run.err, error);
    }
}

// Whoever generates from the document finds each name that it refers to.
TEST(Describe, WritesOneDocumentThatRefersToItself) {
    const auto document = nlohmann::json::parse(describe({}, true).out);
    std::map<std::string, nlohmann::json> types;
    std::set<std::string> conditions;
    for (const auto &type : document["types"])
        types[type["name"]] = type;
    for (const auto &condition : document["conditions"])
        conditions.insert(condition["name"]);
    EXPECT_EQ(document["messages"].size(), protocol::messages().size());
    std::size_t slots = 0;
    for (const char *owners : {"messages", "types"})
        for (const auto &owner : document[owners]) {
            if (owner.contains("item")) {
                EXPECT_EQ(types.count(owner["item"]), 1U) << owner;
            }
            for (const auto &slot : owner.value("slots", nlohmann::json::array())) {
                ++slots;
                EXPECT_EQ(types[slot["type"]].value("tag", 0), slot.value("tag", 0)) << slot;
                EXPECT_EQ(slot.contains("condition"),
                          slot["presence"] == "conditional" || slot["presence"] == "repeated");
                EXPECT_TRUE(!slot.contains("condition") ||
                            conditions.count(slot["condition"]) == 1);
            }
        }
    EXPECT_GT(slots, 250U);
    const auto some = nlohmann::json::parse(describe({"Reset", "RabId*"}, true).out);
    EXPECT_EQ(some["messages"].size(), 1U);
    EXPECT_EQ(some["types"].size(), 2U);
}

} // namespace
