// Everything that the library answers to a run of cases, for comparing two builds of it: a change
// of the engine must leave the answers as they are (scripts/compare.sh).
//
//   tarn_answers FIRST COUNT GROUP   one line for each GROUP of cases: its first and a hash
//   tarn_answers CASE                all that happens in one case, in words
//
// A case is a number, from which all its inputs follow. Left out is what no caller can rely on:
// bytes behind the length or count of a decoded value, the room for a message that turned out not
// to fit, and which services of the host are called where no objects need to be made.
#include <cinttypes>
#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>
#include <string>
#include <sys/mman.h>

#include "support/mutations.h"
#include "walks.h"

namespace {

using fuzz::Block;

// ---- What is heard -----------------------------------------------------------------------------

struct {
    std::uint64_t hash = 0;
    bool shown = false;
    bool services = false; // whether calls for memory and lists are part of the answer
} heard;

void note(const char *what, const void *data, std::size_t size) {
    const auto *bytes = static_cast<const std::uint8_t *>(data);
    if (heard.shown)
        std::printf("  %s:", what);
    for (std::size_t i = 0; heard.shown && i < size; ++i)
        std::printf("%s%02X", i % 4 == 0 ? " " : "", unsigned(bytes[i]));
    if (heard.shown)
        std::puts("");
    heard.hash ^= size;
    for (std::size_t i = 0; i < size; i += 8) {
        std::uint64_t word = 0;
        std::memcpy(&word, bytes + i, std::min<std::size_t>(8, size - i));
        heard.hash = (heard.hash ^ word) * 0x9E3779B97F4A7C15;
        heard.hash ^= heard.hash >> 29;
    }
}

void note(const char *what, const std::string &text) {
    if (heard.shown)
        std::printf("  %s", text.c_str());
    note(what, text.data(), text.size());
}

void note(const char *what, std::uint64_t number) {
    note(what, &number, sizeof number);
}

void note_value(std::uint8_t *at, std::size_t size) {
    note("value", at, size);
}

void hear_service(const char *service, const char *module) {
    if (heard.services)
        note(service, std::string(module));
}

// Returns what the call returns, and notes it with all that it reported.
template <class Call>
std::uint64_t ask(const std::string &name, Call call) {
    if (heard.shown)
        std::printf("%s\n", name.c_str());
    const std::size_t fatals = test_host::fatal_reports().size();
    const std::size_t tokens = test_host::debug_tokens().size();
    const auto result = std::uint64_t(call());
    note("result", result);
    for (std::size_t i = fatals; i < test_host::fatal_reports().size(); ++i)
        note("fatal", test_host::fatal_reports()[i].module);
    for (std::size_t i = tokens; i < test_host::debug_tokens().size(); ++i)
        note("token", &test_host::debug_tokens()[i], sizeof(test_host::DebugToken));
    return result;
}

// The same, and notes each service that was called, and from which module.
template <class Call>
std::uint64_t ask_all(const std::string &name, Call call) {
    heard.services = true;
    const std::uint64_t result = ask(name, call);
    heard.services = false;
    return result;
}

// ---- What values, records and objects hold -----------------------------------------------------

// Calls visit(address, bytes) for all parts of a value that mean something.
template <class Visit>
void visit_value(const Type &type, std::uint8_t *value, const Visit &visit) {
    if (type.shape == Shape::record)
        for (const protocol::Member &member : type.members)
            visit_value(*member.type, value + member.offset, visit);
    if (type.shape == Shape::record || type.shape == Shape::scalar)
        return type.shape == Shape::scalar ? visit(value, type.valueSize) : void();
    std::uint32_t count = 0;
    std::memcpy(&count, value, sizeof count);
    visit(value, sizeof count);
    count = std::min(count, type.capacity);
    if (type.shape == Shape::bytes && count != 0)
        visit(value + sizeof count, count);
    for (std::uint32_t i = 0; type.shape == Shape::list && i < count; ++i)
        visit_value(*type.item, value + type.itemsOffset + i * type.stride, visit);
}

// The same for a record. Elements beyond the count belong to it, for nothing may change them.
template <class Visit>
void visit_record(const std::vector<Slot> &slots, std::uint8_t *record, std::size_t mask,
                  const Visit &visit) {
    visit(record + mask, 1);
    for (const Slot &slot : slots) {
        const Type &type = *slot.type;
        std::uint8_t *member = record + slot.recordOffset;
        if (type.shape == Shape::sequence)
            visit_record(type.slots, member, 0, visit);
        if (!type.is_composite())
            visit_value(type, member, visit);
        if (type.shape != Shape::compositeList)
            continue;
        std::uint16_t count = 0;
        std::memcpy(&count, member, sizeof count);
        visit(member, sizeof count);
        const std::uint8_t *end = member + type.itemsOffset + type.capacity * type.stride;
        for (member += type.itemsOffset; count != 0 && member != end;
             member += type.stride, --count)
            visit_record(type.item->slots, member, 0, visit);
        if (member != end)
            visit(member, std::size_t(end - member));
    }
}

void note_objects(const VelDllHead *list) {
    for (TarnIe *ie : fuzz::members_of(list)) {
        note("tag", ie->tag);
        note("extracted", ie->extractHistory);
        if (TarnIsComplexType(ie->tag) != 0)
            note_objects(protocol::children_of(ie));
        else
            visit_value(*protocol::type_by_tag(ie->tag),
                        static_cast<std::uint8_t *>(protocol::value_of(ie)), note_value);
    }
    note("end", 0);
}

// ---- Choices -----------------------------------------------------------------------------------

Random dice(0);

bool once_in(std::uint32_t times) {
    return dice.between(1, times) == 1;
}

template <class List>
auto &any_of(List &list) {
    return list[dice.between(0, std::uint32_t(std::size(list) - 1))];
}

template <class T>
T *given(T *pointer) { // but sometimes missing
    return once_in(200) ? nullptr : pointer;
}

// Long samples seldom: they take long and show little more.
Amount any_amount() {
    if (once_in(64))
        return Amount::most;
    return once_in(3) ? Amount::random : once_in(4) ? Amount::least : Amount::slim;
}

// Enough, exactly enough, a little less, or next to nothing.
Block any_room(std::uint64_t needed) {
    const auto exact = std::uint32_t(std::min<std::uint64_t>(needed, 0x20000)); // a count may lie
    if (once_in(2))
        return Block(exact, 0xEE);
    return Block(
        once_in(4) ? dice.between(0, 15) : exact - std::min(exact, 8U) + dice.between(0, 16), 0xEE);
}

// Numbers near a bound, a count or what the rules ask for tell most, also above 16 bits.
void change_number(std::uint8_t *at, std::size_t size) {
    static const std::vector<std::uint32_t> telling = {0, 1, 2,  3,  4,    7,
                                                       8, 9, 64, 65, 0xFF, 0xFFFFFFFF};
    std::uint32_t number = 0;
    std::memcpy(&number, at, std::min<std::size_t>(size, 4));
    const std::uint32_t changed[] = {any_of(telling), number + 0x10000,
                                     number - 1 + dice.between(0, 2),
                                     number ^ 1U << dice.between(0, 31)};
    std::memcpy(at, &changed[dice.between(0, 3)], std::min<std::size_t>(size, 4));
}

// Where the headers of all IEs stand, to any depth.
void find_headers(const Bytes &bytes, std::size_t from, std::size_t to,
                  std::vector<std::size_t> *found) {
    while (from + 6 <= to) {
        found->push_back(from);
        const Type *type = protocol::type_by_tag(std::uint32_t(bytes[from] << 8 | bytes[from + 1]));
        const std::size_t end = from + 6 + std::size_t(bytes[from + 4]) * 256 + bytes[from + 5];
        if (type == nullptr || end > to)
            return;
        if (type->shape != Shape::scalar && type->shape != Shape::bytes)
            find_headers(bytes, from + 6, end, found);
        from = end;
    }
}

// Changes bytes in and behind a header, cuts off there, and adds, doubles, moves or drops an IE
// there, without regard to the lengths around it.
void spoil_at_header(Bytes *bytes) {
    std::vector<std::size_t> headers;
    find_headers(*bytes, 0, bytes->size(), &headers);
    if (headers.empty())
        return;
    const std::size_t at = any_of(headers);
    const auto ie = bytes->begin() + std::ptrdiff_t(at);
    const auto left = std::uint32_t(bytes->size() - at);
    const Bytes whole(ie, ie + std::min(left, 6U + ie[5]));
    const std::uint32_t choice = dice.between(0, 7);
    if (choice < 3)
        change_number(&*ie + dice.between(0, std::min(left - 1, 10U)), 1);
    else if (choice == 3)
        bytes->resize(at + dice.between(0, std::min(left, 10U)));
    else if (choice == 4)
        bytes->insert(bytes->begin() + std::ptrdiff_t(any_of(headers)), whole.begin(), whole.end());
    else if (choice < 7)
        bytes->erase(ie, ie + std::ptrdiff_t(whole.size()));
    if (choice > 5) {
        const Type &type = *any_of(protocol::types());
        const Bytes other = samples::encode(samples::make_node(type, Amount::slim, dice));
        bytes->insert(ie, other.begin(), other.end());
    }
}

// Breaks rules in a message that is otherwise whole: changes code words, which conditions look at,
// makes values invalid and lists too short or too long.
void break_rules(Nodes *nodes) {
    for (Node &node : *nodes) {
        const Type &type = *node.type;
        if (type.shape == Shape::scalar && type.width < type.valueSize && once_in(2))
            samples::set_number(node, dice.between(0, 4));
        if (auto invalid = once_in(6) ? samples::make_invalid(type, dice) : std::nullopt)
            node = *std::move(invalid);
        const std::uint32_t counts[] = {0, type.least, type.greatest, type.greatest + 1};
        if (type.shape == Shape::compositeList && once_in(4))
            node.children.resize(any_of(counts),
                                 samples::make_node(*type.item, Amount::slim, dice));
        break_rules(&node.children);
    }
}

Bytes spoilt(const Nodes &nodes) {
    Bytes bytes = once_in(2) ? samples::encode(nodes) : samples::mutate(nodes, dice);
    for (std::uint32_t times = dice.between(0, 2); times != 0; --times)
        spoil_at_header(&bytes);
    return bytes;
}

// ---- Message objects ---------------------------------------------------------------------------

void extract(const std::vector<Slot> &slots, void *owner) {
    for (const Slot &slot : slots) {
        if (slot.extract == nullptr || once_in(8))
            continue;
        Block value(std::max(slot.type->valueSize, sizeof owner), 0xEE);
        std::memcpy(value.data(), &owner, slot.type->is_composite() ? sizeof owner : 0);
        ask_all(slot.name, [&] { return slot.extract(given(owner), given(value.data())); });
        if (!slot.type->is_composite()) {
            visit_value(*slot.type, value.data(), note_value);
            continue;
        }
        void *child = nullptr;
        std::memcpy(&child, value.data(), sizeof child);
        note("child", child == nullptr ? 0 : static_cast<const TarnIe *>(child)->tag);
        if (child != nullptr && child != owner)
            extract(slot.type->slots, child);
    }
}

void ask_conditions(const char *kind, const TarnMsg *msg, const void *ie) {
    for (const protocol::Condition &condition : protocol::conditions())
        if (std::string_view(condition.predicate).ends_with(kind))
            ask_all(condition.predicate, [&] { return condition.holds(given(msg), given(ie)); });
}

void examine(const Message &type, TarnMsg *msg) {
    const Message &other = once_in(4) ? *any_of(protocol::messages()) : type;
    ask("IsValid", [&] { return other.isValid(given(msg)); });
    const std::uint64_t size = ask("SizeOfMsg", [&] { return TarnSizeOfMsg(msg); });
    ask_conditions("ForMsg", msg, nullptr);
    Block room = any_room(size);
    ask("Pack", [&] { return other.pack(given(msg), given(room.data()), room.size()); });
    if (room.size() >= size)
        note("packed", room.data(), room.size());
    extract(other.slots, msg);
    extract(type.slots, msg);
    note_objects(&msg->ies);
    ask_all("ResetMsg", [&] { return TarnResetMsgExtractHistory(given(msg)), 0; });
    note_objects(&msg->ies);
    ask_all("DeleteMsg", [&] { return TarnDeleteMsg(msg), 0; });
}

void decode(const Message &type, const Block &input) {
    const std::uint8_t *bytes = input.data();
    const std::uint32_t size = input.size();
    ask("GetMessageId", [&] { return TarnGetMessageId(given(bytes), size); });
    TarnMsg *msg = nullptr;
    if (once_in(4))
        ask("Unpack", [&] { return (msg = type.unpack(given(bytes), size)) != nullptr; });
    else
        ask("UnpackNewMsg", [&] { return TarnUnpackNewMsg(given(bytes), size, given(&msg)); });
    if (msg == nullptr)
        return;
    note("id", msg->messageId);
    note_objects(&msg->ies);
    examine(*protocol::message_by_id(msg->messageId), msg);
}

// A MessageId by its address as well as by itself, for the library has taken it in either way: the
// address is the number in its low 32 bits.
std::uint32_t append_message_id(const Message &type, void *msg, std::uint8_t id) {
    static auto *numbers = static_cast<std::uint8_t *>(
        mmap(reinterpret_cast<void *>(std::uintptr_t{1} << 42), 256, PROT_READ | PROT_WRITE,
             MAP_PRIVATE | MAP_ANONYMOUS | MAP_FIXED_NOREPLACE, -1, 0));
    numbers[id] = id;
    const std::string name = std::string("TarnAppendMessageIdTo") + type.name + "Msg";
    using Append = std::uint32_t (*)(void *, const std::uint8_t *);
    return reinterpret_cast<Append>(dlsym(RTLD_DEFAULT, name.c_str()))(msg, numbers + id);
}

// What has no slot there is linked with nothing checked.
void append(const std::vector<Slot> &slots, const Message *type, void *owner, VelDllHead *list,
            const Nodes &nodes) {
    for (const Node &node : nodes) {
        const auto slot = std::find_if(slots.begin(), slots.end(), [&node](const Slot &candidate) {
            return candidate.type == node.type;
        });
        if (slot == slots.end()) {
            samples::link(list, samples::make_ie(node));
        } else if (type != nullptr && slot == slots.begin()) {
            ask_all("MessageId", [&] { return append_message_id(*type, owner, node.value[0]); });
        } else if (!node.type->is_composite()) {
            const Block value(node.value.data(), node.value.size());
            ask_all(slot->name, [&] { return slot->append(given(owner), given(value.data())); });
        } else {
            TarnIe *child = nullptr;
            ask_all("New", [&] {
                return (child = static_cast<TarnIe *>(node.type->create())) != nullptr;
            });
            append(node.type->slots, nullptr, child, samples::children_of(child), node.children);
            if (ask_all(slot->name, [&] { return slot->append(given(owner), child); }) == 0)
                TarnDeleteIe(child);
        }
    }
}

void assemble(const Message &type, const Nodes &nodes) {
    TarnMsg *msg = nullptr;
    if (once_in(3)) {
        msg = samples::make_msg(type, nodes).release();
        msg->messageId = std::uint16_t(msg->messageId + (once_in(4) ? 1 : 0));
    } else {
        ask_all("New", [&] { return (msg = type.create()) != nullptr; });
        append(type.slots, &type, msg, &msg->ies,
               Nodes(nodes.begin() + (once_in(4) ? 0 : 1), nodes.end()));
    }
    note_objects(&msg->ies);
    examine(type, msg);
}

// ---- Records -----------------------------------------------------------------------------------

void build(const Message &type, Block record, std::uint32_t needed) {
    std::vector<std::pair<std::uint8_t *, std::size_t>> parts;
    visit_record(type.slots, record.data(), 1,
                 [&parts](std::uint8_t *at, std::size_t size) { parts.emplace_back(at, size); });
    for (std::uint32_t times = dice.between(0, 2); times != 0; --times)
        std::apply(change_number, any_of(parts));
    const Block former(record.data(), record.size());
    Block room = any_room(needed);
    const std::size_t fatals = test_host::fatal_reports().size();
    ask(std::string("Build") + type.name,
        [&] { return type.build(given(room.data()), room.size(), given(record.data())); });
    if (test_host::fatal_reports().size() == fatals)
        note("built", room.data(), room.size());
    HOLDS(record == former);
}

// Into a record that is the same byte throughout, or that holds some other message.
void get(const Message &type, const Block &input, const Nodes &former) {
    Record filled(type, once_in(2) ? 0 : once_in(2) ? 0xEE : 0xFF);
    if (once_in(3))
        samples::fill_record(type, former, &filled);
    Block record(filled.data(), type.recordSize);
    const std::uint64_t got = ask(std::string("Get") + type.name, [&] {
        return type.get(given(input.data()), input.size(), given(record.data()));
    });
    // What stands behind a length or count is up to Get; Build may come to read it.
    Block known(record.size());
    visit_record(type.slots, record.data(), 1, [&](std::uint8_t *at, std::size_t size) {
        note_value(at, size);
        std::memcpy(known.data() + (at - record.data()), at, size);
    });
    if (got != 0)
        build(type, std::move(known), input.size());
}

// ---- Single IEs, values and headers ------------------------------------------------------------

void examine_ie(const Type &type, TarnIe *ie) {
    std::uint64_t size = 6;
    if (once_in(16))
        ie->tag ^= std::uint16_t(1U << dice.between(0, 15));
    else
        size = ask_all("SizeOfIe", [&] { return TarnSizeOfIe(given(ie)); });
    ask_all("GetIeTag", [&] { return TarnGetIeTag(given(ie)); });
    ask("IsIeValid", [&] { return type.isIeValid(given(ie)); });
    ie->tag = std::uint16_t(type.tag);
    Block room = any_room(size);
    std::uint32_t written = 0xEEEEEEEE;
    ask("PackIe",
        [&] { return type.packIe(given(ie), given(room.data()), room.size(), given(&written)); });
    note("written", written);
    note("packed", room.data(), room.size());
    if (type.is_composite()) {
        ask_conditions("ForIe", nullptr, ie);
        extract(type.slots, ie);
        ask_all("ResetIe", [&] { return TarnResetIeExtractHistory(given(ie)), 0; });
        note_objects(protocol::children_of(ie));
    }
    ask_all("DeleteIe", [&] { return TarnDeleteIe(ie), 0; });
}

void unpack_ie(const Type &type, const Bytes &bytes) {
    const Block input(bytes.data(), bytes.size());
    TarnIe *ie = samples::make_empty_ie(type).release();
    std::uint32_t consumed = 0xEEEEEEEE;
    ask(std::string("Unpack") + type.name + "Ie", [&] {
        return type.unpackIe(given(ie), given(input.data()), input.size(), given(&consumed));
    });
    note("consumed", consumed);
    if (type.is_composite())
        note_objects(protocol::children_of(ie));
    else
        note("value", protocol::value_of(ie), type.valueSize);
    examine_ie(type, ie);
}

void code_value(const Type &type, Block value, const Bytes &packed) {
    std::vector<std::pair<std::uint8_t *, std::size_t>> parts;
    visit_value(type, value.data(),
                [&parts](std::uint8_t *at, std::size_t size) { parts.emplace_back(at, size); });
    if (once_in(2))
        std::apply(change_number, any_of(parts));
    ask(std::string("IsValid") + type.name, [&] { return type.isValid(given(value.data())); });
    Block room = any_room(ask("SizeOf", [&] { return type.sizeOf(given(value.data())); }));
    std::uint32_t count = 0xEEEEEEEE;
    ask("Pack", [&] {
        return type.pack(given(value.data()), given(room.data()), room.size(), given(&count));
    });
    note("written", count);
    note("packed", room.data(), room.size());
    Block input = any_room(packed.size());
    std::copy_n(packed.data(), std::min<std::size_t>(packed.size(), input.size()), input.data());
    const std::uint32_t length = any_room(packed.size()).size();
    Block again(type.valueSize, 0xEE);
    ask("Unpack", [&] {
        return type.unpack(given(again.data()), length, given(input.data()), input.size(),
                           given(&count));
    });
    note("consumed", count);
    note("value", again.data(), again.size());
}

void code_header() {
    Block room(dice.between(0, 8), 0xEE);
    std::uint8_t *bytes = room.data();
    std::uint16_t tag = 0;
    std::uint32_t length = dice.next();
    ask_all("PackTag", [&] { return TarnPackTagIntoBuffer(length, given(bytes), room.size()); });
    ask_all("Tag",
            [&] { return TarnExtractTagFromBuffer(given(&tag), given(bytes), room.size()); });
    ask_all("PackLength",
            [&] { return TarnPackLengthIntoBuffer(length, given(bytes), room.size()); });
    ask_all("Length",
            [&] { return TarnExtractLengthFromBuffer(given(&length), given(bytes), room.size()); });
    note("tag", tag);
    note("length", length);
    note("bytes", bytes, room.size());
    ask_all("IsComplexType", [&] { return TarnIsComplexType(tag & 0xFF); });
    note("version", std::string(TarnGetInterfaceVersion()));
}

// ---- Cases -------------------------------------------------------------------------------------

Nodes any_nodes(const Message &type) {
    constexpr std::size_t longEnough = 3000;
    Nodes nodes = samples::make_message(type, any_amount(), dice, dice.between(0, 4));
    if (samples::encode(nodes).size() > longEnough && !once_in(32))
        nodes = samples::make_message(type, Amount::slim, dice, dice.between(0, 4));
    if (once_in(4))
        break_rules(&nodes);
    return nodes;
}

// Those with conditional IEs have most rules to break.
const Message &any_message() {
    static const std::vector<const Message *> conditional = [] {
        std::vector<const Message *> found;
        std::ranges::copy_if(
            protocol::messages(), std::back_inserter(found),
            [](const Message *type) { return samples::has_conditional(type->slots); });
        return found;
    }();
    return *any_of(once_in(5) ? conditional : protocol::messages());
}

void message_case() {
    const Message &type = any_message();
    const Nodes nodes = any_nodes(type);
    const Bytes bytes = spoilt(nodes);
    const Block input(bytes.data(), bytes.size());
    const std::uint32_t kind = dice.between(0, 11);
    if (kind < 4)
        return decode(type, input);
    if (kind < 7)
        return get(once_in(16) ? *any_of(protocol::messages()) : type, input, any_nodes(type));
    if (kind < 9)
        return assemble(type, nodes);
    Record record(type, 0x55);
    samples::fill_record(type, nodes, &record);
    build(type, Block(record.data(), type.recordSize), input.size());
}

void ie_case() {
    const Type &type = *any_of(protocol::types());
    Nodes nodes = {samples::make_node(type, any_amount(), dice)};
    const Node &node = nodes.front();
    if (once_in(4))
        break_rules(&nodes);
    if (once_in(16))
        code_header();
    else if (!type.is_composite() && (!type.hasIe || once_in(2)))
        code_value(type, Block(node.value.data(), node.value.size()),
                   samples::encode_value(type, node.value.data()));
    else if (type.hasIe && once_in(2))
        examine_ie(type, samples::make_ie(node).release());
    else
        unpack_ie(type, spoilt(nodes));
}

} // namespace

int main(int count, char **arguments) {
    if (count != 2 && count != 4) {
        std::fprintf(stderr, "usage: %s FIRST COUNT GROUP | CASE\n", arguments[0]);
        return 2;
    }
    const auto number = [&](int i) { return std::strtoull(arguments[i], nullptr, 10); };
    const std::uint64_t group = count == 4 ? number(3) : 1;
    heard.shown = count == 2;
    std::setvbuf(stdout, nullptr, _IOLBF, BUFSIZ);
    test_host::set_watch(hear_service);
    for (std::uint64_t i = number(1); i < number(1) + (count == 4 ? number(2) : 1); ++i) {
        test_host::reset();
        dice = Random(i);
        once_in(4) ? ie_case() : message_case();
        note("blocks left", test_host::live_blocks());
        if ((i + 1 - number(1)) % group != 0)
            continue;
        std::printf("%" PRIu64 " %016" PRIx64 "\n", i + 1 - group, heard.hash);
        heard.hash = 0;
    }
    return 0;
}
