// The exported operations by message id and type.
#include "facts.h"

namespace info {

namespace {

struct Operations {
    MessageOperations messages[tarn::messageCount];
    IsValueValid values[tarn::typeCount];
    IsIeValid ies[tarn::typeCount];
};

constexpr Operations make_operations() {
    Operations all{};
#define MESSAGE(name_, id_, ...)                                                                   \
    all.messages[id_] = {TarnNew##name_##Msg,                                                      \
                         TarnIs##name_##MsgValid,                                                  \
                         TarnPack##name_##Msg,                                                     \
                         TarnUnpack##name_##Msg,                                                   \
                         [](std::uint8_t *buffer, std::uint32_t size, const void *record) {        \
                             return TarnBuild##name_##Msg(                                         \
                                 buffer, size, static_cast<const Tarn##name_##Record *>(record));  \
                         },                                                                        \
                         [](const std::uint8_t *buffer, std::uint32_t length, void *record) {      \
                             return TarnGet##name_##Msg(                                           \
                                 buffer, length, static_cast<Tarn##name_##Record *>(record));      \
                         }};
#include "catalogue/messages.def"
#define VALUE(name_)                                                                               \
    all.values[tarn::type##name_] = [](const void *value) {                                        \
        return TarnIs##name_##Valid(static_cast<const Tarn##name_ *>(value));                      \
    };
#define IE(name_)                                                                                  \
    all.ies[tarn::type##name_] = [](const TarnIe *ie) {                                            \
        return TarnIs##name_##IeValid(nullptr, reinterpret_cast<const Tarn##name_##Ie *>(ie));     \
    };
#define SCALAR(name_, ...)      VALUE(name_) IE(name_)
#define BYTES(name_, ...)       VALUE(name_) IE(name_)
#define RECORD(name_, ...)      VALUE(name_) IE(name_)
#define LIST(name_, ...)        VALUE(name_) IE(name_)
#define ITEM_SCALAR(name_, ...) VALUE(name_)
#define ITEM_RECORD(name_, ...) VALUE(name_)
#define FREE_SCALAR(name_, ...) VALUE(name_)
#define FREE_RECORD(name_, ...) VALUE(name_)
#include "catalogue/primitive_ies.def"
#define SEQUENCE(name_, ...)       IE(name_)
#define COMPOSITE_LIST(name_, ...) IE(name_)
#include "catalogue/composite_ies.def"
    return all;
}

const Operations operations = make_operations();

} // namespace

const MessageOperations &operations_of(std::uint32_t id) {
    return operations.messages[id < tarn::messageCount ? id : 0];
}

IsValueValid value_validator(const TarnInfoType &type) {
    return operations.values[&type - facts.types];
}

IsIeValid ie_validator(const TarnInfoType &type) {
    return operations.ies[&type - facts.types];
}

} // namespace info
