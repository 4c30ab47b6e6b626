#include "wording.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace info {

namespace {

struct Row {
    const char *name;
    const char *sentence;
};
constexpr Row reasons[] = {
#define REASON(name_, sentence_) {#name_, sentence_},
#include "tarn_info_reasons.def"
};

std::string counted(std::int64_t count, std::string_view thing) {
    return std::to_string(count) + " " + std::string(thing) + (count == 1 ? "" : "s");
}

std::string range_of(const TarnInfoType &type) {
    const std::string least = std::to_string(type.least);
    return type.least == type.greatest ? "exactly " + least
                                       : least + " to " + std::to_string(type.greatest);
}

const char *unit_of(const TarnInfoType &type) {
    if (type.shape == TarnInfoBytes)
        return "byte";
    return type.shape == TarnInfoList ? "item" : "element";
}

std::string number_words(std::int64_t number, std::string_view as, const TarnInfoType &type) {
    if (as == "byte")
        return counted(number, "byte");
    if (as == "unit")
        return counted(number, unit_of(type));
    if (as == "remains")
        return number == 1 ? "remains" : "remain";
    return std::to_string(number);
}

std::string type_words(std::string_view holder, const TarnInfoType &type) {
    if (holder == "ie")
        return label(type);
    if (holder == "name")
        return type.name;
    if (holder == "width")
        return counted(type.width, "byte");
    if (holder == "least")
        return std::to_string(type.least);
    if (holder == "greatest")
        return std::to_string(type.greatest);
    if (holder == "capacity")
        return std::to_string(type.capacity);
    if (holder == "range")
        return range_of(type);
    if (holder == "units")
        return unit_of(type) + std::string("s");
    return is_list(type) ? "items" : "parts";
}

std::string fill(std::string_view holder, const TarnInfoWords &words) {
    static constexpr TarnInfoType noType{};
    const TarnInfoType &type = words.type != nullptr ? *words.type : noType;
    const std::size_t colon = std::min(holder.find(':'), holder.size());
    const std::string_view as = holder.substr(std::min(colon + 1, holder.size()));
    const std::string_view name = holder.substr(0, colon);
    if (name == "number")
        return number_words(words.number, as, type);
    if (name == "other")
        return number_words(words.other, as, type);
    if (name == "found")
        return label_of_tag(words.found);
    if (name == "owner")
        return words.owner != nullptr ? words.owner : "";
    if (name == "message")
        return words.message != nullptr ? words.message->name : "";
    if (name == "name" && words.slot != nullptr)
        return words.slot->name;
    if (name == "condition")
        return words.slot != nullptr && words.slot->condition != nullptr
                   ? words.slot->condition->meaning
                   : "";
    return words.type != nullptr ? type_words(name, type) : "";
}

} // namespace

std::string label(const TarnInfoType &type) {
    return type.name + (" [" + std::to_string(type.tag) + "]");
}

std::string label_of_tag(std::uint32_t tag) {
    const TarnInfoType *type = type_of_tag(tag);
    return type != nullptr ? label(*type) : "unknown tag " + std::to_string(tag);
}

std::string sentence(TarnInfoReason reason, const TarnInfoWords &words) {
    std::string text;
    std::string_view rest = tarnInfoReasonSentence(reason);
    while (!rest.empty()) {
        const std::size_t open = std::min(rest.find('{'), rest.size());
        text += rest.substr(0, open);
        rest.remove_prefix(open);
        if (rest.empty())
            break;
        const std::size_t close = rest.find('}');
        text += fill(rest.substr(1, close - 1), words);
        rest.remove_prefix(close + 1);
    }
    return text;
}

} // namespace info

const char *tarnInfoReasonName(TarnInfoReason reason) {
    return reason < TarnInfoReasonCount ? info::reasons[reason].name : "unknown";
}

const char *tarnInfoReasonSentence(TarnInfoReason reason) {
    return reason < TarnInfoReasonCount ? info::reasons[reason].sentence : "unknown";
}

uint32_t tarnInfoSentence(TarnInfoReason reason, const TarnInfoWords *words, char *text,
                          uint32_t size) try {
    const std::string whole = info::sentence(reason, words != nullptr ? *words : TarnInfoWords{});
    if (text != nullptr && size != 0) {
        const std::size_t shown = std::min<std::size_t>(whole.size(), size - 1);
        std::memcpy(text, whole.data(), shown);
        text[shown] = 0;
    }
    return uint32_t(whole.size());
} catch (const std::bad_alloc &) {
    return 0;
}
