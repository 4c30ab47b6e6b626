#include "pages.h"

namespace header_writer {
namespace {

constexpr const char *objects_contract =
    R"(IE objects and message objects: what they hold, who owns them, and the operations that take any of
them.

An IE object is one information element (IE) in memory. It begins with a TarnIe, so that
&object->ie of any IE object is what the operations here take. Behind this head stands the value of
a primitive IE (tarn_if_primitive_ies.h) or the list of a composite IE's children, which are IE
objects again (tarn_if_composite_ies.h). A message object is the list of a message's IE objects, the
first of which is always the MessageId IE (tarn_if_messages.h).

Ownership. A message object owns its IE objects and a composite IE object owns its children, to any
depth. The caller owns each message object that it created or unpacked, until it hands it to
TarnDeleteMsg, and each composite IE object that it created, until it appends it to a parent or
hands it to TarnDeleteIe. Appending a value copies it. Appending a composite IE object makes the
parent the owner of that very object: do not delete it or append it again. Extracting a value copies
it whole: behind the length of a byte string or the count of a list stands whatever the block held
before, which is not to be sent anywhere. Extracting a composite IE object lends its address: it
stays with its parent and dies with it.
All objects live in the memory that the host's velAllocMemoryWithIds gives.

Extract history. An extract operation takes the first direct member of the list that has the wanted
tag and was not extracted before, and marks it as extracted. So repeated calls return repeated IEs
in list order, and after the last one 0; the mark belongs to the IE object, whoever extracts it.
Nothing is unlinked, and the message can still be packed. The two reset operations take the marks
away.
)";

void write_lifecycle(Page &page) {
    page.function("void", "TarnDeleteIe", {"TarnIe *ie"},
                  "releases ie and, if it is composite, all IE objects below it. It does not "
                  "unlink ie: only an object that was never appended may be deleted. A null ie is "
                  "fatal.");
    page.function("void", "TarnDeleteMsg", {"TarnMsg *msg"},
                  "releases msg and all its IE objects. A null msg is fatal.");
    page.function("uint32_t", "TarnGetIeTag", {"const TarnIe *ie"},
                  "returns the tag of ie. A null ie is fatal.");
}

void write_history(Page &page) {
    page.function("void", "TarnResetIeExtractHistory", {"TarnIe *ie"},
                  "marks ie and, if it is composite, all IE objects below it as not yet extracted. "
                  "A null ie is fatal.");
    page.function("void", "TarnResetMsgExtractHistory", {"TarnMsg *msg"},
                  "marks all IE objects of msg, to any depth, as not yet extracted. A null msg is "
                  "fatal.");
}

void write_sizes(Page &page) {
    page.function("uint32_t", "TarnSizeOfIe", {"const TarnIe *ie"},
                  "returns the bytes that ie takes on the wire, its 6-byte header included; 6 for "
                  "a tag that no IE has. A null ie is fatal.");
    page.function("int32_t", "TarnSizeOfMsg", {"const TarnMsg *msg"},
                  "returns the bytes that msg takes on the wire, 0 if it has no IE at all. A null "
                  "msg is fatal.");
    page.function("uint32_t", "TarnIsComplexType", {"uint32_t tag"},
                  "returns 1 if tag is that of a composite IE, and 0 otherwise.");
}

} // namespace

Page objects_header() {
    Page page;
    page.begin_header("TARN_IF_OBJECTS_H", objects_contract, {"vel_platform.h"});
    page.comment("The head of every IE object. Written by the library; a caller that makes an IE "
                 "object of its own sets the tag.");
    page.structure("TarnIe", {{"VelDllNode node", "linkage in the parent's list"},
                              {"uint16_t tag", "set when the object is created"},
                              {"uint32_t extractHistory", "0 not yet extracted, 1 extracted"}});
    page.comment("A message object. Read messageId to learn what was unpacked; write neither.");
    page.structure("TarnMsg", {{"VelDllHead ies", "the IE objects, in wire order"},
                               {"uint16_t messageId", "equal to the value of the MessageId IE"}});
    page.section("Deletion and tags");
    write_lifecycle(page);
    page.section("Extract history");
    write_history(page);
    page.section("Sizes and kinds");
    write_sizes(page);
    page.end_header();
    return page;
}

} // namespace header_writer
