#include "pages.h"
#include "sizes.h"
#include "words.h"

#include <algorithm>

namespace header_writer {
namespace {

constexpr const char *message_contract =
    R"(The messages. For each message M stand here its id TarnMMsgId, its record type TarnMRecord and its operations, on
message objects and, in one call, on the record. Its comment gives its IEs in wire order with the
mandatory ones first; before them all stands the MessageId IE (tag 72, one byte: the message's id).

TarnNewMMsg returns a new message object that holds its MessageId, so that there is no need to call
TarnAppendMessageIdToMMsg, which takes the id by value. The caller owns it, until TarnDeleteMsg.

TarnAppendPToMMsg appends a primitive IE: a new IE object of the library's with a copy of *value. It
fails if the value is invalid, and then changes nothing. TarnAppendSIeToMMsg appends a composite IE:
the very object that the caller created, which the message owns from then on. Neither looks at order
or number: append the IEs in the order of the table.

TarnExtractPFromMMsg copies the value of the next P that was not extracted yet to *value, and leaves
*value as it was if there is none. TarnExtractSIeFromMMsg lends the address of the next S that was
not extracted yet, which remains the message's, and sets the pointer to null if there is none. See
tarn_if_objects.h for the extract history.

TarnIsMMsgValid returns 1 if the message object has the id of M and its IEs obey its rules, and 0
otherwise, also for a null msg, which is not fatal here. The MessageId and each mandatory IE must
stand valid at their places. Behind them, the optional IEs may stand in any order and number, and
their own validity does not count. Another IE is refused there up to the number of places in the
table; behind that anything is ignored. A conditional IE must stand valid exactly if its condition
holds.

TarnPackMMsg writes all IEs of the message to buffer in list order; TarnSizeOfMsg tells how many
bytes that takes. It applies none of the rules of presence and order, but fails if an IE is none of
M's or does not pack; what the buffer holds then means nothing. A size that is too small is fatal
and leaves the buffer as it was.

TarnUnpackMMsg returns a new message object, read from buffer, that the caller owns until
TarnDeleteMsg, or null. IEs are taken in the order of the table, and each must be valid. A mandatory
IE that is missing, malformed or invalid fails the message, and nothing remains of it. An optional
IE that is so is left out, and the next one is tried at the same place. Bytes behind the last IE
taken are ignored. Where the message is not known beforehand, use TarnUnpackNewMsg (tarn_if.h).

TarnMRecord is the message as a plain record: its id, a presence mask in which each optional or
conditional IE has the bit that stands beside its member (TarnMHasS for the member S), and one
member per IE in the order of the table. A composite IE's member is its own record, with a count where elements repeat and a presence
mask where children are optional. Records belong to the caller and hold no pointers. Those with
nested lists are large.

TarnBuildMMsg packs the record into buffer, its mandatory members and those whose presence bit is
set, returning the number of bytes written and 0 on failure. MessageId is not read. It fails if a value is invalid, a count or length is beyond its array, or the
finished message is invalid; a size that is too small is fatal. Each failure is told to
velSwTokenDebug, with a token of its own for the append, the validity and the packing of each
message.

TarnGetMMsg unpacks buffer into the record. It writes MessageId and the member of each IE that it
finds, sets the presence bits and counts, and leaves everything else as it was: clear the record, or
at least its presence masks, before the call. A buffer that holds another message succeeds too and
fills in the members that both share: compare MessageId. Failure to unpack is told to
velSwTokenDebug (token %s).

Build and Get ask nothing of the host but to hear their reports, and leave buffer and record as they
were when they return 0. They read what they are given twice: it must not change meanwhile, and
buffer and record must not overlap.

Fatal. Every pointer is required, but for TarnIsMMsgValid; a null one is reported, and the operation
fails.

The messages by id:
)";

std::string contract_text(const Catalogue &catalogue) {
    std::string text = message_contract;
    return text.replace(text.find("%s"), 2, token_text(catalogue.getToken));
}

std::string index(const Catalogue &catalogue) {
    size_t widest = 0;
    for (const Message &row : catalogue.messages)
        widest = std::max(widest, row.name.size());
    std::string lines = "\n";
    for (const Message &row : catalogue.messages)
        lines += (row.id < 10 ? "  " : " ") + std::to_string(row.id) + "  " +
                 padded(row.name, widest + 2) + row.term + "\n";
    return lines;
}

std::string message_rule(UnpackRule rule) {
    switch (rule) {
    case UnpackRule::none:
        return "";
    case UnpackRule::dropUncalled:
        return "Unpacking leaves out a conditional IE that is invalid or whose condition does not "
               "hold, and fails if something else stands in its place although its condition "
               "holds. A message that ends before it unpacks.\n\n";
    case UnpackRule::dropUncalledRequireAtEnd:
        return "Unpacking leaves out a conditional IE that is invalid or whose condition does not "
               "hold, and fails if one is missing or malformed although its condition holds, also "
               "at the message's end.\n\n";
    case UnpackRule::refuseUncalled:
        return "Unpacking fails if a conditional IE is invalid or its condition does not hold.\n\n";
    }
    return "";
}

std::string repetition_text(const Message &row) {
    for (const Slot &slot : row.slots)
        if (slot.presence == Presence::repeated)
            return "Any number of " + slot.child +
                   " may be appended and validates, but unpacking, Build and Get carry the first "
                   "one alone.\n\n";
    return "";
}

std::string memory_text(const Catalogue &catalogue, const Message &row) {
    const uint32_t bytes = record_memory(catalogue, row);
    if (bytes < 2048)
        return "";
    return " The record takes about " + std::to_string((bytes + 512) / 1024) +
           " KiB of the caller's memory.";
}

void write_entry(Page &page, const Catalogue &catalogue, const Message &row) {
    page.entry(row.name + ", id " + std::to_string(row.id),
               row.term + ".\n\n" + slot_table(catalogue, row.slots) + "\n" + repetition_text(row) +
                   message_rule(row.rule) + "Build writes " +
                   std::to_string(greatest_built_size(catalogue, row)) + " bytes at most." +
                   memory_text(catalogue, row));
}

void write_record(Page &page, const Message &row) {
    std::vector<Member> members = {{"uint8_t MessageId", ""}};
    add_slot_members(members, row.slots);
    page.structure("Tarn" + row.name + "Record", members);
    page.constants(presence_constants(row.name, row.slots));
}

const std::vector<Slot> messageId = {
    {"MessageId", "MessageId", Presence::mandatory, "always", false, false}};

void write_object_operations(Page &page, const Message &row) {
    const std::string msg = row.name + "Msg";
    const Parent parent = {msg, "TarnMsg *msg", "ie"};
    page.function("TarnMsg *", "TarnNew" + msg, {},
                  "returns a new message that holds its MessageId, owned by the caller.");
    write_slot_operations(page, messageId, parent);
    write_slot_operations(page, row.slots, parent);
    page.function("uint32_t", "TarnIs" + msg + "Valid", {"const TarnMsg *msg"},
                  "returns 1 if msg is a valid " + row.name + ", and 0 otherwise.");
    page.function("uint32_t", "TarnPack" + msg,
                  {"const TarnMsg *msg", "uint8_t *buffer", "uint32_t size"},
                  "writes msg to buffer, returning 1 on success and 0 on failure.");
    page.function("TarnMsg *", "TarnUnpack" + msg, {"const uint8_t *buffer", "uint32_t length"},
                  "returns a new message read from buffer, owned by the caller, or null.");
}

void write_record_operations(Page &page, const Message &row) {
    const std::string msg = row.name + "Msg";
    const std::string record = "Tarn" + row.name + "Record *record";
    page.function("uint32_t", "TarnBuild" + msg,
                  {"uint8_t *buffer", "uint32_t size", "const " + record},
                  "packs *record into buffer, returning the bytes written and 0 on failure.");
    page.function("uint32_t", "TarnGet" + msg, {"const uint8_t *buffer", "uint32_t length", record},
                  "unpacks buffer into *record, returning 1 on success and 0 on failure.");
}

} // namespace

Page message_header(const Catalogue &catalogue) {
    Page page;
    page.begin_header("TARN_IF_MESSAGES_H", contract_text(catalogue) + index(catalogue),
                      {"tarn_if_composite_ies.h"});
    for (const Message &row : catalogue.messages) {
        write_entry(page, catalogue, row);
        page.constants({{"Tarn" + row.name + "MsgId", std::to_string(row.id)}});
        write_record(page, row);
        write_object_operations(page, row);
        write_record_operations(page, row);
    }
    page.entry("Conditions in messages",
               "What decides whether a conditional IE must be there or must not be there. A null "
               "msg is fatal.");
    write_predicates(page, catalogue, false);
    page.end_header();
    return page;
}

} // namespace header_writer
