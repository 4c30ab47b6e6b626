#include <sstream>

#include "support/library_test.h"
#include "tarn/commands.h"

namespace {

struct Outcome {
    int status;
    std::string out;
    std::string err;
};

Outcome describe(const std::string &name) {
    std::ostringstream out;
    std::ostringstream err;
    const int status = tool::describe(name, {out, err});
    return {status, out.str(), err.str()};
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
    const struct {
        const char *name;
        std::vector<const char *> lines;
    } cases[] = {
        {"",
         {"Messages (id, name), 38:", "4 UeContextRelease Releases a UE context",
          "Composite IEs, 20:", "Primitive IEs: byte strings, 16:",
          "Imsi [169] Subscriber identity (IMSI), 16 opaque bytes"}},
        {"4",
         {"UeContextRelease, message id 4", "0 MessageId [72] 1 byte, any value mandatory",
          "3 ReleaseCause [5] 2 bytes, any value mandatory",
          "4 RabDataInfoList [102] 1 to 3 elements of RabDataInfo [103] optional"}},
        {"iapreset",
         {"IapReset, message id 18",
          "3 UeContextRef [95] 3 slots required, once or more, where Reset3GAP is anything but 1, "
          "else not allowed"}},
        {"RabParams",
         {"RabParams [26], composite, a sequence of slots: 13 slots",
          "0 TrafficClass [27] 2 bytes, any value mandatory",
          "9 SecondBitRates [30] 0 to 2 items of BitRate [31] required where TrafficClass is 0 or "
          "2 "
          "(real-time), else not allowed; a second BitRates",
          "12 TrafficHandlingPriority [49] 1 byte, any value required where TrafficClass is 3 "
          "(interactive), else not allowed",
          "RabToSetUpInfo [22]"}},
        {"tag:172", {"GtpEchoPeriod [172], number: 2 bytes, 60 to 600", "PsIuhGatewayInfo [173]"}},
        {"LAI",
         {"LAI [107], record: 2 members", "PLMNId [108] exactly 3 bytes", "TargetRNCId [106]"}},
        {"RabId",
         {"RabId [23], number: 1 byte, any value", "RabIdList [167]", "RabReleaseInfo [67]",
          "RabDataInfo [103]"}},
        {"Imsi", {"AccessControlRequest (message 38)", "InitDirectTransfer (message 5)"}},
        {"ReleaseCause",
         {"A code word: 32 bits in memory, of which the low 16 travel.",
          "UeContextRelease (message 4)"}},
        {"TransactionId", {"Nothing holds it.", "No IE of its own."}},
    };
    for (const auto &[name, lines] : cases) {
        const Outcome run = describe(name);
        EXPECT_EQ(run.status, 0) << name;
        for (const char *line : lines)
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
        {"tag:178", "tarn: no message or IE 'tag:178'\n"},
        {"qqqqqqqq", "tarn: no message or IE 'qqqqqqqq'\n"},
    };
    for (const auto &[name, error] : cases) {
        const Outcome run = describe(name);
        EXPECT_EQ(run.status, 2) << name;
        EXPECT_EQ(run.out, "") << name;
        EXPECT_EQ(run.err, error);
    }
}

} // namespace
