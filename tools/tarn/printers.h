// The forms in which messages are put out.
#ifndef TARN_TOOL_PRINTERS_H
#define TARN_TOOL_PRINTERS_H

#include <memory>

#include "tarn/commands.h"
#include "tarn/judged.h"

namespace tool {

class Printer {
public:
    virtual ~Printer() = default;
    // `number` counts messages over all files, `file` names the one it is from.
    virtual void print(const Judged &judged, std::uint64_t number, const std::string &file) = 0;
    virtual void finish() {}
};

std::unique_ptr<Printer> make_tree_printer(const DecodeOptions &options, const Streams &streams);
std::unique_ptr<Printer> make_summary_printer(const DecodeOptions &options, const Streams &streams);
std::unique_ptr<Printer> make_hex_printer(const DecodeOptions &options, const Streams &streams);
std::unique_ptr<Printer> make_json_printer(const DecodeOptions &options, const Streams &streams);
// Throws UsageError for a name that no field has.
std::unique_ptr<Printer> make_fields_printer(const DecodeOptions &options, const Streams &streams);
// Writes a file that Wireshark opens. Throws capture::SourceError if it cannot.
std::unique_ptr<Printer> make_pcapng_printer(const std::string &path);

// "message 3 (rab.hex:12)", "message 3 (ap.pcapng: packet 17)".
std::string place_of(const Judged &judged, std::uint64_t number, const std::string &file);

// Text in a colour, or as it is.
class Paint {
public:
    explicit Paint(bool isOn) : isOn_(isOn) {}
    std::string_view good() const { return isOn_ ? "\x1B[32m" : ""; }
    std::string_view bad() const { return isOn_ ? "\x1B[31m" : ""; }
    std::string_view name() const { return isOn_ ? "\x1B[1m" : ""; }
    std::string_view faint() const { return isOn_ ? "\x1B[2m" : ""; }
    std::string_view off() const { return isOn_ ? "\x1B[0m" : ""; }
    std::string_view verdict(const Judged &judged) const {
        return judged.is_valid() ? good() : bad();
    }

private:
    bool isOn_;
};

} // namespace tool

#endif
