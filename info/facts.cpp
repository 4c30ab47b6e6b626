// The rows, as constants of the public interface.
#include "facts.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace info {

namespace {

using tarn::Kind;

constexpr tarn::Catalogue rows = tarn::making::make_catalogue();

// ---- Names, in the order of the rows' own tables -----------------------------------------------

struct TypeWords {
    const char *name;
    const char *term;
    std::size_t ieSize;
    std::size_t recordSize;
};

struct Words {
    TypeWords types[tarn::typeCount];
    const char *messageNames[tarn::messageCount];
    const char *messageTerms[tarn::messageCount];
    std::size_t messageSizes[tarn::messageCount];
    TarnInfoForm forms[tarn::typeCount];
    TarnInfoSecrecy secrecies[tarn::typeCount];
};

constexpr Words make_words() {
    Words w{};
#define IE_WORDS(name_, term_)                                                                     \
    w.types[tarn::type##name_] = {#name_, term_, sizeof(Tarn##name_##Ie), 0};
#define VALUE_WORDS(name_, term_)                       w.types[tarn::type##name_] = {#name_, term_, 0, 0};
#define SCALAR(name_, tag_, t_, w_, l_, g_, term_)      IE_WORDS(name_, term_)
#define BYTES(name_, tag_, c_, l_, g_, term_)           IE_WORDS(name_, term_)
#define RECORD(name_, tag_, term_)                      IE_WORDS(name_, term_)
#define LIST(name_, tag_, i_, c_, l_, g_, term_)        IE_WORDS(name_, term_)
#define ITEM_SCALAR(name_, tag_, t_, w_, l_, g_, term_) VALUE_WORDS(name_, term_)
#define ITEM_RECORD(name_, tag_, term_)                 VALUE_WORDS(name_, term_)
#define FREE_SCALAR(name_, t_, w_, l_, g_, term_)       VALUE_WORDS(name_, term_)
#define FREE_RECORD(name_, term_)                       VALUE_WORDS(name_, term_)
#include "catalogue/primitive_ies.def"
#define COMPOSITE_WORDS(name_, term_)                                                              \
    w.types[tarn::type##name_] = {#name_, term_, sizeof(Tarn##name_##Ie),                          \
                                  sizeof(Tarn##name_##Record)};
#define SEQUENCE(name_, tag_, rule_, term_)            COMPOSITE_WORDS(name_, term_)
#define COMPOSITE_LIST(name_, tag_, e_, l_, g_, term_) COMPOSITE_WORDS(name_, term_)
#include "catalogue/composite_ies.def"
#define MESSAGE(name_, id_, r_, a_, v_, p_, term_)                                                 \
    w.messageNames[id_] = #name_;                                                                  \
    w.messageTerms[id_] = term_;                                                                   \
    w.messageSizes[id_] = sizeof(Tarn##name_##Record);
#include "catalogue/messages.def"
#define FORM(type_, form_)       w.forms[tarn::type##type_] = TarnInfo##form_;
#define SECRECY(type_, secrecy_) w.secrecies[tarn::type##type_] = TarnInfo##secrecy_;
#include "forms.def"
    return w;
}
constexpr Words allWords = make_words();

constexpr const char *slotNames[] = {
#define PRIMITIVE_SLOT(owner_, child_, ...)       #child_,
#define COMPOSITE_SLOT(owner_, child_, ...)       #child_,
#define SECOND_SLOT(owner_, child_, member_, ...) #member_,
#include "catalogue/composite_ies.def"
#define MESSAGE(...)                        "MessageId",
#define PRIMITIVE_SLOT(owner_, child_, ...) #child_,
#define COMPOSITE_SLOT(owner_, child_, ...) #child_,
#include "catalogue/messages.def"
};
static_assert(std::size(slotNames) == tarn::slotCapacity);

// ---- Filling the tables ------------------------------------------------------------------------

constexpr TarnInfoShape shape_of(Kind kind) {
    switch (kind) {
    case Kind::bytes:
        return TarnInfoBytes;
    case Kind::record:
        return TarnInfoRecord;
    case Kind::list:
        return TarnInfoList;
    case Kind::sequence:
        return TarnInfoSequence;
    case Kind::compositeList:
        return TarnInfoCompositeList;
    default:
        return TarnInfoNumber;
    }
}

constexpr std::uint32_t largest_of(const tarn::Type &type);

constexpr std::uint32_t largest_of(const tarn::SlotTable &table) {
    std::uint32_t sum = 0;
    for (unsigned i = 0; i < table.count; ++i)
        sum += largest_of(rows.types[rows.slots[table.first + i].type]);
    return sum;
}

constexpr std::uint32_t largest_of(const tarn::Type &type) {
    switch (type.kind) {
    case Kind::bytes:
        return headerSize + type.greatest;
    case Kind::record: {
        std::uint32_t sum = headerSize;
        for (unsigned i = 0; i < type.slots.count; ++i)
            sum += largest_of(rows.types[rows.members[type.slots.first + i].type]);
        return sum;
    }
    case Kind::list:
    case Kind::compositeList:
        return headerSize + type.greatest * largest_of(rows.types[type.array.item]);
    case Kind::sequence:
        return headerSize + largest_of(type.slots);
    default:
        return headerSize + type.fixedSize;
    }
}

constexpr void add_slots(Facts &f) {
    for (unsigned i = 0; i < tarn::slotCapacity; ++i) {
        const tarn::Slot &row = rows.slots[i];
        f.slots[i] = {slotNames[i],
                      &facts.types[row.type],
                      TarnInfoPresence(row.presence),
                      row.condition == tarn::always ? nullptr : &facts.conditions[row.condition],
                      row.presenceBit,
                      row.recordOffset};
    }
    for (unsigned i = 0; i < tarn::memberCapacity; ++i) {
        const tarn::Member &row = rows.members[i];
        f.members[i] = {allWords.types[row.type].name,
                        &facts.types[row.type],
                        TarnInfoMandatory,
                        nullptr,
                        0,
                        row.offset};
    }
}

constexpr void add_type(Facts &f, unsigned id) {
    const tarn::Type &row = rows.types[id];
    TarnInfoType &type = f.types[id];
    const TypeWords &own = allWords.types[id];
    type.name = own.name;
    type.term = own.term;
    type.tag = id <= tarn::lastTag ? id : 0;
    type.shape = shape_of(row.kind);
    type.form = allWords.forms[id];
    type.secrecy = allWords.secrecies[id];
    type.hasIe = row.hasIe;
    type.width = type.shape == TarnInfoNumber ? row.fixedSize : 0;
    type.least = row.least;
    type.greatest = row.kind == Kind::code ? 0xFFFF : row.greatest;
    type.capacity = row.capacity;
    type.valueSize = type.shape >= TarnInfoSequence ? 0 : row.valueSize;
    type.ieSize = std::uint32_t(own.ieSize);
    type.recordSize = std::uint32_t(own.recordSize);
    type.largest = largest_of(row);
    if (row.kind == Kind::sequence || row.kind == Kind::record) {
        type.slots = row.kind == Kind::record ? &facts.members[row.slots.first]
                                              : &facts.slots[row.slots.first];
        type.slotCount = row.slots.count;
    }
    if (row.kind == Kind::list || row.kind == Kind::compositeList) {
        type.item = &facts.types[row.array.item];
        type.itemsOffset = row.array.offset;
        type.stride = row.array.stride;
    }
    if (row.kind == Kind::compositeList) {
        f.elements[id] = {allWords.types[row.array.item].name,
                          type.item,
                          TarnInfoRepeated,
                          nullptr,
                          0,
                          type.itemsOffset};
        type.slots = &facts.elements[id];
        type.slotCount = 1;
    }
}

constexpr void add_messages(Facts &f) {
    for (unsigned id = 0; id < tarn::messageCount; ++id) {
        const tarn::Message &row = rows.messages[id];
        if (row.slots.count != 0)
            f.messages[id] = {allWords.messageNames[id],
                              allWords.messageTerms[id],
                              id,
                              row.appendToken,
                              row.validityToken,
                              row.packToken,
                              std::uint32_t(allWords.messageSizes[id]),
                              largest_of(row.slots),
                              &facts.slots[row.slots.first],
                              row.slots.count};
    }
}

// TarnInfoWalk has a count for each.
constexpr bool slots_fit() {
    for (const tarn::Type &type : rows.types)
        if (type.kind == Kind::sequence && type.slots.count > std::size(TarnInfoWalk{}.seen))
            return false;
    for (const tarn::Message &message : rows.messages)
        if (message.slots.count > std::size(TarnInfoWalk{}.seen))
            return false;
    return true;
}
static_assert(slots_fit());

constexpr Facts make_facts() {
    Facts f{};
    add_slots(f);
    for (unsigned id = 1; id < tarn::typeCount; ++id)
        if (allWords.types[id].name != nullptr)
            add_type(f, id);
    add_messages(f);
#define CONDITION_FOR_MSG(name_, predicate_, ie_, values_, counts_, meaning_)                      \
    f.conditions[tarn::name_] = {#name_,   #predicate_,                                            \
                                 meaning_, tarn::type##ie_,                                        \
                                 values_,  rows.conditions[tarn::name_].counts ? 1U : 0U};
#define CONDITION_FOR_IE CONDITION_FOR_MSG
#include "catalogue/conditions.def"
#undef CONDITION_FOR_IE
    return f;
}

} // namespace

constinit const Facts facts = make_facts();

namespace {

// ---- The lists of all --------------------------------------------------------------------------

template <class Entry, std::size_t capacity>
struct Pointers {
    const Entry *all[capacity];
    std::uint32_t count;
};

constexpr auto list_types() {
    Pointers<TarnInfoType, tarn::typeCount> list{};
    for (unsigned id = 0; id < tarn::typeCount; ++id)
        if (allWords.types[id].name != nullptr)
            list.all[list.count++] = &facts.types[id];
    return list;
}
constexpr auto list_messages() {
    Pointers<TarnInfoMessage, tarn::messageCount> list{};
    for (unsigned id = 0; id < tarn::messageCount; ++id)
        if (allWords.messageNames[id] != nullptr)
            list.all[list.count++] = &facts.messages[id];
    return list;
}
constinit const auto allTypes = list_types();
constinit const auto allMessages = list_messages();

template <class List>
auto by_name(const List &list, const char *name) {
    const auto end = list.all + list.count;
    const auto found = std::find_if(list.all, end, [name](const auto *entry) {
        return name != nullptr && std::string_view(entry->name) == name;
    });
    return found == end ? nullptr : *found;
}

template <class Count>
void set_count(Count *count, std::uint32_t number) {
    if (count != nullptr)
        *count = number;
}

} // namespace

} // namespace info

using namespace info;

const TarnInfoType *const *tarnInfoTypes(uint32_t *count) {
    set_count(count, allTypes.count);
    return allTypes.all;
}

const TarnInfoMessage *const *tarnInfoMessages(uint32_t *count) {
    set_count(count, allMessages.count);
    return allMessages.all;
}

const TarnInfoCondition *tarnInfoConditions(uint32_t *count) {
    set_count(count, uint32_t(tarn::always));
    return facts.conditions;
}

const TarnInfoType *tarnInfoTypeByTag(uint32_t tag) {
    return type_of_tag(tag);
}

const TarnInfoMessage *tarnInfoMessageById(uint32_t id) {
    return message_of_id(id);
}

const TarnInfoType *tarnInfoTypeByName(const char *name) {
    return by_name(allTypes, name);
}

const TarnInfoMessage *tarnInfoMessageByName(const char *name) {
    return by_name(allMessages, name);
}

// ---- Debug tokens and modules ------------------------------------------------------------------

TarnInfoStep tarnInfoToken(uint32_t token, const TarnInfoMessage **message) {
    const TarnInfoMessage *unused = nullptr;
    const TarnInfoMessage *&found = message != nullptr ? *message : unused;
    found = nullptr;
    if (token == tarn::getToken)
        return TarnInfoGetStep;
    for (uint32_t i = 0; i < allMessages.count; ++i) {
        found = allMessages.all[i];
        if (token == found->appendToken)
            return TarnInfoAppendStep;
        if (token == found->validityToken)
            return TarnInfoValidityStep;
        if (token == found->packToken)
            return TarnInfoPackStep;
    }
    found = nullptr;
    return TarnInfoNoStep;
}

const char *tarnInfoStepWords(TarnInfoStep step) {
    switch (step) {
    case TarnInfoAppendStep:
        return "Build: a value is out of range, or a count beyond its array";
    case TarnInfoValidityStep:
        return "Build: the values are good, but the message as a whole is not valid";
    case TarnInfoPackStep:
        return "Build: the buffer is too small for the message";
    case TarnInfoGetStep:
        return "Get: the bytes cannot be decoded";
    default:
        return "unknown";
    }
}

const char *tarnInfoModuleWords(const char *module) {
    static constexpr struct {
        std::string_view module;
        const char *words;
    } all[] = {
        {"tarn_if_api", "objects, messages, and Append, Extract, Pack, Build and Get"},
        {"tarn_if_internal_funcs",
         "buffer primitives, the codecs and validators of values and IEs, Unpack of a known "
         "message, and AppendMessageId"},
        {"tarn_if_conditional_funcs", "the predicates of conditional presence"},
    };
    for (const auto &entry : all)
        if (module != nullptr && entry.module == module)
            return entry.words;
    return "unknown";
}
