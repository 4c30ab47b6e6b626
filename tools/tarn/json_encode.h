// The bytes of a message that is given as JSON, in the form that decode --json writes.
#ifndef TARN_TOOL_JSON_ENCODE_H
#define TARN_TOOL_JSON_ENCODE_H

#include <cstdint>
#include <functional>

#include "tarn/json_tree.h"
#include "tarn_info.h"

namespace tool {

// A place in a JSON message, and the rule that it breaks.
struct JsonFault {
    std::string path;
    std::string what;
};

std::string words(const JsonFault &fault);

class JsonEncoder {
public:
    // Encodes what the codec takes, and throws JsonFault for anything else.
    JsonEncoder() = default;
    // Encodes whatever can be said in bytes, in the order of the JSON; tells what cannot, and
    // leaves it out.
    using Tell = std::function<void(const JsonFault &)>;
    explicit JsonEncoder(Tell tell) : tell_(std::move(tell)) {}

    void encode(const JsonTree &tree);
    const std::vector<std::uint8_t> &bytes() const { return bytes_; }
    // Where the IEs of the message begin.
    const std::vector<std::size_t> &starts() const { return starts_; }

private:
    // One step of a path: a name, or an index where the name is null.
    struct Step {
        std::string_view name;
        std::size_t index;
    };
    class In;

    bool is_forced() const { return bool(tell_); }
    std::string path() const;
    void fault(const std::string &what);
    void fault(TarnInfoReason reason, const TarnInfoWords &words);
    void refuse_kind(const char *expected, const JsonNode &node);
    std::string found_words(const JsonNode &node) const;
    std::string shown_key(std::string_view key) const;

    const TarnInfoMessage *message_of(const JsonNode &root);
    bool write_bytes_member(const JsonNode &root);
    void write_message(const TarnInfoMessage &message, const JsonNode &root);
    void write_slots(const TarnInfoSlot *slots, std::uint32_t count, const JsonNode &object,
                     const char *owner, const TarnInfoType *record);
    void write_as_given(const TarnInfoSlot *slots, std::uint32_t count, const JsonNode &object,
                        const char *owner);
    void write_slot(const TarnInfoSlot &slot, const JsonNode &node);
    void write_missing(const TarnInfoSlot &slot, const TarnInfoType *record);
    void unknown_name(const TarnInfoSlot *slots, std::uint32_t count, std::string_view key,
                      const char *owner);
    bool write_ie(const TarnInfoType &type, const JsonNode &node);
    bool write_value(const TarnInfoType &type, const JsonNode &node);
    bool write_number(const TarnInfoType &type, const JsonNode &node);
    bool write_number(const TarnInfoType &type, std::int64_t number);
    bool write_string(const TarnInfoType &type, const JsonNode &node);
    bool write_items(const TarnInfoType &type, const JsonNode &node);
    bool write_address(const TarnInfoType &type, const JsonNode &node);
    bool is_count_right(const TarnInfoType &type, std::size_t count);
    void append(std::uint32_t number, unsigned width);
    void judge() const;
    static void judge(const std::vector<std::uint8_t> &bytes);

    Tell tell_;
    const JsonTree *tree_ = nullptr;
    std::vector<std::uint8_t> bytes_;
    std::vector<std::size_t> starts_;
    std::vector<Step> path_;
    std::size_t firstRepeated_ = 0; // of a child of the message, among starts_
    std::size_t repeatedCount_ = 0;
};

} // namespace tool

#endif
