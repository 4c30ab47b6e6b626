// What the tool's readers find in an input held in memory.
#ifndef TARN_TEST_TOOL_COLLECTOR_H
#define TARN_TEST_TOOL_COLLECTOR_H

#include <string>
#include <string_view>
#include <vector>

#include "tarn/input.h"

namespace collector {

using Bytes = std::vector<std::uint8_t>;

class Collector final : public capture::Sink {
public:
    void message(const capture::Found &found) override {
        messages.emplace_back(found.bytes.begin(), found.bytes.end());
        lines.push_back(found.line);
        last = found;
        last.bytes = {};
    }
    void trouble(capture::Severity, const std::string &place, const std::string &what) override {
        troubles.push_back((place.empty() ? "" : place + ": ") + what);
    }

    std::vector<Bytes> messages;
    std::vector<std::uint64_t> lines;
    std::vector<std::string> troubles;
    capture::Found last; // where the last message came from
};

inline Collector read(std::string_view content, const tool::InputOptions &options) {
    capture::Source source(
        capture::View{reinterpret_cast<const std::uint8_t *>(content.data()), content.size()});
    Collector collector;
    tool::read_messages(source, options, collector);
    return collector;
}

inline Collector read(std::string_view content, tool::Form form = tool::Form::detect) {
    tool::InputOptions options;
    options.form = form;
    return read(content, options);
}

} // namespace collector

#endif
