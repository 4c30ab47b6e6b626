#include "pages.h"
#include "sizes.h"
#include "words.h"

#include <set>

namespace header_writer {
namespace {

constexpr const char *composite_contract =
    R"(The composite IEs: IEs whose value is other IEs, their children. For each composite IE C stand here
its tag TarnCTag, its IE object type TarnCIe, its record type TarnCRecord, and its operations.

A sequence has a fixed table of children, given in its comment in wire order with the mandatory ones
first. A list repeats one composite element.

TarnNewCIe returns a new IE object without children. The caller owns it until it appends it to its
parent, or releases it with TarnDeleteIe(&c->ie).

TarnAppendPToCIe appends a primitive child: a new IE object of the library's with a copy of *value.
It fails if the value is invalid, and then changes nothing. TarnAppendSIeToCIe appends a composite
child: the very object that the caller created, which the parent owns from then on. Neither looks at
order or number, so append the children in the order of the table: packing keeps the order of
appending, and unpacking accepts the children only in the order of the table. Where the table has
one child twice, the first append fills its first place and the second append its second one.

TarnExtractPFromCIe copies the value of the next P that was not extracted yet to *value, and leaves
*value as it was if there is none. TarnExtractSIeFromCIe lends the address of the next S that was
not extracted yet, which remains the parent's, and sets the pointer to null if there is none. See
tarn_if_objects.h for the extract history.

TarnPackCIe writes the IE with all IEs below it to buffer and sets *written. It applies none of the
rules of presence and order. It fails, with *written 0 and nothing written, if the IE does not fit,
and with *written telling the bytes before the failing point if a child is none of C's or does not
pack.

TarnUnpackCIe reads the IE from buffer into ie, an object without children, and sets *consumed. Each
child is unpacked and must be valid. With 0 bytes available it succeeds with *consumed 0: whether an
IE may be missing is for its parent to say. It fails with *consumed 0 if the tag is missing or
wrong, and with 2 if the length is missing.

  Sequence. The length field is not used: children are taken from all the bytes available, in
  the order of the table, and *consumed counts the header and the children taken. An optional
  child that is absent, malformed or invalid is left out, and the next one is tried at the
  same place. A mandatory child that is so fails the IE.

  List. Elements are taken until the bytes that the length field declares are used up. It fails
  if an element is malformed, invalid or goes beyond those bytes, or if the buffer ends first.

  When it fails, *consumed tells the bytes before the failing child, and ie keeps the children
  that were taken before; the failed child is released with all below it.

TarnIsCIeValid returns 1 if the IE object has the tag of C and its children obey its rules, and 0
otherwise, also for a null ie, which is not fatal here.

  Sequence. Each mandatory child must stand valid at its place. Behind them, the optional
  children may stand in any order and number, and their own validity does not count. Another
  IE is refused there up to the number of places in the table; behind that anything is
  ignored. A conditional child must stand valid exactly if its condition holds.

  List. The number of elements must be in range, each must be valid, and nothing else may stand
  between them.

TarnCRecord is the form that C has in the records of the messages, for the one-call Build and Get
(tarn_if_messages.h). A sequence begins with a presence mask in which each optional or conditional
child has the bit that stands beside its member; then follows one member per child in the order of
the table. A list is a count and an array for as many elements as are valid at most.

Fatal. Every pointer but msg is required, but for TarnIsCIeValid; a null one is reported, and the
operation fails. The msg argument is not used and may be null.

How they nest, from those that are in no other one; messages hold composites of any level:
)";

void add_nesting(std::string &lines, const Catalogue &catalogue, const Composite &row,
                 size_t indent) {
    lines += std::string(indent, ' ') + row.name + "\n";
    for (const std::string &child : row.composites())
        add_nesting(lines, catalogue, catalogue.composite(child), indent + 2);
}

std::string nesting(const Catalogue &catalogue) {
    std::set<std::string> inner;
    for (const Composite &row : catalogue.composites)
        for (const std::string &child : row.composites())
            inner.insert(child);
    std::string lines = "\n";
    for (const Composite &row : catalogue.composites)
        if (inner.count(row.name) == 0)
            add_nesting(lines, catalogue, row, 2);
    return lines;
}

std::string composite_rule(UnpackRule rule) {
    return rule == UnpackRule::refuseUncalled
               ? "\nUnpacking fails if a conditional child is missing although its condition "
                 "holds, and also if one stands there that is invalid or whose condition does not "
                 "hold."
               : "";
}

std::string layout_text(const Catalogue &catalogue, const Composite &row) {
    if (row.is_list())
        return "List of " + count_text(row.least, row.greatest) + " " + row.element + " (tag " +
               std::to_string(catalogue.composite(row.element).tag) + ").";
    return "Sequence of:\n\n" + slot_table(catalogue, row.slots) + composite_rule(row.rule);
}

void write_types(Page &page, const Composite &row) {
    page.constants({{"Tarn" + row.name + "Tag", std::to_string(row.tag)}});
    page.structure("Tarn" + row.name + "Ie", {{"TarnIe ie", ""}, {"VelDllHead children", ""}});
    std::vector<Member> members;
    if (row.is_list()) {
        const std::string array = "[" + std::to_string(row.greatest) + "]";
        members = {{"uint16_t count", ""}, {"Tarn" + row.element + "Record items" + array, ""}};
    } else {
        add_slot_members(members, row.slots);
    }
    page.structure("Tarn" + row.name + "Record", members);
    if (!row.is_list())
        page.constants(presence_constants(row.name, row.slots));
}

std::vector<Slot> children_of(const Composite &row) {
    if (!row.is_list())
        return row.slots;
    return {{row.element, row.element, Presence::repeated, "always", true, false}};
}

void write_operations(Page &page, const Composite &row) {
    const std::string type = "Tarn" + row.name + "Ie";
    page.function(type + " *", "TarnNew" + row.name + "Ie", {},
                  "returns a new " + row.name + " without children, owned by the caller.");
    write_slot_operations(page, children_of(row), {row.name + "Ie", type + " *ie", "child"});
    page.function(
        "uint32_t", "TarnPack" + row.name + "Ie",
        {"const " + type + " *ie", "uint8_t *buffer", "uint32_t available", "uint32_t *written"},
        "packs ie and sets *written, returning 1 on success and 0 on failure.");
    page.function("uint32_t", "TarnUnpack" + row.name + "Ie",
                  {"const TarnMsg *msg", type + " *ie", "const uint8_t *buffer",
                   "uint32_t available", "uint32_t *consumed"},
                  "fills ie and sets *consumed, returning 1 on success and 0 on failure.");
    page.function("uint32_t", "TarnIs" + row.name + "IeValid",
                  {"const TarnMsg *msg", "const " + type + " *ie"},
                  "returns 1 if ie is a valid " + row.name + ", and 0 otherwise.");
}

} // namespace

Page composite_header(const Catalogue &catalogue) {
    Page page;
    page.begin_header("TARN_IF_COMPOSITE_IES_H", composite_contract + nesting(catalogue),
                      {"tarn_if_primitive_ies.h"});
    for (const Composite &row : catalogue.composites) {
        page.entry(row.name + ", tag " + std::to_string(row.tag),
                   row.term + ".\n\n" + layout_text(catalogue, row));
        write_types(page, row);
        write_operations(page, row);
    }
    page.entry("Conditions among children",
               "What decides whether a conditional child must be there or must not be there. The "
               "msg argument is not used and may be null; a null ie is fatal.");
    write_predicates(page, catalogue, true);
    page.end_header();
    return page;
}

} // namespace header_writer
