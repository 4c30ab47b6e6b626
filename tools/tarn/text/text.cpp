#include "tarn/text/text.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <optional>

namespace text {

namespace {

constexpr std::size_t longestMessage = 4U << 20; // bytes: far beyond any
constexpr std::size_t longestLine = 16U << 20;
constexpr std::size_t usualDumpLine = 16; // bytes

std::string_view without_blanks_in_front(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
    return text;
}

// What a dump's line begins with: a number, then a colon, a blank or the end.
struct Offset {
    std::string_view digits;
    std::string_view data; // behind it

    std::optional<std::size_t> in(int radix) const {
        std::size_t number = 0;
        const char *end = digits.data() + digits.size();
        const auto [stop, error] = std::from_chars(digits.data(), end, number, radix);
        if (stop != end || error != std::errc())
            return {};
        return number;
    }

    bool is_zero() const { return digits.find_first_not_of('0') == digits.npos; }

    // Dumps count in hex, octal or decimal.
    bool is(std::size_t count) const {
        return in(16) == count || in(8) == count || in(10) == count;
    }
};

std::optional<Offset> offset_of(std::string_view text) {
    constexpr std::size_t shortest = 4;
    constexpr std::size_t longest = 16;
    text = without_blanks_in_front(text);
    if (text.starts_with("0x") || text.starts_with("0X"))
        text.remove_prefix(2);
    std::size_t size = 0;
    while (size < text.size() && hex_digit(text[size]) < 16)
        ++size;
    const std::string_view behind = text.substr(size);
    if (size < shortest || size > longest || (!behind.empty() && behind.find_first_of(": \t") != 0))
        return {};
    return Offset{text.substr(0, size), behind};
}

// The text behind a dump's bytes begins with a mark or wide blanks.
std::string_view without_printed_text(std::string_view data) {
    data = data.substr(0, data.find_first_of("|>"));
    if (data.starts_with(':'))
        data.remove_prefix(1);
    data = without_blanks_in_front(data);
    std::size_t digits = 0;
    for (std::size_t i = 0; i < data.size(); ++i) {
        digits += hex_digit(data[i]) < 16 ? 1 : 0;
        const std::string_view rest = data.substr(i);
        // Two blanks also part the halves of a line.
        if (rest.starts_with("   ") || (rest.starts_with("  ") && digits != usualDumpLine))
            return data.substr(0, i);
    }
    return data;
}

// A # that no quote stands before begins a comment.
std::string_view without_comment(std::string_view text) {
    const std::size_t mark = text.find_first_of("#\"'\\");
    return mark != text.npos && text[mark] == '#' ? text.substr(0, mark) : text;
}

} // namespace

void Reader::begin(Form form) {
    finish();
    form_ = form;
    firstLine_ = lines_;
}

void Reader::finish() {
    const bool isOver = form_ == Form::none || is_skipped();
    form_ = Form::none;
    repeats_ = false;
    if (isOver)
        return;
    capture::Found found;
    found.bytes = bytes_;
    found.line = firstLine_;
    found.packet = ++messages_;
    sink_.message(found);
    bytes_.clear();
}

// What belongs to a line that cannot be read is passed over as well.
void Reader::refuse(const std::string &what) {
    sink_.trouble(capture::Severity::fault, "line " + std::to_string(lines_), what);
    bytes_.clear();
    form_ = form_ == Form::dump || form_ == Form::skippedDump ? Form::skippedDump : Form::skipped;
}

void Reader::long_line() {
    ++lines_;
    refuse("longer than any line of a message");
}

void Reader::line(std::string_view text) {
    if (lines_++ == 0 && text.starts_with("\xEF\xBB\xBF"))
        text.remove_prefix(3);
    if (text.ends_with('\r'))
        text.remove_suffix(1);
    const bool isIndented = text.starts_with(' ') || text.starts_with('\t');
    const auto first = std::find_if_not(text.begin(), text.end(), is_separator);
    if (first == text.end()) // a blank line
        return finish();
    if (*first == '#') // a comment
        return;
    take(text, isIndented);
    if (bytes_.size() > longestMessage)
        refuse("longer than any message");
}

void Reader::take(std::string_view text, bool isIndented) {
    if (form_ == Form::dump && continues_dump(text))
        return;
    const bool continues =
        isIndented && form_ != Form::none && form_ != Form::dump && form_ != Form::skippedDump;
    if (continues && form_ == Form::skipped)
        return;
    const std::optional<Offset> offset = offset_of(text);
    if (form_ == Form::skippedDump && offset && !offset->is_zero())
        return;
    if (!continues && offset && offset->is_zero() && !offset->data.empty()) {
        begin(Form::dump);
        return dump_line(offset->data);
    }
    if (!continues)
        begin(Form::plain);
    append(text);
}

void Reader::append(std::string_view text) {
    const std::size_t before = bytes_.size();
    std::string wrong = append_hex(text, &bytes_);
    if (wrong.empty()) // as most lines are
        return;
    bytes_.resize(before);
    text = without_comment(text);
    const bool hasQuotes = text.find_first_of("\"'") != text.npos;
    if (text.find('\\') != text.npos) {
        wrong = append_strings(text, &bytes_);
    } else if (hasQuotes) { // hex digits in quotes
        Bytes inside;
        wrong = append_strings(text, &inside);
        const std::string digits(inside.begin(), inside.end());
        wrong = wrong.empty() ? append_hex(digits, &bytes_) : wrong;
    } else {
        wrong = append_hex(text, &bytes_);
    }
    if (!wrong.empty())
        refuse(wrong);
}

// ---- Dumps -------------------------------------------------------------------------------------

void Reader::dump_line(std::string_view data) {
    const std::size_t before = bytes_.size();
    const std::string wrong = append_hex(without_printed_text(data), &bytes_);
    lastCount_ = bytes_.size() - before;
    if (!wrong.empty())
        refuse(wrong);
}

// Lines like the one before them are left out of dumps, and a * stands in for them.
void Reader::repeat_until(std::size_t offset) {
    while (lastCount_ != 0 && bytes_.size() < offset) {
        const std::size_t count = std::min(lastCount_, offset - bytes_.size());
        for (std::size_t i = 0; i < count; ++i)
            bytes_.push_back(bytes_[bytes_.size() - lastCount_]);
    }
    repeats_ = false;
}

bool Reader::continues_dump(std::string_view text) {
    if (without_blanks_in_front(text) == "*")
        return repeats_ = true;
    const std::optional<Offset> offset = offset_of(text);
    if (!offset || (offset->is_zero() && !offset->data.empty()))
        return false;
    if (repeats_) {
        constexpr std::size_t octalDigits = 7; // as od has them
        const auto number = offset->in(offset->digits.size() == octalDigits ? 8 : 16);
        if (!number || *number < bytes_.size() || *number > longestMessage)
            return false;
        repeat_until(*number);
    } else if (!offset->is(bytes_.size())) {
        return false;
    }
    if (without_blanks_in_front(offset->data).empty())
        finish(); // the offset behind the last byte
    else
        dump_line(offset->data);
    return true;
}

// ---- The lines of a source ---------------------------------------------------------------------

namespace {

// The next line, without its end; the source is to skip `taken` bytes behind it. False at the end.
bool next_line(capture::Source &source, std::string_view *line, std::size_t *taken) {
    std::size_t seen = 0;
    capture::View bytes = source.some();
    while (bytes.size() > seen) {
        const void *end = std::memchr(bytes.data() + seen, '\n', bytes.size() - seen);
        const auto *start = reinterpret_cast<const char *>(bytes.data());
        if (end != nullptr) {
            const auto length = std::size_t(static_cast<const char *>(end) - start);
            *line = {start, length};
            *taken = length + 1;
            return true;
        }
        seen = bytes.size();
        *line = {start, seen};
        *taken = seen;
        if (seen > longestLine)
            return true;
        bytes = source.peek(seen + 1);
    }
    *line = {reinterpret_cast<const char *>(bytes.data()), bytes.size()};
    return !bytes.empty();
}

void skip_rest_of_line(capture::Source &source) {
    for (capture::View bytes = source.some(); !bytes.empty(); bytes = source.some()) {
        const void *end = std::memchr(bytes.data(), '\n', bytes.size());
        if (end != nullptr) {
            source.skip(std::size_t(static_cast<const std::uint8_t *>(end) - bytes.data()) + 1);
            return;
        }
        source.skip(bytes.size());
    }
}

} // namespace

void read_text(capture::Source &source, capture::Sink &sink) {
    Reader reader(sink);
    source.idle = [&reader] { reader.finish(); };
    std::string_view line;
    std::size_t taken = 0;
    while (next_line(source, &line, &taken)) {
        if (line.size() > longestLine) {
            reader.long_line();
            skip_rest_of_line(source);
            continue;
        }
        reader.line(line);
        source.skip(taken);
    }
    source.idle = nullptr;
    reader.finish();
}

} // namespace text
