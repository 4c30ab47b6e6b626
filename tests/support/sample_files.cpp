#include "support/sample_files.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace samples {

namespace {

std::vector<std::filesystem::path> files_of(const std::string &directory) {
    std::vector<std::filesystem::path> files;
    for (const auto &entry :
         std::filesystem::directory_iterator(std::filesystem::path(SAMPLES_DIRECTORY) / directory))
        if (entry.path().extension() == ".hex")
            files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

// A reader of its own, so that the one of the tool has something to be held against.
void add_digits(const std::string &line, std::vector<std::uint8_t> *bytes) {
    std::string digits = line.substr(0, line.find('#'));
    std::erase(digits, ' ');
    for (std::size_t i = 0; i < digits.size(); i += 2)
        bytes->push_back(std::uint8_t(std::stoul(digits.substr(i, 2), nullptr, 16)));
}

void add_ie(const std::string &line, std::vector<Ie> *ies) {
    Ie ie;
    std::istringstream comment(line.substr(std::min(line.size(), line.find('#'))));
    if (std::string mark; comment >> mark >> ie.name >> ie.tag && ie.tag.starts_with('[')) {
        std::getline(comment, ie.value);
        ie.value.erase(std::min(ie.value.size(), ie.value.find(" - ")));
        ie.value.erase(0, 1); // the blank before it
        ies->push_back(ie);
    }
}

void read_file(const std::filesystem::path &path, std::vector<Sample> *samples) {
    std::ifstream file(path);
    std::vector<std::string> expected;
    unsigned number = 0;
    const std::string mark = "# expect: ";
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with(mark))
            expected.push_back(line.substr(mark.size()));
        if (line.empty() || line.front() == '#')
            continue;
        if (line.front() != ' ')
            samples->push_back({path.filename(), ++number, "", {}, {}, std::move(expected)});
        expected.clear();
        samples->back().text += line + "\n";
        add_digits(line, &samples->back().bytes);
        add_ie(line, &samples->back().ies);
    }
}

} // namespace

void PrintTo(const Sample &sample, std::ostream *out) {
    *out << sample.file << " message " << sample.number;
}

std::vector<Sample> read(const std::string &directory) {
    std::vector<Sample> samples;
    for (const auto &path : files_of(directory))
        read_file(path, &samples);
    return samples;
}

} // namespace samples
