// Every sample message decodes to what its comments say, and encodes to its bytes again.
#include <algorithm>
#include <cctype>
#include <fstream>
#include <set>
#include <sstream>

#include "outcome.h"
#include "support/library_test.h"
#include "support/sample_files.h"
#include "temporary_directory.h"

namespace {

using samples::Sample;

std::string write_file(const std::string &content) {
    const std::string path = temporary_file("input");
    std::ofstream(path, std::ios::binary) << content;
    return path;
}

Outcome decode(const std::string &text, bool json = false) {
    tool::DecodeOptions options;
    options.files = {write_file(text)};
    options.output = json ? tool::Output::json : tool::Output::tree;
    return outcome_of([&](auto streams) { return tool::decode(options, streams); });
}

Outcome encode(const std::string &text) {
    const tool::EncodeOptions options{.files = {write_file(text)}};
    return outcome_of([&](auto streams) { return tool::encode(options, streams); });
}

std::vector<std::string> lines_of(const std::string &text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

// One IE of the tree: offset, name, tag and, if there is one, the value.
struct TreeLine {
    std::size_t at = 0;
    std::string name;
    std::string tag;
    std::string value;
};

// The lines of the tree; the bytes of a long string continue its line.
std::vector<TreeLine> tree_of(const std::string &out) {
    std::vector<TreeLine> tree;
    for (const std::string &line : lines_of(out)) {
        std::istringstream stream(line);
        TreeLine parsed;
        if (stream >> parsed.at >> parsed.name >> parsed.tag && parsed.tag.front() == '[') {
            std::getline(stream >> std::ws, parsed.value);
            tree.push_back(parsed);
        }
    }
    return tree;
}

bool tells(const std::string &shown, const std::string &wanted) {
    if (shown.find("(" + wanted + ")") != shown.npos)
        return true;
    const bool ends =
        shown.size() == wanted.size() || shown[wanted.size()] == ' ' || shown[wanted.size()] == ':';
    return shown.starts_with(wanted) && ends;
}

std::string digits_of(const std::vector<std::uint8_t> &bytes) {
    std::string digits;
    for (const std::uint8_t byte : bytes) {
        char pair[3];
        std::snprintf(pair, sizeof pair, "%02x", unsigned(byte));
        digits += pair;
    }
    return digits;
}

class ToolSamples : public LibraryTest {};

TEST_F(ToolSamples, DecodeToWhatTheirCommentsSay) {
    std::set<unsigned> ids;
    for (const Sample &sample : samples::read("")) {
        SCOPED_TRACE(testing::PrintToString(sample));
        const Outcome run = decode(sample.text);
        EXPECT_EQ(run.status, 0);
        EXPECT_NE(run.out.find(", valid\n"), run.out.npos) << run.out;
        EXPECT_EQ(run.out.find("note:"), run.out.npos) << run.out;
        const std::vector<TreeLine> tree = tree_of(run.out);
        ASSERT_EQ(tree.size(), sample.ies.size()) << run.out;
        for (std::size_t i = 0; i < tree.size(); ++i) {
            EXPECT_EQ(tree[i].name, sample.ies[i].name);
            EXPECT_EQ(tree[i].tag, sample.ies[i].tag);
            EXPECT_TRUE(tells(tree[i].value, sample.ies[i].value))
                << tree[i].name << ": " << tree[i].value << " for " << sample.ies[i].value;
            const std::string tag =
                "[" +
                std::to_string(sample.bytes[tree[i].at] * 256U + sample.bytes[tree[i].at + 1]) +
                "]";
            EXPECT_EQ(tag, tree[i].tag) << "at byte " << tree[i].at;
        }
        ids.insert(sample.bytes[6]);
    }
    EXPECT_EQ(ids.size(), protocol::messages().size()) << "a message type lacks a sample";
}

TEST_F(ToolSamples, EncodeToTheirBytesAgain) {
    for (const Sample &sample : samples::read("")) {
        SCOPED_TRACE(testing::PrintToString(sample));
        const Outcome encoded = encode(decode(sample.text, true).out);
        EXPECT_EQ(encoded.status, 0) << encoded.err;
        std::string digits = encoded.out;
        std::erase_if(digits, [](unsigned char c) { return std::isspace(c) != 0; });
        EXPECT_EQ(digits, digits_of(sample.bytes));
    }
}

void expect_lines(const Sample &sample, const std::string &out) {
    EXPECT_FALSE(sample.expected.empty()) << "the sample does not tell what is expected";
    const std::vector<std::string> lines = lines_of(out);
    for (const std::string &expected : sample.expected)
        EXPECT_TRUE(
            std::any_of(lines.begin(), lines.end(),
                        [&](const std::string &line) { return line.ends_with(" " + expected); }))
            << "expected: " << expected << "\n"
            << out;
}

TEST_F(ToolSamples, AreRefusedForTheReasonTheyTell) {
    for (const Sample &sample : samples::read("refused")) {
        SCOPED_TRACE(testing::PrintToString(sample));
        const Outcome run = decode(sample.text);
        EXPECT_EQ(run.status, 1);
        expect_lines(sample, run.out);
        const Outcome json = decode(sample.text, true);
        EXPECT_EQ(json.status, 1);
        const bool isRefused = run.out.find(", refused\n") != run.out.npos;
        EXPECT_NE(json.out.find(isRefused ? R"("verdict":"refused")" : R"("verdict":"invalid")"),
                  json.out.npos);
        EXPECT_NE(json.out.find(R"("fault":{"offset":)"), json.out.npos) << json.out;
    }
}

TEST_F(ToolSamples, AreTakenInPartAndSayWhatWasLeftOut) {
    for (const Sample &sample : samples::read("lenient")) {
        SCOPED_TRACE(testing::PrintToString(sample));
        const Outcome run = decode(sample.text);
        EXPECT_EQ(run.status, 0);
        expect_lines(sample, run.out);
        const Outcome json = decode(sample.text, true);
        EXPECT_EQ(json.status, 0);
        EXPECT_NE(json.out.find(R"("notes":[{"offset":)"), json.out.npos);
        EXPECT_EQ(encode(json.out).status, 0);
    }
}

} // namespace
