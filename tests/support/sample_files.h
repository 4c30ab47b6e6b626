// The sample messages of examples/messages, with what their comments say of them.
#ifndef TARN_TEST_SAMPLE_FILES_H
#define TARN_TEST_SAMPLE_FILES_H

#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

namespace samples {

// What a comment behind an IE says of it: "Srnti [1] 123456 - the UE".
struct Ie {
    std::string name;
    std::string tag;
    std::string value; // as the tree shows it, in part; empty where the comment tells none
};

struct Sample {
    std::string file; // without the directory
    unsigned number;  // in the file, from 1
    std::string text; // as it stands, comments included
    std::vector<std::uint8_t> bytes;
    std::vector<Ie> ies;
    std::vector<std::string> expected; // lines "# expect: ..." before the message
};

void PrintTo(const Sample &sample, std::ostream *out);

// The messages of all files of one directory below examples/messages.
std::vector<Sample> read(const std::string &directory);

} // namespace samples

#endif
