#include "pages.h"
#include "sizes.h"
#include "words.h"

#include <algorithm>

namespace header_writer {
namespace {

constexpr const char *primitive_contract =
    R"(The primitive IEs: IEs that hold a value. For each IE X stand here its value type TarnX, its IE
object type TarnXIe, its tag TarnXTag, and seven operations. Some types travel only inside others or have no tag at
all; these have no IE object and only the first four operations.

Values come in four shapes:

  scalar       An unsigned integer, 1, 2 or 4 bytes on the wire. A code word (a cause, type, mode
               or flag) is a uint32_t of which only the low 16 bits travel.
  byte string  A length and an array of opaque bytes. Only the bytes travel.
  record       Members in a fixed order, each with its own tag and length. None may be missing.
  list         A count and an array of items, each with the item's tag and length. The count does
               not travel.

TarnSizeOfX returns the bytes that the value takes on the wire, the IE's own header not counted: the
width of a scalar, the stored length of a byte string, and for records and lists the sum over
members or items of their sizes and 6 bytes of header each.

TarnPackX writes the bare value to buffer and its size to *written. It fails if fewer bytes are
available than the value takes, or if a stored length or count is beyond its array; ranges it does
not check.

TarnUnpackX reads a bare value, whose IE declared `length` bytes, into *value and sets *consumed. A
scalar needs exactly its width. A byte string takes any length up to its array's. A record takes
its members in order and looks at nothing behind the last one. A list takes items until length is
used up, and no more than its array holds. All fail if fewer than length bytes are available, or if
a member or an item has another tag than the one expected or fails itself. Ranges are not checked:
see TarnIsXValid.

  When these two fail, *written and *consumed stay as they were for scalars and byte strings,
  and tell the bytes handled before the failing point for records and lists; of a member or
  item whose value fails, these are its 6 bytes of header. A scalar and a byte string that fail
  to unpack stay as they were, and so does a list of more items than its array holds; else
  members or items of a record or list that were read before the failing point are set.

TarnIsXValid returns 1 if the value is in range: a scalar's number, a byte string's length, every
member of a record, the count and every item of a list. Appending to a message or a composite IE
checks this, and so does unpacking one.

TarnPackXIe writes the whole IE, header and value, to buffer and its size to *written. When it
fails, *written is 0 if the IE does not fit and 6 if its value does not pack.

TarnUnpackXIe reads the whole IE from buffer into ie->value and sets *consumed. Neither the tag in
ie nor anything else of its head is read or written, and ranges are not checked. When it fails,
*consumed is 0 if the tag is missing or wrong, 2 if the length is missing, and 6 if the value does
not unpack. The container is not used and may be null.

TarnIsXIeValid returns 1 if ie has the tag of X and a valid value. The container is not used and may
be null.

Ownership. All values, IE objects, buffers and counts are the caller's, and are not kept. An IE
object for these operations may stand anywhere, also on the stack: set ie.tag, which packing and
validity read.

Fatal. Every pointer but the container is required; a null one is reported, and the operation fails.
)";

std::string with_header(const Catalogue &catalogue, const Primitive &row) {
    const WireSize size = value_size(catalogue, row);
    return bytes_text(size.least + ieHeaderSize, size.greatest + ieHeaderSize);
}

bool is_code_word(const Primitive &row) {
    return row.type == "uint32_t" && row.width == 2;
}

std::string scalar_text(const Catalogue &catalogue, const Primitive &row) {
    const std::string type = is_code_word(row) ? "A code word" : "A " + row.type;
    const std::string wire = bytes_text(row.width, row.width) + " on the wire";
    return type + ", " + range_text(row) + "; " + wire +
           (row.form == Form::free ? "."
                                   : ", " + with_header(catalogue, row) + " with its header.");
}

std::string structured_text(const Catalogue &catalogue, const Primitive &row) {
    if (row.shape == Shape::list)
        return "A list of " + count_text(row.least, row.greatest) + " " + row.members.front() +
               ", each under tag " + std::to_string(catalogue.primitive(row.members.front()).tag) +
               "; ";
    std::string text = "A record of ";
    for (const std::string &member : row.members)
        text += (&member == &row.members.front() ? "" : ", ") + member + " (tag " +
                std::to_string(catalogue.primitive(member).tag) + ")";
    return text + "; ";
}

std::string value_text(const Catalogue &catalogue, const Primitive &row) {
    if (row.shape == Shape::scalar)
        return scalar_text(catalogue, row);
    const std::string wire =
        row.form == Form::free
            ? bytes_text(value_size(catalogue, row).least, value_size(catalogue, row).greatest) +
                  " on the wire."
            : with_header(catalogue, row) + " on the wire with its header.";
    if (row.shape == Shape::bytes)
        return "A byte string of " + range_text(row) + "; " + wire;
    return structured_text(catalogue, row) + wire;
}

std::string form_text(const Catalogue &catalogue, const Primitive &row) {
    if (row.form == Form::ie)
        return "";
    if (row.form == Form::free)
        return " It has no tag: no IE, message or other type carries it.";
    return " It travels only as an item of " + catalogue.list_of(row).name + ".";
}

void write_entry(Page &page, const Catalogue &catalogue, const Primitive &row) {
    const std::string tag =
        row.form == Form::free
            ? ", no tag"
            : (row.form == Form::item ? ", item tag " : ", tag ") + std::to_string(row.tag);
    page.entry(row.name + tag,
               row.term + ".\n\n" + value_text(catalogue, row) + form_text(catalogue, row));
}

void write_value_type(Page &page, const Primitive &row) {
    const std::string type = "Tarn" + row.name;
    const std::string array = "[" + std::to_string(row.capacity) + "]";
    std::vector<Member> members;
    switch (row.shape) {
    case Shape::scalar:
        page.line("typedef " + row.type + " " + type + ";");
        page.line();
        return;
    case Shape::bytes:
        members = {{"uint32_t length", ""}, {"uint8_t bytes" + array, ""}};
        break;
    case Shape::record:
        for (const std::string &member : row.members)
            members.push_back({"Tarn" + member + " " + member, ""});
        break;
    case Shape::list:
        members = {{"uint32_t count", ""}, {"Tarn" + row.members.front() + " items" + array, ""}};
        break;
    }
    page.structure(type, members);
}

bool has_one_size(const Catalogue &catalogue, const Primitive &row) {
    return row.shape == Shape::scalar ||
           (row.shape == Shape::record &&
            std::all_of(row.members.begin(), row.members.end(), [&](const std::string &member) {
                return has_one_size(catalogue, catalogue.primitive(member));
            }));
}

std::string size_text(const Catalogue &catalogue, const Primitive &row) {
    if (row.shape == Shape::bytes)
        return "returns the stored length.";
    if (has_one_size(catalogue, row))
        return "returns " + std::to_string(value_size(catalogue, row).least) + ".";
    return "returns the value's bytes on the wire.";
}

std::string pack_text(const Primitive &row) {
    std::string success = "packs *value and sets *written, returning 1 on success and 0 ";
    const std::string capacity = std::to_string(row.capacity);
    switch (row.shape) {
    case Shape::scalar:
        return success + "if fewer than " + bytes_text(row.width, row.width) + " are available.";
    case Shape::bytes:
        return success + "if it does not fit or its length is above " + capacity + ".";
    case Shape::record:
        return success + "if it does not fit or a member does not pack.";
    case Shape::list:
        return success + "if it does not fit, its count is above " + capacity +
               " or an item does not pack.";
    }
    return success;
}

std::string unpack_text(const Primitive &row) {
    std::string success = "sets *value and *consumed, returning 1 on success and 0 ";
    const std::string capacity = std::to_string(row.capacity);
    switch (row.shape) {
    case Shape::scalar:
        return success + "if length is not " + std::to_string(row.width) +
               " or fewer bytes are available.";
    case Shape::bytes:
        return success + "if length is above " + capacity + " or fewer bytes are available.";
    case Shape::record:
        return success + "if a member is missing or malformed.";
    case Shape::list:
        return success + "if an item is malformed or there are more than " + capacity + ".";
    }
    return success;
}

std::string valid_text(const Primitive &row) {
    const std::string range = bound_text(row.least, row.greatest);
    switch (row.shape) {
    case Shape::scalar:
        return takes_any_value(row) ? "returns 1: every value is valid."
                                    : "returns 1 if *value is " + range + ", and 0 otherwise.";
    case Shape::bytes:
        return "returns 1 if the length is " + range + ", and 0 otherwise.";
    case Shape::record:
        return "returns 1 if every member is valid, and 0 otherwise.";
    case Shape::list:
        return "returns 1 if the count is " + range + " and every item is valid, and 0 otherwise.";
    }
    return "";
}

void write_value_operations(Page &page, const Catalogue &catalogue, const Primitive &row) {
    const std::string type = "Tarn" + row.name;
    const std::string value = "const " + type + " *value";
    page.function("uint32_t", "TarnSizeOf" + row.name, {value}, size_text(catalogue, row));
    page.function("uint32_t", "TarnPack" + row.name,
                  {value, "uint8_t *buffer", "uint32_t available", "uint32_t *written"},
                  pack_text(row));
    page.function("uint32_t", "TarnUnpack" + row.name,
                  {type + " *value", "uint32_t length", "const uint8_t *buffer",
                   "uint32_t available", "uint32_t *consumed"},
                  unpack_text(row));
    page.function("uint32_t", "TarnIs" + row.name + "Valid", {value}, valid_text(row));
}

void write_ie_operations(Page &page, const Primitive &row) {
    const std::string type = "Tarn" + row.name + "Ie";
    const std::string ie = "const " + type + " *ie";
    page.function("uint32_t", "TarnPack" + row.name + "Ie",
                  {ie, "uint8_t *buffer", "uint32_t available", "uint32_t *written"},
                  "packs ie and sets *written, returning 1 on success and 0 on failure.");
    page.function("uint32_t", "TarnUnpack" + row.name + "Ie",
                  {"const void *container", type + " *ie", "const uint8_t *buffer",
                   "uint32_t available", "uint32_t *consumed"},
                  "sets ie->value and *consumed, returning 1 on success and 0 on failure.");
    page.function("uint32_t", "TarnIs" + row.name + "IeValid", {"const void *container", ie},
                  "returns 1 if ie has tag " + std::to_string(row.tag) +
                      " and a valid value, and 0 otherwise.");
}

std::string section_of(const Primitive &row) {
    if (row.shape == Shape::scalar)
        return "Scalars";
    return row.shape == Shape::bytes ? "Byte strings" : "Records and lists";
}

} // namespace

Page primitive_header(const Catalogue &catalogue) {
    Page page;
    page.begin_header("TARN_IF_PRIMITIVE_IES_H", primitive_contract, {"tarn_if_objects.h"});
    std::string section;
    for (const Primitive &row : catalogue.primitives) {
        if (section != section_of(row)) {
            section = section_of(row);
            page.chapter(section);
        }
        write_entry(page, catalogue, row);
        if (row.form == Form::ie)
            page.constants({{"Tarn" + row.name + "Tag", std::to_string(row.tag)}});
        write_value_type(page, row);
        if (row.form == Form::ie)
            page.structure("Tarn" + row.name + "Ie",
                           {{"TarnIe ie", ""}, {"Tarn" + row.name + " value", ""}});
        write_value_operations(page, catalogue, row);
        if (row.form == Form::ie)
            write_ie_operations(page, row);
    }
    page.end_header();
    return page;
}

} // namespace header_writer
