// A message as JSON and as a tree, straight from its bytes.
#include <iterator>
#include <memory>
#include <new>
#include <vector>

#include "judging.h"
#include "printing.h"
#include "readable.h"
#include "reading.h"
#include "text.h"

namespace info {

namespace {

bool is_blacked_out(const TarnInfoType &type, std::uint32_t switches) {
    if (type.secrecy == TarnInfoPayload)
        return (switches & TarnInfoRedactPayloads) != 0;
    return type.secrecy != TarnInfoPublic && (switches & TarnInfoRedact) != 0;
}

// ---- JSON --------------------------------------------------------------------------------------

// "\"Srnti\":" of each slot and member.
struct Quoted {
    char text[47];
    std::uint8_t length;
};

constexpr Quoted quote(const char *name) {
    Quoted quoted{};
    quoted.text[quoted.length++] = '"';
    while (*name != 0)
        quoted.text[quoted.length++] = *name++;
    quoted.text[quoted.length++] = '"';
    quoted.text[quoted.length++] = ':';
    return quoted;
}

template <std::size_t count>
struct QuotedNames {
    explicit QuotedNames(const TarnInfoSlot (&slots)[count]) {
        for (std::size_t i = 0; i < count; ++i)
            names[i] = quote(slots[i].name);
    }
    Quoted names[count];
};
const QuotedNames<tarn::slotCapacity> quotedSlotNames(facts.slots);
const QuotedNames<tarn::memberCapacity> memberNames(facts.members);

const Quoted &quoted_name(const TarnInfoSlot *slot) {
    const auto member = std::uintptr_t(slot) - std::uintptr_t(facts.members);
    if (member < sizeof facts.members)
        return memberNames.names[member / sizeof *slot];
    return quotedSlotNames.names[slot - facts.slots];
}

class JsonPrinter {
public:
    JsonPrinter(Text *out, std::uint32_t switches) : out_(*out), switches_(switches) {}

    void message(const TarnInfoMessage &message) {
        if ((switches_ & TarnInfoMembers) == 0)
            out_.put('{');
        depth_ = 1;
        if ((switches_ & TarnInfoMembers) == 0)
            line();
        name(quote("message"));
        out_.put('"');
        out_.put(message.name);
        out_.put('"');
        isFirst_ = false;
    }

    void end() {
        close_array(nullptr);
        depth_ = 0;
        if ((switches_ & TarnInfoMembers) != 0)
            return;
        line();
        out_.put('}');
    }

    bool enter(const TarnInfoPart &part, const TarnInfoSlot *slot) {
        label(part, slot);
        out_.put(is_list(*part.type) ? '[' : '{');
        ++depth_;
        isFirst_ = true;
        return true;
    }

    void leave(const TarnInfoPart &part) {
        --depth_;
        if (!isFirst_)
            line();
        out_.put(is_list(*part.type) ? ']' : '}');
        isFirst_ = false;
    }

    bool leaf(const TarnInfoPart &part, const TarnInfoSlot *slot) {
        const TarnInfoType &type = *part.type;
        if (type.tag == tarn::typeMessageId && part.depth == 0)
            return true;
        label(part, slot);
        if (type.shape == TarnInfoNumber)
            out_.number(part.number);
        else
            put_json_value(part, switches_, &out_);
        return true;
    }

private:
    // What stands before a value: a comma, in an object the name. An IE that may be repeated opens
    // an array, which the next other one closes.
    void label(const TarnInfoPart &part, const TarnInfoSlot *slot) {
        const bool isRepeated = slot != nullptr && slot->presence == TarnInfoRepeated;
        if (repeated_ != nullptr && part.depth == 0)
            close_array(slot);
        if (!isFirst_)
            out_.put(',');
        isFirst_ = false;
        line();
        if (slot == nullptr || slot == repeated_)
            return;
        name(quoted_name(slot));
        if (!isRepeated)
            return;
        out_.put('[');
        ++depth_;
        line();
        repeated_ = slot;
    }

    void close_array(const TarnInfoSlot *next) {
        if (repeated_ == nullptr || repeated_ == next)
            return;
        repeated_ = nullptr;
        --depth_;
        line();
        out_.put(']');
    }

    // Copied whole, which takes a move or two, and then as much of it as counts.
    void name(const Quoted &quoted) {
        char *at = out_.room(sizeof quoted.text);
        std::memcpy(at, quoted.text, sizeof quoted.text);
        out_.advance(at + quoted.length);
        if ((switches_ & TarnInfoPretty) != 0)
            out_.put(' ');
    }

    void line() {
        if ((switches_ & TarnInfoPretty) == 0)
            return;
        out_.put('\n');
        out_.fill(std::size_t{2} * depth_);
    }

    Text &out_;
    std::uint32_t switches_;
    std::uint32_t depth_ = 0;
    bool isFirst_ = true;
    const TarnInfoSlot *repeated_ = nullptr; // whose array is open
};

// ---- The tree ----------------------------------------------------------------------------------

constexpr std::uint32_t indent = 2;

// How wide the names are, and how many parts there are in each list.
class TreeMeasure {
public:
    bool enter(const TarnInfoPart &part, const TarnInfoSlot *slot) {
        leaf(part, slot);
        open_.push_back(std::uint32_t(counts.size()));
        counts.push_back(0);
        return true;
    }
    void leave(const TarnInfoPart &) { open_.pop_back(); }
    bool leaf(const TarnInfoPart &part, const TarnInfoSlot *) {
        std::uint32_t length = std::uint32_t(std::strlen(part.name)) + indent * part.depth;
        if (part.index != TarnInfoNoIndex) {
            length += 3;
            for (std::uint32_t rest = part.index; rest >= 10; rest /= 10)
                ++length;
        }
        width = std::max(width, length);
        if (!open_.empty())
            ++counts[open_.back()];
        return true;
    }

    std::uint32_t width = 0;
    std::vector<std::uint32_t> counts; // in the order of entering

private:
    std::vector<std::uint32_t> open_;
};

class TreePrinter {
public:
    TreePrinter(Text *out, std::uint32_t switches, const TreeMeasure &measure)
        : out_(*out), switches_(switches), measure_(measure) {}

    bool enter(const TarnInfoPart &part, const TarnInfoSlot *) {
        head(part);
        const std::uint32_t count = measure_.counts[entered_++];
        if (is_list(*part.type)) {
            out_.put("  ");
            counted(count, part.type->shape == TarnInfoList ? "item" : "element");
        }
        out_.put('\n');
        return true;
    }
    void leave(const TarnInfoPart &) {}

    bool leaf(const TarnInfoPart &part, const TarnInfoSlot *) {
        head(part);
        out_.put("  ");
        if (part.type->shape == TarnInfoNumber) {
            out_.number(part.number);
            out_.put(" (");
            out_.hex_number(part.number, part.type->width);
            out_.put(')');
        } else if (is_address(*part.type)) {
            out_.put(readable(*part.type, part.value, addressParts * addressItem).view());
        } else {
            bytes(part);
        }
        out_.put('\n');
        return true;
    }

private:
    static constexpr std::uint32_t offsetWidth = 6;
    static constexpr std::uint32_t tagWidth = 5; // "[177]"
    static constexpr std::uint32_t bytesInLine = 16;

    static std::uint32_t digits_of(std::uint32_t number) {
        std::uint32_t digits = 1;
        for (; number >= 10; number /= 10)
            ++digits;
        return digits;
    }

    void fill_up(std::uint32_t used, std::uint32_t width) {
        out_.fill(width > used ? width - used : 0);
    }

    void counted(std::uint32_t count, const char *thing) {
        out_.number(count);
        out_.put(' ');
        out_.put(thing);
        if (count != 1)
            out_.put('s');
    }

    void head(const TarnInfoPart &part) {
        fill_up(digits_of(part.offset), offsetWidth);
        out_.number(part.offset);
        out_.fill(2 + std::size_t{indent} * part.depth);
        out_.put(part.name);
        auto used = std::uint32_t(std::strlen(part.name)) + indent * part.depth;
        if (part.index != TarnInfoNoIndex) {
            out_.put('[');
            out_.number(part.index);
            out_.put(']');
            used += 2 + digits_of(part.index);
        }
        fill_up(used, measure_.width + 1);
        fill_up(2 + digits_of(part.type->tag), tagWidth);
        out_.put('[');
        out_.number(part.type->tag);
        out_.put(']');
    }

    void bytes(const TarnInfoPart &part) {
        counted(part.length, "byte");
        if (part.length == 0)
            return;
        out_.put(':');
        if (is_blacked_out(*part.type, switches_)) {
            out_.put(" redacted");
            return;
        }
        if (part.length <= bytesInLine) {
            out_.put(' ');
            out_.hex(part.value, part.length, true);
            meaning(part);
            return;
        }
        meaning(part);
        for (std::uint32_t i = 0; i < part.length; i += bytesInLine) {
            out_.put('\n');
            out_.fill(offsetWidth + 2 + measure_.width + 1 + tagWidth + 2);
            out_.hex(part.value + i, std::min(bytesInLine, part.length - i), true);
        }
    }

    // The readable form; or the text, if it reads as text: short strings of printable bytes are
    // mostly chance.
    void meaning(const TarnInfoPart &part) {
        constexpr std::uint32_t shortest = 4;
        const Readable form = readable(*part.type, part.value, part.length);
        if (form.length != 0) {
            out_.put(" = ");
            out_.put(form.view());
        } else if (part.length >= shortest &&
                   std::all_of(part.value, part.value + part.length,
                               [](std::uint8_t c) { return c >= ' ' && c <= '~'; })) {
            out_.put(" \"");
            out_.put({reinterpret_cast<const char *>(part.value), part.length});
            out_.put('"');
        }
    }

    Text &out_;
    std::uint32_t switches_;
    const TreeMeasure &measure_;
    std::uint32_t entered_ = 0;
};

void print(const Judged &judged, TarnInfoFormat format, std::uint32_t switches, Text *out) {
    const auto read = [&judged](auto *visitor) {
        Reader(judged.bytes, judged.taken, judged.origin, visitor).message(*judged.message);
    };
    if (format == TarnInfoJson) {
        JsonPrinter printer(out, switches);
        printer.message(*judged.message);
        read(&printer);
        printer.end();
    } else {
        TreeMeasure measure;
        read(&measure);
        TreePrinter printer(out, switches, measure);
        read(&printer);
    }
    out->flush();
}

class PartVisitor {
public:
    PartVisitor(TarnInfoVisitPart *visit, void *context) : visit_(visit), context_(context) {}

    bool enter(const TarnInfoPart &part, const TarnInfoSlot *slot) { return leaf(part, slot); }
    void leave(const TarnInfoPart &) {}
    bool leaf(const TarnInfoPart &part, const TarnInfoSlot *) {
        return visit_(context_, &part) != 0;
    }

private:
    TarnInfoVisitPart *visit_;
    void *context_;
};

bool is_format(TarnInfoFormat format) {
    return format == TarnInfoTree || format == TarnInfoJson;
}

} // namespace

void put_json_value(const TarnInfoPart &part, std::uint32_t switches, Text *out) {
    const TarnInfoType &type = *part.type;
    if (type.shape == TarnInfoNumber)
        return out->number(part.number);
    out->put('"');
    const bool isAddress = is_address(type);
    Readable form;
    if (isAddress || (switches & TarnInfoReadably) != 0)
        form = readable(type, part.value, isAddress ? addressParts * addressItem : part.length);
    if (is_blacked_out(type, switches))
        out->put("redacted");
    else if (form.length != 0)
        out->put(form.view());
    else
        out->hex(part.value, part.length, false);
    out->put('"');
}

} // namespace info

using namespace info;

uint32_t tarnInfoReadBytes(const uint8_t *bytes, uint32_t length,
                           const TarnInfoJudgement *judgement, TarnInfoVisitPart *visit,
                           void *context) {
    const Judged judged = as_judged(bytes, length, judgement);
    if (judged.message == nullptr || visit == nullptr)
        return 0;
    PartVisitor visitor(visit, context);
    return Reader(judged.bytes, judged.taken, judged.origin, &visitor).message(*judged.message);
}

uint32_t tarnInfoPrintBytes(const uint8_t *bytes, uint32_t length,
                            const TarnInfoJudgement *judgement, TarnInfoFormat format,
                            uint32_t switches, TarnInfoSink *sink, void *context) try {
    const Judged judged = as_judged(bytes, length, judgement);
    if (judged.message == nullptr || sink == nullptr || !is_format(format))
        return 0;
    Text out(sink, context);
    print(judged, format, switches, &out);
    return 1;
} catch (const std::bad_alloc &) {
    return 0;
}

uint32_t tarnInfoPrintMsg(const TarnMsg *msg, TarnInfoFormat format, uint32_t switches,
                          TarnInfoSink *sink, void *context) try {
    const Packed packed = pack(msg);
    if (packed.size == 0 || sink == nullptr || !is_format(format))
        return 0;
    Text out(sink, context);
    print(packed.judged(), format, switches, &out);
    return 1;
} catch (const std::bad_alloc &) {
    return 0;
}
