#include "tarn/input.h"
#include "tarn/printers.h"
#include "tarn/terminal.h"
#include "tarn/where.h"

namespace tool {

namespace {

std::unique_ptr<Printer> make_printer(const DecodeOptions &options, const Streams &streams) {
    switch (options.output) {
    case Output::summary:
        return make_summary_printer(options, streams);
    case Output::hex:
        return make_hex_printer(options, streams);
    case Output::json:
        return make_json_printer(options, streams);
    case Output::fields:
        return make_fields_printer(options, streams);
    default:
        return make_tree_printer(options, streams);
    }
}

class Decoder final : public FileSink {
public:
    Decoder(const DecodeOptions &options, const Streams &streams)
        : FileSink(streams, options.progress), filter_(options.filter),
          printer_(make_printer(options, streams)) {
        if (!options.pcapng.empty())
            capture_ = make_pcapng_printer(options.pcapng);
    }

    void message(const capture::Found &found) override {
        const Judged judged(found);
        ++number_;
        if (!filter_.takes(judged))
            return;
        if (!judged.is_valid())
            status_ = exitRefused;
        printer_->print(judged, number_, file_name());
        if (capture_)
            capture_->print(judged, number_, file_name());
    }

    int finish() {
        if (capture_)
            capture_->finish();
        return status_;
    }

private:
    Filter filter_;
    std::unique_ptr<Printer> printer_;
    std::unique_ptr<Printer> capture_;
    std::uint64_t number_ = 0;
    int status_ = exitOk;
};

} // namespace

int decode(const DecodeOptions &options, const Streams &streams) {
    try {
        Decoder decoder(options, streams);
        const int status = decoder.read(options.files, options.input);
        return std::max(status, decoder.finish());
    } catch (const capture::SourceError &error) { // only the capture's: those of inputs are told
        streams.err << "tarn: " << printable(options.pcapng) << ": " << error.what() << '\n';
        return exitUnusable;
    }
}

} // namespace tool
