// Any input of the tool, as what its first byte says: found out, text, a stream, a capture. Every
// message found is put out in each form, and what can be read again must give the same bytes.
#include <sstream>

#include "fuzz.h"
#include "tarn/input.h"
#include "tarn/json_encode.h"
#include "tarn/printers.h"
#include "tarn/where.h"

namespace {

constexpr tool::Form forms[] = {tool::Form::detect, tool::Form::hex, tool::Form::framed,
                                tool::Form::capture};
constexpr std::uint8_t trusting = 0x80; // of the first byte: takes ports and links for ours

capture::View view_of(const std::string &text) {
    return {reinterpret_cast<const std::uint8_t *>(text.data()), text.size()};
}

// The first message of a text.
class First final : public capture::Sink {
public:
    void message(const capture::Found &found) override {
        if (bytes.empty())
            bytes.assign(found.bytes.begin(), found.bytes.end());
    }
    void trouble(capture::Severity, const std::string &, const std::string &) override {}
    std::vector<std::uint8_t> bytes;
};

class Everything final : public capture::Sink {
public:
    Everything() : where_(tool::parse_condition("Srnti == 1 || RabList.RabId > 5 || !Imsi")) {
        tool::DecodeOptions options;
        const tool::Streams out{out_, out_};
        options.fields = "time,from,Srnti,RabList,IpAddress";
        for (auto *make :
             {tool::make_tree_printer, tool::make_summary_printer, tool::make_fields_printer,
              tool::make_hex_printer, tool::make_json_printer})
            printers_.push_back(make(options, out));
    }

    void message(const capture::Found &found) override {
        const tool::Judged judged(found);
        where_->holds(judged);
        std::string printed;
        for (const auto &printer : printers_) {
            out_.str("");
            printer->print(judged, 1, "f");
            printed = out_.str();
            if (&printer == &printers_[3])
                check_hex(judged, printed);
        }
        check_json(judged, printed);
    }
    void trouble(capture::Severity, const std::string &place, const std::string &what) override {
        HOLDS(!what.empty() && place.size() < 100);
    }

private:
    static void check_hex(const tool::Judged &judged, const std::string &text) {
        capture::Source source(view_of(text));
        First first;
        tool::InputOptions options;
        options.form = tool::Form::hex;
        tool::read_messages(source, options, first);
        HOLDS(std::equal(first.bytes.begin(), first.bytes.end(), judged.bytes().begin(),
                         judged.bytes().end()));
    }

    static void check_json(const tool::Judged &judged, const std::string &line) {
        capture::Source source(view_of(line));
        tool::JsonReader reader(source);
        tool::JsonTree tree;
        HOLDS(reader.next(&tree) == tool::JsonReader::Step::value);
        if (!judged.is_plain())
            return;
        tool::JsonEncoder encoder;
        encoder.encode(tree);
        HOLDS(std::equal(encoder.bytes().begin(), encoder.bytes().end(), judged.bytes().begin(),
                         judged.bytes().end()));
    }

    std::ostringstream out_;
    tool::ConditionPtr where_;
    std::vector<std::unique_ptr<tool::Printer>> printers_;
};

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    if (size == 0)
        return 0;
    tool::InputOptions options;
    options.form = forms[data[0] % std::size(forms)];
    if ((data[0] & trusting) != 0) {
        options.capture.ports = {5000};
        options.capture.links = {7};
    }
    capture::Source source(capture::View(data + 1, size - 1));
    Everything everything;
    tool::read_messages(source, options, everything);
    return 0;
}
