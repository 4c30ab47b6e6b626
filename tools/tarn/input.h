// Reading what the tool is given, whatever form it has.
#ifndef TARN_TOOL_INPUT_H
#define TARN_TOOL_INPUT_H

#include "tarn/capture/capture.h"
#include "tarn/commands.h"

namespace tool {

// The form that input has which begins so; `Form::hex` stands for all text.
Form form_of(capture::View start, std::uint32_t longest);

// Hands the messages of an input to the sink. Throws capture::SourceError.
void read_messages(capture::Source &source, InputOptions options, capture::Sink &sink);

// The bytes of the longest message that there is.
std::uint32_t longest_message();

// Reads the files one after the other for a command: what cannot be read is told, and the rest goes
// on. Returns exitUnusable if anything could not be read, else exitOk.
class FileSink : public capture::Sink {
public:
    FileSink(const Streams &streams, bool showsProgress)
        : streams_(streams), showsProgress_(showsProgress) {}
    virtual ~FileSink() = default;

    int read(const std::vector<std::string> &files, const InputOptions &options);
    void trouble(capture::Severity severity, const std::string &place,
                 const std::string &what) override;

protected:
    // The file that is read, fit for a terminal.
    const std::string &file_name() const { return name_; }
    const Streams &streams() const { return streams_; }

private:
    void read_file(const std::string &file, const InputOptions &options);

    Streams streams_;
    bool showsProgress_;
    std::string name_;
    int status_ = exitOk;
};

} // namespace tool

#endif
