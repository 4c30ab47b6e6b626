// The tool as its users run it: arguments, standard input and output, exit statuses.
#include <sys/wait.h>

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "temporary_directory.h"

namespace {

struct Outcome {
    int status;
    std::string out;
    std::string err;
};

std::string content_of(const std::string &path) {
    std::ostringstream content;
    content << std::ifstream(path, std::ios::binary).rdbuf();
    return content.str();
}

// `arguments` go through the shell.
Outcome run(const std::string &arguments, const std::string &input = "") {
    std::ofstream(temporary_file("in"), std::ios::binary) << input;
    const std::string command = std::string(TOOL_COMMAND) + " " + arguments + " <" +
                                temporary_file("in") + " >" + temporary_file("out") + " 2>" +
                                temporary_file("err");
    const int status = std::system(command.c_str());
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, content_of(temporary_file("out")),
            content_of(temporary_file("err"))};
}

const std::string samples = SAMPLES_DIRECTORY "/";
const std::string reset("\x00\x48\x00\x00\x00\x01\x11\x00\x06\x00\x00\x00\x02\x00\x01", 15);
const char resetHex[] = "00480000000111 0006000000020001\n";
const char resetJson[] =
    "{\"packet\":1,\"time\":null,\"from\":null,\"to\":null,\"verdict\":\"valid\","
    "\"message\":\"Reset\",\"CnDomainId\":1}\n";

TEST(Tool, TellsItsVersions) {
    const Outcome version = run("--version");
    EXPECT_EQ(version.status, 0);
    EXPECT_EQ(version.out, "tarn 0.39.0\ninterface 39\nlibtarn.so.0\n");
}

TEST(Tool, DecodesStandardInput) {
    const Outcome decoded = run("decode", resetHex);
    EXPECT_EQ(decoded.status, 0);
    EXPECT_EQ(decoded.out, "message 1 (standard input:1): Reset (id 17), 15 bytes, valid\n"
                           "     0  MessageId   [72]  17 (0x11)\n"
                           "     7  CnDomainId   [6]  1 (0x0001)\n"
                           "\n");
    EXPECT_EQ(decoded.err, "");
}

TEST(Tool, PrintsATree) {
    EXPECT_EQ(
        run("decode",
            "00480000000105 00010000000400000001 00030000000400000002 0006000000020000\n"
            " 0007 00000014 7465787420616e64206d6f726520746578742e2e\n" // "text and more text.."
            " 00b1 00000010  00af 00000002 0001  00b0 00000002 03ff\n")
            .out,
        "message 1 (standard input:1): InitDirectTransfer (id 5), 83 bytes, valid\n"
        "     0  MessageId           [72]  5 (0x05)\n"
        "     7  Srnti                [1]  1 (0x00000001)\n"
        "    17  AcUeId               [3]  2 (0x00000002)\n"
        "    27  CnDomainId           [6]  0 (0x0000)\n"
        "    35  NasMsg               [7]  20 bytes: \"text and more text..\"\n"
        "                                  74 65 78 74 20 61 6e 64 20 6d 6f 72 65 20 74 65\n"
        "                                  78 74 2e 2e\n"
        "    61  Idnns              [177]\n"
        "    67    RoutingBasis     [175]  1 (0x0001)\n"
        "    75    RoutingParameter [176]  1023 (0x03ff)\n"
        "\n");
}

TEST(Tool, SaysWhereDecodingStopped) {
    const Outcome decoded =
        run("decode --from hex -", "0048000000011e 00010000000400000001 0004\n");
    EXPECT_EQ(decoded.status, 1);
    EXPECT_EQ(decoded.out,
              "message 1 (standard input:1): HandoverDetect (id 30), 19 bytes, refused\n"
              "     0  MessageId  [72]  30 (0x1e)\n"
              "     7  Srnti       [1]  1 (0x00000001)\n"
              "  refused: byte 17 (0x11), AcUeId: expected AcUeId [3], found RejectCause [4]\n"
              "    bytes there: 00 04\n"
              "\n");
}

TEST(Tool, NumbersMessagesAcrossFiles) {
    const Outcome decoded =
        run("decode " + samples + "Reset.hex " + samples + "UeContextRelease.hex");
    EXPECT_EQ(decoded.status, 0);
    EXPECT_NE(decoded.out.find("message 3 (" + samples + "UeContextRelease.hex:"),
              std::string::npos);
}

TEST(Tool, TakesRawBytesInAndOut) {
    EXPECT_EQ(run("decode --json", reset).out, resetJson);
    EXPECT_EQ(run("decode --json --raw", reset).out, resetJson);
    EXPECT_EQ(run("decode --from hex", reset).status, 2);
    EXPECT_EQ(run("encode --raw", resetJson).out, reset);
    const Outcome both = run("encode --raw-output " + temporary_file("raw"), resetJson);
    EXPECT_EQ(both.out, resetHex);
    EXPECT_EQ(content_of(temporary_file("raw")), reset);
    const Outcome two = run("encode --raw", std::string(resetJson) + resetJson);
    EXPECT_EQ(two.status, 2);
    EXPECT_EQ(two.out, "");
}

TEST(Tool, GoesOnBehindARefusedMessage) {
    const std::string bad = "{\"message\":\"Reset\"}\n";
    const Outcome encoded = run("encode", resetJson + bad + resetJson);
    EXPECT_EQ(encoded.status, 1);
    EXPECT_EQ(encoded.out, std::string(resetHex) + resetHex);
    EXPECT_EQ(encoded.err,
              "tarn: message 2 (standard input:2): CnDomainId: missing: it is mandatory\n");
}

TEST(Tool, ExitsByWhatWasWrong) {
    const struct {
        std::string arguments;
        const char *input;
        int status;
    } cases[] = {
        {"--help", "", 0},
        {"decode --help", "", 0},
        {"", "", 2},
        {"frobnicate", "", 2},
        {"decode --frobnicate", "", 2},
        {"decode --json --hex", resetHex, 2},
        {"decode --where Srnti=", resetHex, 2},
        {"help decode", "", 0},
        {"help decdoe", "", 2},
        {"decode --pretty", resetHex, 2},
        {"decode", "", 2},
        {"decode", "0g", 2},
        {"decode", "00", 1},
        {"decode " + temporary_file("missing"), "", 2},
        {"decode " + samples, "", 2},
        {"decode " + temporary_file("missing") + " " + samples + "Reset.hex", "", 2},
        {"decode " + samples + "lenient/rest.hex", "", 0},
        {"decode " + samples + "refused/wrong_tag.hex", "", 1},
        {"encode", "{", 2},
        {"encode", "{}", 1},
        {"encode --raw-output " + samples, resetJson, 2},
        {"describe Reset", "", 0},
        {"describe Rest", "", 2},
        {"decode " + samples + "Reset.hex >/dev/full; test $? = 2", "", 0},
    };
    for (const auto &[arguments, input, status] : cases)
        EXPECT_EQ(run(arguments, input).status, status) << arguments;
}

TEST(Tool, FindsCountsAndCompares) {
    const std::string rabs = samples + "RabAssignmentRequest.hex ";
    const std::string captures = CAPTURES_DIRECTORY "/";
    const struct {
        std::string arguments;
        const char *shown; // a part of what is printed
        const char *missing;
        int status;
    } cases[] = {
        {"decode --fields message,Srnti,RabList.RabId " + rabs,
         "RabAssignmentRequest\t123456\t5,6\nRabAssignmentRequest\t123456\t7\n", "valid", 0},
        {"decode --fields RabDataInfoList " + samples + "IuReleaseComplete.hex",
         "[{\"RabId\":", "\"}", 0},
        {"decode --summary --where 'RabList.RabId==7 && !Imsi' " + rabs, "valid", "\n1  ", 0},
        {"decode --summary --where 'RabList.RabId>7 || Srnti!=0x1e240' " + rabs, "", "valid", 0},
        {"decode --json --only 'Reset,verdict=invalid' --not up " + samples + "*.hex", "Reset",
         "Rab", 0},
        {"decode --summary --where 'Imsi==\"00101*\"' " + captures + "exchange.pcapng",
         "Imsi 001010123456789  valid", "Paging", 0},
        {"decode --json --readable --redact --only AccessControlRequest " + captures +
             "exchange_cooked.pcap.gz",
         "\"Imsi\":\"redacted\"", "00101", 0},
        {"decode --json --redact " + samples + "refused/wrong_tag.hex", "\"bytes\":null", "0003",
         1},
        {"decode --hex --errors " + samples + "refused/wrong_tag.hex",
         "# refused: byte 17 (0x11), AcUeId: expected AcUeId [3], found ", ", valid", 1},
        {"stats --per-second " + captures + "exchange.pcapng", "\n          37  20", "refused:", 0},
        {"stats " + samples + "refused/wrong_tag.hex", "refused: WrongTag AcUeId", "From", 1},
        {"diff " + rabs + rabs, "", "->", 0},
        {"diff " + rabs + samples + "Reset.hex", "has 2 more", "absent\n\n", 1},
        {"diff " + captures + "exchange.pcapng " + captures + "exchange_cooked.pcap.gz", "", "->",
         0},
        {"describe --schema spark", "`RabList` ARRAY<STRUCT<`RabId`: BIGINT,", "VARCHAR", 0},
    };
    for (const auto &[arguments, shown, missing, status] : cases) {
        const Outcome found = run(arguments);
        EXPECT_EQ(found.status, status) << arguments << "\n" << found.err;
        EXPECT_NE(found.out.find(shown), std::string::npos) << arguments << "\n" << found.out;
        EXPECT_EQ(found.out.find(missing), std::string::npos) << arguments << "\n" << found.out;
    }
}

TEST(Tool, NamesWhatIsWrongAndWhatIsNear) {
    for (const auto &[arguments, error] :
         {std::pair{"decdoe", "tarn: no command 'decdoe'; did you mean decode?\nSee tarn help.\n"},
          {"decode --jsn",
           "tarn: no option '--jsn'; did you mean --json?\nSee tarn help decode.\n"},
          {"decode --only Rez",
           "tarn: 'Rez' fits no message's name, and is none of up, down, valid, "
           "invalid and refused\nSee tarn help decode.\n"},
          {"decode --where 'Srnti=='",
           "tarn: expected a value at character 8 of 'Srnti=='\nSee tarn help decode.\n"},
          {"decode \"$(printf 'no\\033such')\"", "tarn: no\\x1bsuch: No such file or directory\n"}})
        EXPECT_EQ(run(arguments).err, error);
}

TEST(Tool, PrintsMessagesAsTheyCome) {
    const std::string out = temporary_file("comes");
    const std::string command =
        "(printf '%s' '" + std::string(resetHex) + "'; i=0; while [ ! -s " + out +
        " ] && [ $i -lt 600 ]; do sleep 0.1; i=$((i + 1)); done; [ $i -lt 600 ] || echo late >&2)" +
        " 2>" + temporary_file("late") + " | " TOOL_COMMAND " decode --json >" + out;
    EXPECT_EQ(std::system(command.c_str()), 0);
    EXPECT_EQ(content_of(out), resetJson);
    EXPECT_EQ(content_of(temporary_file("late")), "");
}

TEST(Tool, PipesJsonBackIntoBytes) {
    const std::string file = samples + "RabAssignmentRequest.hex";
    const Outcome pretty = run("decode --json --pretty " + file);
    const Outcome lines = run("decode --json " + file);
    EXPECT_NE(pretty.out, lines.out);
    EXPECT_EQ(run("encode", pretty.out).out, run("encode", lines.out).out);
    EXPECT_EQ(run("encode", pretty.out).status, 0);
}

} // namespace
