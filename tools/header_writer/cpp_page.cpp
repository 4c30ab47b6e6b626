// The C++ header: records with typed members, and owners of objects, over the C interface.
#include "pages.h"
#include "sizes.h"
#include "words.h"

#include <algorithm>

namespace header_writer {
namespace {

constexpr const char *purpose =
    R"(libtarn for C++17: records and objects with types, over the C interface of tarn_if.h, which
stays at hand. Everything is inline and in namespace tarn; nothing throws, aborts or allocates but
where a std::vector is asked for. Where the C interface knows a fatal error (no bytes, no object, too
little room) a call here fails. docs/cpp.md is the guide.

Records. For each message M and each composite IE there is a struct M with the layout of the C
record. Its mandatory members are plain: `record.Srnti = 5`. An optional one is reached through a
function of its name, which returns an OptionalMember: `record.Imsi() = imsi`, `if (record.Imsi())`.
A list is a List with push_back and begin and end, a byte string a ByteString with assign and view.
M::id, M::name and M::max_size are its id, its name and the most bytes that it takes.

    build(record)           the bytes in a std::vector, or an error
    build(record, room)     the number of bytes written, or an error
    get<M>(bytes)           the record, if the bytes are an M, or an error
    visit(bytes, visitor)   calls the visitor with the record of whatever message the bytes hold

Objects. An MMsg owns a message object, an SIe a composite IE object until it is appended; an
MMsgRef and an SIeRef refer to one that something else owns. append_P and extract_P put in and take
out the IE P; each_P takes out all that are left of an IE that may repeat. Extracting marks an IE as
extracted, as tarn_if_objects.h tells. A Message owns a message of any type.)";

class Writer {
public:
    Writer(const Catalogue &catalogue, Page &page) : catalogue_(catalogue), page_(page) {}

    void values();
    void composite_records();
    void message_records();
    void composite_objects();
    void message_objects();
    void by_id(const std::string &head, const std::string &before, const std::string &behind,
               const std::string &otherwise);

private:
    void members(const std::vector<Slot> &slots);
    void optional_functions(const std::vector<Slot> &slots);
    void value_operations(const std::string &child, const std::string &owner);
    void composite_operations(const std::string &child, const std::string &owner, bool repeats);
    void operations(const std::vector<Slot> &slots, const std::string &owner);
    void each(const std::string &child, const std::string &value, const std::string &owner);
    void head(const std::string &type, const std::string &function);
    void wrapped(const std::string &head, const std::string &rest);

    const Catalogue &catalogue_;
    Page &page_;
};

// One statement, or two lines where it is too long for one.
void Writer::wrapped(const std::string &head, const std::string &rest) {
    constexpr size_t width = 100;
    if (head.size() + rest.size() <= width) {
        page_.line(head + rest);
        return;
    }
    const size_t indent = head.find_first_not_of(' ') + 4;
    page_.line(head);
    page_.line(std::string(indent, ' ') + rest);
}

std::string type_in_record(const Slot &slot) {
    return "tarn::" + slot.child;
}

// The head of a function, with the type on a line of its own where both do not fit.
void Writer::head(const std::string &type, const std::string &function) {
    const bool fits = 4 + type.size() + 1 + function.size() <= 100;
    if (!fits)
        page_.line("    " + type);
    page_.line("    " + (fits ? type + " " : std::string()) + function);
}

// ---- Records -----------------------------------------------------------------------------------

void Writer::values() {
    for (const Primitive &row : catalogue_.primitives) {
        const std::string using_ = "using " + row.name + " = ";
        if (row.shape == Shape::scalar)
            page_.line(using_ + "std::" + row.type + ";");
        else if (row.shape == Shape::bytes)
            page_.line(using_ + "ByteString<" + std::to_string(row.capacity) + ">;");
        else if (row.shape == Shape::list)
            page_.line(using_ + "List<" + row.members.front() + ", std::uint32_t, " +
                       std::to_string(row.capacity) + ">;");
        else {
            page_.line("struct " + row.name + " {");
            for (const std::string &member : row.members)
                page_.line("    tarn::" + member + " " + member + " = {};");
            page_.line("};");
        }
    }
    page_.line();
}

// The data of optional members ends with an underscore; the function of the plain name guards it.
void Writer::members(const std::vector<Slot> &slots) {
    page_.line("    std::uint8_t presence = 0;");
    for (const Slot &slot : slots)
        page_.line("    " + type_in_record(slot) + " " + slot.member +
                   (slot.presence == Presence::mandatory ? "" : "_") + " = {};");
}

void Writer::optional_functions(const std::vector<Slot> &slots) {
    const std::vector<uint32_t> bits = presence_bits(slots);
    for (size_t i = 0; i < slots.size(); ++i) {
        if (bits[i] == 0)
            continue;
        const std::string body = "return {" + slots[i].member + "_, presence, " + bit_text(bits[i]);
        for (const std::string &constness : {std::string(), std::string("const ")}) {
            head("OptionalMember<" + constness + type_in_record(slots[i]) + ">",
                 slots[i].member + "() " + constness + "{");
            page_.line("        " + body + "};");
            page_.line("    }");
        }
    }
}

void Writer::composite_records() {
    for (const Composite &row : catalogue_.composites) {
        page_.comment(row.term + ".");
        if (row.is_list()) {
            page_.line("using " + row.name + " = List<" + row.element + ", std::uint16_t, " +
                       std::to_string(row.greatest) + ">;");
            page_.line();
            continue;
        }
        page_.line("struct " + row.name + " {");
        members(row.slots);
        optional_functions(row.slots);
        page_.line("};");
        page_.line();
    }
}

void Writer::message_records() {
    for (const Message &row : catalogue_.messages) {
        page_.comment(row.term + ".");
        page_.line("struct " + row.name + " {");
        page_.line("    static constexpr std::uint8_t id = Tarn" + row.name + "MsgId;");
        page_.line("    static constexpr const char *name = \"" + row.name + "\";");
        page_.line("    static constexpr std::uint32_t max_size = " +
                   std::to_string(greatest_built_size(catalogue_, row)) + ";");
        page_.line("    using CRecord = Tarn" + row.name + "Record;");
        wrapped("    static constexpr auto c_build = ", "TarnBuild" + row.name + "Msg;");
        wrapped("    static constexpr auto c_get = ", "TarnGet" + row.name + "Msg;");
        page_.line();
        page_.line("    std::uint8_t MessageId = id;");
        members(row.slots);
        optional_functions(row.slots);
        page_.line("};");
        page_.line();
    }
}

// ---- Objects -----------------------------------------------------------------------------------

void Writer::value_operations(const std::string &child, const std::string &owner) {
    page_.line("    bool append_" + child + "(const " + child + " &value) const {");
    wrapped("        return append(", "TarnAppend" + child + "To" + owner + ", value);");
    page_.line("    }");
    page_.line("    std::optional<" + child + "> extract_" + child + "() const {");
    wrapped("        return extract<" + child + ">(",
            "TarnExtract" + child + "From" + owner + ");");
    page_.line("    }");
}

void Writer::each(const std::string &child, const std::string &value, const std::string &owner) {
    page_.line("    auto each_" + child + "() const {");
    wrapped("        return Extraction<" + owner + "Ref, " + value + ", ",
            "&" + owner + "Ref::extract_" + child + ">(*this);");
    page_.line("    }");
}

void Writer::composite_operations(const std::string &child, const std::string &owner,
                                  bool repeats) {
    page_.line("    bool append_" + child + "(" + child + "Ie &&child) const {");
    wrapped("        return append_ie(", "TarnAppend" + child + "IeTo" + owner + ", child);");
    page_.line("    }");
    head("std::optional<" + child + "IeRef>", "extract_" + child + "() const {");
    wrapped("        return extract_ie<" + child + "IeRef>(",
            "TarnExtract" + child + "IeFrom" + owner + ");");
    page_.line("    }");
    if (repeats)
        each(child, child + "IeRef", owner);
}

// A child that is named twice has one pair of operations, and may repeat.
void Writer::operations(const std::vector<Slot> &slots, const std::string &owner) {
    for (const Slot &slot : slots) {
        if (slot.second) {
            each(slot.child, slot.child, owner);
            continue;
        }
        if (slot.composite)
            composite_operations(slot.child, owner, slot.presence == Presence::repeated);
        else
            value_operations(slot.child, owner);
    }
}

void Writer::composite_objects() {
    for (const Composite &row : catalogue_.composites) {
        const std::string ie = row.name + "Ie";
        page_.line("class " + ie + "Ref : public ObjectRef<Tarn" + ie + "> {");
        page_.line("public:");
        page_.line("    using ObjectRef::ObjectRef;");
        page_.line("    static Handle create() { return TarnNew" + ie + "(); }");
        page_.line("    static void destroy(Handle ie) { TarnDeleteIe(&ie->ie); }");
        page_.line("    bool is_valid() const {");
        page_.line("        return TarnIs" + ie + "Valid(nullptr, handle_) != 0;");
        page_.line("    }");
        if (row.is_list())
            composite_operations(row.element, ie, true);
        else
            operations(row.slots, ie);
        page_.line("};");
        page_.line("using " + ie + " = Owned<" + ie + "Ref>;");
        page_.line();
    }
}

void Writer::message_objects() {
    for (const Message &row : catalogue_.messages) {
        const std::string msg = row.name + "Msg";
        page_.line("class " + msg + "Ref : public MessageRef {");
        page_.line("public:");
        page_.line("    using MessageRef::MessageRef;");
        page_.line("    static constexpr std::uint8_t type_id = Tarn" + msg + "Id;");
        page_.line("    static Handle create() { return TarnNew" + msg + "(); }");
        operations(row.slots, msg);
        page_.line("};");
        page_.line("using " + msg + " = Owned<" + msg + "Ref>;");
        page_.line();
    }
}

// A function that does something for each message by its id.
void Writer::by_id(const std::string &head, const std::string &before, const std::string &behind,
                   const std::string &otherwise) {
    page_.line(head + " {");
    page_.line("    switch (id) {");
    for (const Message &row : catalogue_.messages) {
        page_.line("    case Tarn" + row.name + "MsgId:");
        page_.line("        return " + before + row.name + behind + ";");
    }
    page_.line("    default:");
    page_.line("        return " + otherwise + ";");
    page_.line("    }");
    page_.line("}");
    page_.line();
}

} // namespace

std::string cpp_header(const Catalogue &catalogue) {
    Page page;
    page.notice();
    page.comment(purpose);
    page.line("#ifndef TARN_HPP");
    page.line("#define TARN_HPP");
    page.line();
    page.line("#include \"tarn_support.hpp\"");
    page.line();
    page.line("namespace tarn {");
    page.line();
    Writer writer(catalogue, page);
    page.chapter("Values");
    writer.values();
    page.chapter("Records of composite IEs");
    writer.composite_records();
    page.chapter("Records of messages");
    writer.message_records();
    page.chapter("Messages by id");
    page.line("namespace detail {");
    page.line();
    page.comment("The name of a message, or null for an id that is not in use.");
    writer.by_id("inline const char *name_of(std::uint32_t id)", "", "::name", "nullptr");
    writer.by_id("inline bool is_valid(std::uint32_t id, const TarnMsg *msg)", "TarnIs",
                 "MsgValid(msg) != 0", "false");
    writer.by_id("inline bool pack(std::uint32_t id, const TarnMsg *msg, Room room)", "TarnPack",
                 "Msg(msg, room.data(), size32(room.size())) != 0", "false");
    page.comment("Calls `use` with an empty record of the message, or with no argument for an id "
                 "that is not in use.");
    page.line("template <class Use>");
    writer.by_id("Error with_record(std::uint32_t id, Use &&use)", "use.template operator()<",
                 ">()", "use()");
    page.line("} // namespace detail");
    page.line();
    page.chapter("Objects of composite IEs");
    writer.composite_objects();
    page.chapter("Objects of messages");
    writer.message_objects();
    page.line("} // namespace tarn");
    page.line();
    page.line("#endif");
    return page.text();
}

} // namespace header_writer
