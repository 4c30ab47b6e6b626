// The rows as the Python module reads them, and the types that it shows to type checkers.
#include "pages.h"
#include "sizes.h"

namespace header_writer {
namespace {

constexpr const char *notice =
    "# Written by header_writer from the rows in src/catalogue; do not edit: change the rows or\n"
    "# tools/header_writer, then run `cmake --build --preset release --target tarn_headers`.\n\n";

std::string quoted(const std::string &text) {
    return "\"" + text + "\"";
}

std::string numbers(std::initializer_list<uint32_t> values) {
    std::string text;
    for (const uint32_t value : values)
        text += (text.empty() ? "" : ", ") + std::to_string(value);
    return text;
}

std::string memory_width(const Primitive &row) {
    return row.type == "uint32_t" ? "4" : row.type == "uint16_t" ? "2" : "1";
}

// ---- The rows ----------------------------------------------------------------------------------

std::string row_text(const Primitive &row) {
    std::string text = "    " + quoted(row.name) + ": (" + std::to_string(row.tag) + ", ";
    switch (row.shape) {
    case Shape::scalar:
        return text + memory_width(row) + ", " + numbers({row.width, row.least, row.greatest}) +
               "),\n";
    case Shape::bytes:
        return text + numbers({row.capacity, row.least, row.greatest}) + "),\n";
    case Shape::list:
        return text + quoted(row.members.front()) + ", " +
               numbers({row.capacity, row.least, row.greatest}) + "),\n";
    case Shape::record:
        break;
    }
    text += "(";
    for (const std::string &member : row.members)
        text += quoted(member) + ", ";
    return text + ")),\n";
}

std::string primitive_table(const Catalogue &catalogue, const std::string &name, Shape shape,
                            const std::string &columns) {
    std::string text = "# " + columns + "\n" + name + " = {\n";
    for (const Primitive &row : catalogue.primitives)
        if (row.shape == shape)
            text += row_text(row);
    return text + "}\n\n";
}

std::string slot_names(const std::vector<Slot> &slots) {
    const std::vector<uint32_t> bits = presence_bits(slots);
    std::string text = "(\n";
    for (size_t i = 0; i < slots.size(); ++i)
        text += "        (" + quoted(slots[i].member) + ", " + quoted(slots[i].child) + ", " +
                std::to_string(bits[i]) +
                (slots[i].presence == Presence::repeated ? ", True" : "") + "),\n";
    return text + "    )";
}

std::string composite_tables(const Catalogue &catalogue) {
    std::string sequences = "# tag; member, type, presence bit (0 for a mandatory one)\n"
                            "SEQUENCES = {\n";
    std::string lists = "# tag, element, least and greatest count\nCOMPOSITE_LISTS = {\n";
    for (const Composite &row : catalogue.composites) {
        const std::string head = "    " + quoted(row.name) + ": (" + std::to_string(row.tag) + ", ";
        if (row.is_list())
            lists +=
                head + quoted(row.element) + ", " + numbers({row.least, row.greatest}) + "),\n";
        else
            sequences += head + slot_names(row.slots) + "),\n";
    }
    return sequences + "}\n\n" + lists + "}\n\n";
}

std::string message_table(const Catalogue &catalogue) {
    std::string text = "# id, the most bytes that it takes; members as above, and True where\n"
                       "# an object may hold more than one\nMESSAGES = {\n";
    for (const Message &row : catalogue.messages)
        text += "    " + quoted(row.name) + ": (" +
                numbers({row.id, greatest_built_size(catalogue, row)}) + ", " +
                slot_names(row.slots) + "),\n";
    return text + "}\n";
}

// A mapping's type has a name of its own, since within a class the member of the same name hides
// it.
std::string dictionary_name(const std::string &name) {
    return name + "Ies";
}

// ---- The types ---------------------------------------------------------------------------------

std::string python_type(const Catalogue &catalogue, const std::string &name, bool composite) {
    if (composite) {
        const Composite &row = catalogue.composite(name);
        return row.is_list() ? "Sequence[" + dictionary_name(row.element) + "]"
                             : dictionary_name(name);
    }
    const Primitive &row = catalogue.primitive(name);
    switch (row.shape) {
    case Shape::scalar:
        return "int";
    case Shape::bytes:
        return "HexBytes";
    case Shape::record:
        return dictionary_name(name);
    case Shape::list:
        return name == "IpAddress"
                   ? "Address"
                   : "Sequence[" + python_type(catalogue, row.members.front(), false) + "]";
    }
    return "";
}

std::string slot_type(const Catalogue &catalogue, const Slot &slot) {
    const std::string type = python_type(catalogue, slot.child, slot.composite);
    return slot.presence == Presence::repeated ? "Sequence[" + type + "]" : type;
}

std::string dictionary(const Catalogue &catalogue, const Composite &row) {
    std::string mandatory;
    std::string optional;
    for (const Slot &slot : row.slots)
        (slot.presence == Presence::mandatory ? mandatory : optional) +=
            "    " + slot.member + ": " + slot_type(catalogue, slot) + "\n";
    const std::string name = dictionary_name(row.name);
    if (mandatory.empty())
        return "class " + name + "(TypedDict, total=False):\n" + optional + "\n";
    if (optional.empty())
        return "class " + name + "(TypedDict):\n" + mandatory + "\n";
    return "class _" + name + "(TypedDict):\n" + mandatory + "\nclass " + name + "(_" + name +
           ", total=False):\n" + optional + "\n";
}

std::string message_class(const Catalogue &catalogue, const Message &row) {
    std::string mandatory;
    std::string optional;
    std::string members;
    for (const Slot &slot : row.slots) {
        const std::string type = slot.member + ": " + slot_type(catalogue, slot);
        members += "    " + type + "\n";
        if (slot.presence == Presence::mandatory)
            mandatory += "        " + type + ",\n";
        else
            optional += "        " + type + " = ...,\n";
    }
    return "class " + row.name + "(Message):\n    \"\"\"" + row.term + ".\"\"\"\n\n" + members +
           "    def __init__(\n        self,\n        *,\n" + mandatory + optional +
           "    ) -> None: ...\n\n";
}

// What the types stand on, and the functions of the module.
constexpr const char *typesHead = R"(import ipaddress
import os
from collections.abc import Iterator, Mapping, Sequence
from typing import Any, ClassVar, TypedDict, Union

__version__: str

# Byte strings are hex digits in what was decoded; bytes may be given as well.
HexBytes = Union[str, bytes]
Address = Union[str, ipaddress.IPv4Address, Sequence[int]]

class Refused(ValueError):
    sentence: str
    path: str
    offset: int | None
    reason: str

class Message(Mapping[str, Any]):
    name: ClassVar[str]
    def __getitem__(self, ie: str) -> Any: ...
    def __iter__(self) -> Iterator[str]: ...
    def __len__(self) -> int: ...
    def __bytes__(self) -> bytes: ...
    def to_dict(self) -> dict[str, Any]: ...

class CaptureLine:
    packet: int
    time: str | None
    source: str | None
    destination: str | None
    verdict: str
    message: Message | None
    fault: dict[str, Any] | None
    bytes: bytes

def decode(data: bytes | bytearray | memoryview) -> Message: ...
def encode(values: Mapping[str, Any]) -> bytes: ...
def read_capture(path: str | os.PathLike[str], tool: str = ...) -> Iterator[CaptureLine]: ...

)";

} // namespace

std::string python_rows(const Catalogue &catalogue) {
    return "\"\"\"The protocol as rows.\"\"\"\n\n" + std::string(notice) +
           "INTERFACE_VERSION = \"39\"\n\n" +
           primitive_table(catalogue, "NUMBERS", Shape::scalar,
                           "tag, bytes in memory, bytes on the wire, least, greatest") +
           primitive_table(catalogue, "BYTES", Shape::bytes,
                           "tag, capacity, least and greatest length") +
           primitive_table(catalogue, "RECORDS", Shape::record, "tag, members") +
           primitive_table(catalogue, "LISTS", Shape::list,
                           "tag, item, capacity, least and greatest count") +
           composite_tables(catalogue) + message_table(catalogue);
}

std::string python_types(const Catalogue &catalogue) {
    std::string text = std::string(notice) + typesHead;
    for (const Primitive &row : catalogue.primitives) {
        if (row.shape != Shape::record)
            continue;
        text += "class " + dictionary_name(row.name) + "(TypedDict):\n";
        for (const std::string &member : row.members)
            text += "    " + member + ": " + python_type(catalogue, member, false) + "\n";
        text += "\n";
    }
    for (const Composite &row : catalogue.composites)
        if (!row.is_list())
            text += dictionary(catalogue, row);
    for (const Message &row : catalogue.messages)
        text += message_class(catalogue, row);
    return text;
}

} // namespace header_writer
