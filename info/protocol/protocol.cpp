#include "protocol/protocol.h"

#include <algorithm>
#include <array>
#include <deque>
#include <map>
#include <string>

namespace protocol {

namespace {

// Types refer to each other, so all of them are there, by name, before any is filled.
class Tables {
public:
    Tables() {
        name_types();
        fill_primitives();
        fill_composites();
        fill_messages();
        std::stable_sort(types.begin(), types.end(), [](const Type *a, const Type *b) {
            return (a->tag - 1) < (b->tag - 1); // a tag of 0 comes last
        });
    }

    std::vector<const Type *> types;
    std::vector<const Message *> messages;
    std::map<std::string_view, Type *> typesByName;
    std::map<std::string_view, Message *> messagesByName;

private:
    void name_types();
    void fill_primitives();
    void fill_composites();
    void fill_messages();

    Type &type(std::string_view name) { return *typesByName.at(name); }

    void add_type(const char *name, std::uint32_t tag, Shape shape, const char *term) {
        Type &added = storedTypes_.emplace_back();
        added.name = name;
        added.term = term;
        added.tag = tag;
        added.shape = shape;
        types.push_back(&added);
        typesByName[name] = &added;
    }

    static void add_slot(std::vector<Slot> &slots, Slot slot) {
        unsigned before = 0;
        for (const Slot &former : slots)
            before += former.presence != Presence::mandatory;
        slot.presenceBit = tarn::presence_bit(slot.presence, before);
        slots.push_back(slot);
    }

    std::deque<Type> storedTypes_;
    std::deque<Message> storedMessages_;
};

const Condition *condition(std::string_view name) {
    for (const Condition &each : conditions())
        if (name == each.name)
            return &each;
    return nullptr;
}

void Tables::name_types() {
#define SCALAR(name_, tag_, t_, w_, l_, g_, term_) add_type(#name_, tag_, Shape::scalar, term_);
#define ITEM_SCALAR(name_, tag_, t_, w_, l_, g_, term_)                                            \
    add_type(#name_, tag_, Shape::scalar, term_);
#define FREE_SCALAR(name_, t_, w_, l_, g_, term_) add_type(#name_, 0, Shape::scalar, term_);
#define BYTES(name_, tag_, c_, l_, g_, term_)     add_type(#name_, tag_, Shape::bytes, term_);
#define RECORD(name_, tag_, term_)                add_type(#name_, tag_, Shape::record, term_);
#define ITEM_RECORD(name_, tag_, term_)           add_type(#name_, tag_, Shape::record, term_);
#define FREE_RECORD(name_, term_)                 add_type(#name_, 0, Shape::record, term_);
#define LIST(name_, tag_, i_, c_, l_, g_, term_)  add_type(#name_, tag_, Shape::list, term_);
#include "catalogue/primitive_ies.def"
#define SEQUENCE(name_, tag_, rule_, term_) add_type(#name_, tag_, Shape::sequence, term_);
#define COMPOSITE_LIST(name_, tag_, e_, l_, g_, term_)                                             \
    add_type(#name_, tag_, Shape::compositeList, term_);
#include "catalogue/composite_ies.def"
}

// ---- Primitives --------------------------------------------------------------------------------

#define VALUE_FUNCTIONS(name_)                                                                     \
    {                                                                                              \
        Type &t = type(#name_);                                                                    \
        t.valueSize = sizeof(Tarn##name_);                                                         \
        t.sizeOf = [](const void *value) {                                                         \
            return TarnSizeOf##name_(static_cast<const Tarn##name_ *>(value));                     \
        };                                                                                         \
        t.pack = [](const void *value, std::uint8_t *buffer, std::uint32_t available,              \
                    std::uint32_t *written) {                                                      \
            return TarnPack##name_(static_cast<const Tarn##name_ *>(value), buffer, available,     \
                                   written);                                                       \
        };                                                                                         \
        t.unpack = [](void *value, std::uint32_t length, const std::uint8_t *buffer,               \
                      std::uint32_t available, std::uint32_t *consumed) {                          \
            return TarnUnpack##name_(static_cast<Tarn##name_ *>(value), length, buffer, available, \
                                     consumed);                                                    \
        };                                                                                         \
        t.isValid = [](const void *value) {                                                        \
            return TarnIs##name_##Valid(static_cast<const Tarn##name_ *>(value));                  \
        };                                                                                         \
    }

#define IE_FUNCTIONS(name_)                                                                        \
    {                                                                                              \
        Type &t = type(#name_);                                                                    \
        t.hasIe = true;                                                                            \
        t.ieSize = sizeof(Tarn##name_##Ie);                                                        \
        t.packIe = [](const void *ie, std::uint8_t *buffer, std::uint32_t available,               \
                      std::uint32_t *written) {                                                    \
            return TarnPack##name_##Ie(static_cast<const Tarn##name_##Ie *>(ie), buffer,           \
                                       available, written);                                        \
        };                                                                                         \
        t.unpackIe = [](void *ie, const std::uint8_t *buffer, std::uint32_t available,             \
                        std::uint32_t *consumed) {                                                 \
            return TarnUnpack##name_##Ie(nullptr, static_cast<Tarn##name_##Ie *>(ie), buffer,      \
                                         available, consumed);                                     \
        };                                                                                         \
        t.isIeValid = [](const void *ie) {                                                         \
            return TarnIs##name_##IeValid(nullptr, static_cast<const Tarn##name_##Ie *>(ie));      \
        };                                                                                         \
    }

#define SCALAR_FACTS(name_, width_, least_, greatest_)                                             \
    VALUE_FUNCTIONS(name_)                                                                         \
    type(#name_).width = width_;                                                                   \
    type(#name_).least = least_;                                                                   \
    type(#name_).greatest = greatest_;

// The rows make these functions long, not their authors.
void Tables::fill_primitives() { // NOLINT(readability-function-size)
#define SCALAR(name_, tag_, t_, width_, least_, greatest_, term_)                                  \
    SCALAR_FACTS(name_, width_, least_, greatest_)                                                 \
    IE_FUNCTIONS(name_)
#define ITEM_SCALAR(name_, tag_, t_, width_, least_, greatest_, term_)                             \
    SCALAR_FACTS(name_, width_, least_, greatest_)
#define FREE_SCALAR(name_, t_, width_, least_, greatest_, term_)                                   \
    SCALAR_FACTS(name_, width_, least_, greatest_)
#define BYTES(name_, tag_, capacity_, least_, greatest_, term_)                                    \
    VALUE_FUNCTIONS(name_)                                                                         \
    IE_FUNCTIONS(name_)                                                                            \
    type(#name_).capacity = capacity_;                                                             \
    type(#name_).least = least_;                                                                   \
    type(#name_).greatest = greatest_;
#define RECORD(name_, tag_, term_)                                                                 \
    VALUE_FUNCTIONS(name_)                                                                         \
    IE_FUNCTIONS(name_)
#define ITEM_RECORD(name_, tag_, term_) VALUE_FUNCTIONS(name_)
#define FREE_RECORD(name_, term_)       VALUE_FUNCTIONS(name_)
#define MEMBER(name_, member_)                                                                     \
    type(#name_).members.push_back({#member_, &type(#member_), offsetof(Tarn##name_, member_)});
#define LIST(name_, tag_, item_, capacity_, least_, greatest_, term_)                              \
    VALUE_FUNCTIONS(name_)                                                                         \
    IE_FUNCTIONS(name_)                                                                            \
    type(#name_).item = &type(#item_);                                                             \
    type(#name_).stride = sizeof(Tarn##item_);                                                     \
    type(#name_).itemsOffset = offsetof(Tarn##name_, items);                                       \
    type(#name_).capacity = capacity_;                                                             \
    type(#name_).least = least_;                                                                   \
    type(#name_).greatest = greatest_;
#include "catalogue/primitive_ies.def"
}

// ---- Composites --------------------------------------------------------------------------------

#define COMPOSITE_FACTS(name_)                                                                     \
    IE_FUNCTIONS(name_)                                                                            \
    type(#name_).create = []() -> void * { return TarnNew##name_##Ie(); };                         \
    type(#name_).recordSize = sizeof(Tarn##name_##Record);

#define COMPOSITE_CHILD(owner_, child_, presence_, condition_, offset_)                            \
    add_slot(type(#owner_).slots,                                                                  \
             {#child_, &type(#child_), Presence::presence_, condition(#condition_), 0, offset_,    \
              [](void *owner, const void *ie) {                                                    \
                  return TarnAppend##child_##IeTo##owner_##Ie(                                     \
                      static_cast<Tarn##owner_##Ie *>(owner),                                      \
                      static_cast<Tarn##child_##Ie *>(const_cast<void *>(ie)));                    \
              },                                                                                   \
              [](void *owner, void *ie) {                                                          \
                  return TarnExtract##child_##IeFrom##owner_##Ie(                                  \
                      static_cast<Tarn##owner_##Ie *>(owner),                                      \
                      static_cast<Tarn##child_##Ie **>(ie));                                       \
              }});

void Tables::fill_composites() {
#define SEQUENCE(name_, tag_, rule_, term_)                                                        \
    COMPOSITE_FACTS(name_)                                                                         \
    type(#name_).rule = UnpackRule::rule_;
#define COMPOSITE_LIST(name_, tag_, element_, least_, greatest_, term_)                            \
    COMPOSITE_FACTS(name_)                                                                         \
    type(#name_).item = &type(#element_);                                                          \
    type(#name_).stride = sizeof(Tarn##element_##Record);                                          \
    type(#name_).itemsOffset = offsetof(Tarn##name_##Record, items);                               \
    type(#name_).capacity = greatest_;                                                             \
    type(#name_).least = least_;                                                                   \
    type(#name_).greatest = greatest_;                                                             \
    COMPOSITE_CHILD(name_, element_, repeated, always, offsetof(Tarn##name_##Record, items))
#define PRIMITIVE_SLOT(owner_, child_, presence_, condition_)                                      \
    add_slot(                                                                                      \
        type(#owner_).slots,                                                                       \
        {#child_, &type(#child_), Presence::presence_, condition(#condition_), 0,                  \
         offsetof(Tarn##owner_##Record, child_),                                                   \
         [](void *owner, const void *value) {                                                      \
             return TarnAppend##child_##To##owner_##Ie(static_cast<Tarn##owner_##Ie *>(owner),     \
                                                       static_cast<const Tarn##child_ *>(value));  \
         },                                                                                        \
         [](void *owner, void *value) {                                                            \
             return TarnExtract##child_##From##owner_##Ie(static_cast<Tarn##owner_##Ie *>(owner),  \
                                                          static_cast<Tarn##child_ *>(value));     \
         }});
#define COMPOSITE_SLOT(owner_, child_, presence_, condition_)                                      \
    COMPOSITE_CHILD(owner_, child_, presence_, condition_, offsetof(Tarn##owner_##Record, child_))
#define SECOND_SLOT(owner_, child_, member_, presence_, condition_)                                \
    add_slot(type(#owner_).slots,                                                                  \
             {#member_, &type(#child_), Presence::presence_, condition(#condition_), 0,            \
              offsetof(Tarn##owner_##Record, member_), nullptr, nullptr});
#include "catalogue/composite_ies.def"
}

// ---- Messages ----------------------------------------------------------------------------------

// `given_` casts what is appended to what the operation takes.
#define MESSAGE_SLOT(owner_, child_, presence_, condition_, given_, fetched_, append_, extract_)   \
    add_slot(messagesByName.at(#owner_)->slots,                                                    \
             {#child_, &type(#child_), Presence::presence_, condition(#condition_), 0,             \
              offsetof(Tarn##owner_##Record, child_),                                              \
              [](void *msg, const void *given) {                                                   \
                  return append_(static_cast<TarnMsg *>(msg), given_(const_cast<void *>(given)));  \
              },                                                                                   \
              [](void *msg, void *fetched) {                                                       \
                  return extract_(static_cast<TarnMsg *>(msg), static_cast<fetched_>(fetched));    \
              }});

void Tables::fill_messages() { // NOLINT(readability-function-size)
#define MESSAGE(name_, id_, rule_, append_token_, validity_token_, pack_token_, term_)             \
    {                                                                                              \
        Message &m = storedMessages_.emplace_back();                                               \
        messages.push_back(&m);                                                                    \
        messagesByName[#name_] = &m;                                                               \
        m.name = #name_;                                                                           \
        m.term = term_;                                                                            \
        m.rule = UnpackRule::rule_;                                                                \
        m.id = id_;                                                                                \
        m.appendToken = append_token_;                                                             \
        m.validityToken = validity_token_;                                                         \
        m.packToken = pack_token_;                                                                 \
        m.recordSize = sizeof(Tarn##name_##Record);                                                \
        m.create = TarnNew##name_##Msg;                                                            \
        m.isValid = TarnIs##name_##MsgValid;                                                       \
        m.pack = TarnPack##name_##Msg;                                                             \
        m.unpack = TarnUnpack##name_##Msg;                                                         \
        m.build = [](std::uint8_t *buffer, std::uint32_t size, const void *record) {               \
            return TarnBuild##name_##Msg(buffer, size,                                             \
                                         static_cast<const Tarn##name_##Record *>(record));        \
        };                                                                                         \
        m.get = [](const std::uint8_t *buffer, std::uint32_t length, void *record) {               \
            return TarnGet##name_##Msg(buffer, length,                                             \
                                       static_cast<Tarn##name_##Record *>(record));                \
        };                                                                                         \
        MESSAGE_SLOT(name_, MessageId, mandatory, always, *static_cast<TarnMessageId *>,           \
                     TarnMessageId *, TarnAppendMessageIdTo##name_##Msg,                           \
                     TarnExtractMessageIdFrom##name_##Msg)                                         \
    }
#define PRIMITIVE_SLOT(owner_, child_, presence_, condition_)                                      \
    MESSAGE_SLOT(owner_, child_, presence_, condition_, static_cast<Tarn##child_ *>,               \
                 Tarn##child_ *, TarnAppend##child_##To##owner_##Msg,                              \
                 TarnExtract##child_##From##owner_##Msg)
#define COMPOSITE_SLOT(owner_, child_, presence_, condition_)                                      \
    MESSAGE_SLOT(owner_, child_, presence_, condition_, static_cast<Tarn##child_##Ie *>,           \
                 Tarn##child_##Ie **, TarnAppend##child_##IeTo##owner_##Msg,                       \
                 TarnExtract##child_##IeFrom##owner_##Msg)
#include "catalogue/messages.def"
    std::sort(messages.begin(), messages.end(),
              [](const Message *a, const Message *b) { return a->id < b->id; });
}

// The tags of what conditions look for.
enum Tag : std::uint32_t {
#define SCALAR(name_, tag_, ...) tag##name_ = tag_,
#include "catalogue/primitive_ies.def"
};

// Becomes a pointer to whichever IE a predicate takes.
struct AnyIe {
    const void *ie;
    template <class Ie>
    operator const Ie *() const {
        return static_cast<const Ie *>(ie);
    }
};

const Tables &tables() {
    static const Tables all;
    return all;
}

} // namespace

const std::vector<Condition> &conditions() {
    constexpr bool inside = true;
    constexpr bool outside = false;
    static const std::vector<Condition> all = {
#define CONDITION(name_, predicate_, ie_, values_, counts_, call_)                                 \
    {#name_,                                                                                       \
     #predicate_,                                                                                  \
     tag##ie_,                                                                                     \
     values_,                                                                                      \
     counts_,                                                                                      \
     [](const TarnMsg *msg, [[maybe_unused]] const void *ie) { return predicate_ call_; }},
#define CONDITION_FOR_MSG(name_, predicate_, ie_, values_, counts_, meaning_)                      \
    CONDITION(name_, predicate_, ie_, values_, counts_, (msg))
#define CONDITION_FOR_IE(name_, predicate_, ie_, values_, counts_, meaning_)                       \
    CONDITION(name_, predicate_, ie_, values_, counts_, (msg, AnyIe{ie}))
#include "catalogue/conditions.def"
    };
    return all;
}

const std::vector<const Type *> &types() {
    return tables().types;
}

const std::vector<const Message *> &messages() {
    return tables().messages;
}

const Type *type_by_tag(std::uint32_t tag) {
    static const auto all = [] {
        std::array<const Type *, 256> made{}; // more than the protocol has
        for (const Type *type : types())
            if (type->tag != 0)
                made.at(type->tag) = type;
        return made;
    }();
    return tag < all.size() ? all[tag] : nullptr;
}

const Type *type_by_name(std::string_view name) {
    const auto found = tables().typesByName.find(name);
    return found == tables().typesByName.end() ? nullptr : found->second;
}

const Message *message_by_id(std::uint32_t id) {
    for (const Message *message : messages())
        if (message->id == id)
            return message;
    return nullptr;
}

const Message *message_by_name(std::string_view name) {
    const auto found = tables().messagesByName.find(name);
    return found == tables().messagesByName.end() ? nullptr : found->second;
}

} // namespace protocol
