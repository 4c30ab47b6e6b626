#include "tarn/value_walk.h"

#include "tarn/wording.h"

namespace tool {

namespace {

struct Nested {
    const Type &type;
    const std::string &path;
    std::uint32_t declared;
    std::uint32_t start; // of the value
};

std::string indexed(const std::string &path, std::uint32_t index) {
    return path + "[" + std::to_string(index) + "]";
}

std::string wrong_width(const Type &type, std::uint32_t declared) {
    return "its length field says " + std::to_string(declared) + ", where " + type.name +
           " takes exactly " + counted(type.width, "byte");
}

std::string too_few_left(std::uint32_t declared, std::uint32_t left) {
    return "its length field says " + std::to_string(declared) + ", but only " +
           counted(left, "byte") + (left == 1 ? " remains" : " remain");
}

// A scalar or byte string, whose value the library reads in one step.
Fault read_leaf(const Nested &leaf, void *value, Input *in) {
    std::uint32_t consumed = 0;
    if (leaf.type.unpack(value, leaf.declared, in->here(), in->left(), &consumed) != 0) {
        in->at += consumed;
        return {};
    }
    const std::uint32_t lengthField = leaf.start - headerSize + tagSize;
    if (leaf.type.shape == Shape::scalar && leaf.declared != leaf.type.width)
        return Finding{lengthField, leaf.path, wrong_width(leaf.type, leaf.declared)};
    if (leaf.declared > in->left())
        return Finding{lengthField, leaf.path, too_few_left(leaf.declared, in->left())};
    return Finding{lengthField, leaf.path,
                   "its length field says " + std::to_string(leaf.declared) + ", more than the " +
                       std::to_string(leaf.type.capacity) + " bytes that " + leaf.type.name +
                       " can hold"};
}

// Members are bounded by the bytes that remain and not by the record, but each must begin before
// the record's length is used up.
Fault read_record(const Nested &record, void *value, Input *in, std::vector<Finding> *notes) {
    for (const protocol::Member &member : record.type.members) {
        const std::string path = record.path + "." + member.name;
        if (in->at - record.start >= record.declared)
            return Finding{in->at, path,
                           "missing: the length of " + label(record.type) + " is used up after " +
                               counted(in->at - record.start, "byte")};
        Fault fault =
            read_primitive(*member.type, at_offset(value, member.offset), path, in, notes);
        if (fault)
            return fault;
    }
    return {};
}

Fault read_list(const Nested &list, void *value, Input *in, std::vector<Finding> *notes) {
    std::uint32_t count = 0;
    while (in->at - list.start < list.declared) {
        const std::string path = indexed(list.path, count);
        if (count == list.type.capacity)
            return Finding{in->at, path,
                           "one more than the " + std::to_string(count) + " items that " +
                               list.type.name + " can hold"};
        Fault fault =
            read_primitive(*list.type.item, item_at(list.type, value, count), path, in, notes);
        if (fault)
            return fault;
        store_count(value, ++count);
    }
    return {};
}

Fault find_invalid_member(const Type &record, const void *value, const std::string &path,
                          std::uint32_t at) {
    for (const protocol::Member &member : record.members) {
        const void *part = at_offset(value, member.offset);
        Fault fault = find_invalid(*member.type, part, path + "." + member.name, at);
        if (fault)
            return fault;
        at += headerSize + member.type->sizeOf(part);
    }
    return {};
}

Fault find_invalid_item(const Type &list, const void *value, const std::string &path,
                        std::uint32_t at) {
    for (std::uint32_t i = 0; i < count_of(value); ++i) {
        const void *item = item_at(list, value, i);
        Fault fault = find_invalid(*list.item, item, indexed(path, i), at);
        if (fault)
            return fault;
        at += headerSize + list.item->sizeOf(item);
    }
    return {};
}

} // namespace

std::uint32_t Input::tag() const {
    std::uint16_t tag = 0;
    TarnExtractTagFromBuffer(&tag, here(), left());
    return tag;
}

Fault read_header(const Type &type, const std::string &path, Input *in, std::uint32_t *length) {
    if (in->left() == 0)
        return Finding{in->at, path, "missing: the bytes end before " + label(type)};
    if (in->left() >= tagSize && in->tag() != type.tag)
        return Finding{in->at, path,
                       "expected " + label(type) + ", found " + label_of_tag(in->tag())};
    if (in->left() < headerSize)
        return Finding{in->at, path,
                       "truncated header: tag and length take 6 bytes, but only " +
                           std::to_string(in->left()) + (in->left() == 1 ? " remains" : " remain")};
    TarnExtractLengthFromBuffer(length, in->here() + tagSize, in->left() - tagSize);
    in->at += headerSize;
    return {};
}

Fault read_primitive(const Type &type, void *value, const std::string &path, Input *in,
                     std::vector<Finding> *notes) {
    const Input start = *in;
    std::uint32_t declared = 0;
    if (Fault fault = read_header(type, path, in, &declared))
        return fault;
    const Nested nested{type, path, declared, in->at};
    const bool isLeaf = type.shape == Shape::scalar || type.shape == Shape::bytes;
    Fault fault;
    if (isLeaf)
        fault = read_leaf(nested, value, in);
    else if (declared > in->left())
        fault = Finding{start.at + tagSize, path, too_few_left(declared, in->left())};
    else
        fault = type.shape == Shape::record ? read_record(nested, value, in, notes)
                                            : read_list(nested, value, in, notes);
    if (!fault && !isLeaf)
        note_length(type, path, start.at, declared, in->at - nested.start, notes);
    return fault;
}

Fault find_invalid(const Type &type, const void *value, const std::string &path, std::uint32_t at) {
    const std::uint32_t valueAt = at + headerSize;
    if (type.isValid(value) != 0)
        return {};
    if (type.shape == Shape::record)
        return find_invalid_member(type, value, path, valueAt);
    const std::string fault = type.shape == Shape::scalar
                                  ? number_fault(type, scalar_of(type, value))
                                  : count_fault(type, count_of(value));
    if (fault.empty() && type.shape == Shape::list)
        return find_invalid_item(type, value, path, valueAt);
    return Finding{valueAt, path, fault};
}

void note_length(const Type &type, const std::string &path, std::uint32_t headerAt,
                 std::uint32_t declared, std::uint32_t taken, std::vector<Finding> *notes) {
    if (declared != taken)
        notes->push_back(
            {headerAt + tagSize, path,
             "its length field says " + std::to_string(declared) + ", but the " +
                 (type.shape == Shape::list || type.shape == Shape::compositeList ? "items"
                                                                                  : "parts") +
                 " read take " + counted(taken, "byte")});
}

} // namespace tool
