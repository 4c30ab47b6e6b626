#include "tarn/json_form.h"

#include "tarn/wording.h"

namespace tool {

namespace {

Json value_to_json(const Type &type, const void *value) {
    switch (type.shape) {
    case Shape::scalar:
        return scalar_of(type, value);
    case Shape::bytes:
        return compact_hex(bytes_of(value), count_of(value));
    case Shape::record: {
        Json object = Json::object();
        for (const protocol::Member &member : type.members)
            object[member.name] = value_to_json(*member.type, at_offset(value, member.offset));
        return object;
    }
    default: {
        if (is_ip_address(type))
            return dotted(type, value);
        Json array = Json::array();
        for (std::uint32_t i = 0; i < count_of(value); ++i)
            array.push_back(value_to_json(*type.item, item_at(type, value, i)));
        return array;
    }
    }
}

Json ie_to_json(const Type &type, const TarnIe *ie) {
    if (!type.is_composite())
        return value_to_json(type, protocol::value_of(static_cast<const void *>(ie)));
    const bool isList = type.shape == Shape::compositeList;
    Json json = isList ? Json::array() : Json::object();
    for (const Child &child : children({nullptr, const_cast<TarnIe *>(ie), type.slots})) {
        Json part = ie_to_json(child.type(), child.ie);
        if (isList)
            json.push_back(std::move(part));
        else
            json[child.slot->name] = std::move(part);
    }
    return json;
}

} // namespace

Json to_json(const TarnMsg &msg) {
    const Message &message = *protocol::message_by_id(msg.messageId);
    Json json = {{"message", message.name}};
    for (const Child &child : children({const_cast<TarnMsg *>(&msg), nullptr, message.slots}))
        if (child.slot != &message.slots.front()) // the MessageId
            json[child.slot->name] = ie_to_json(child.type(), child.ie);
    return json;
}

} // namespace tool
