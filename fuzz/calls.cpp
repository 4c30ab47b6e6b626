// Runs of calls in any order that the interface allows: objects are made, filled, linked, looked
// into, packed and deleted as the input says.
//
// Nothing is remembered but ownership. What a call should do is told from the lists as they are
// just before it, and what is valid from a second reading of the protocol's rules.
#include "support/model.h"
#include "walks.h"

namespace {

using fuzz::Block;
using fuzz::Choices;

// Enough to nest deeper than any message does, few enough that no input takes long.
constexpr std::size_t mostMessages = 4;
constexpr std::size_t mostComposites = 16;
constexpr std::size_t mostCalls = 256;

// A message, or a composite IE object with the object that it is deleted with: itself, as long as
// nothing owns it.
struct Object {
    const Message *message = nullptr;
    const Type *type = nullptr;
    void *at = nullptr;
    void *owner = nullptr;

    bool is_message() const { return message != nullptr; }
    bool is_free() const { return at == owner; }
    TarnMsg *msg() const { return static_cast<TarnMsg *>(at); }
    TarnIe *ie() const { return static_cast<TarnIe *>(at); }
    const VelDllHead *list() const {
        return is_message() ? &msg()->ies : protocol::children_of(at);
    }
    const std::vector<Slot> &slots() const { return is_message() ? message->slots : type->slots; }
    std::uint32_t size() const {
        return is_message() ? std::uint32_t(TarnSizeOfMsg(msg())) : TarnSizeOfIe(ie());
    }
};

class Session {
public:
    explicit Session(Choices choices) : choices_(choices) {}
    ~Session() {
        while (!objects_.empty())
            delete_owner(objects_.front().owner);
    }
    Session(const Session &) = delete;
    Session &operator=(const Session &) = delete;

    void run() {
        for (std::size_t i = 0; i < mostCalls && !choices_.ended(); ++i)
            call();
    }

private:
    void call();
    void make_message();
    void make_composite();
    void decode_message();
    void append_value();
    void link_composite();
    void extract_value();
    void extract_composite();
    void reset_history();
    void compare_sizes();
    void pack_message();
    void pack_composite();
    void judge();
    void delete_object();
    void miss_pointers();

    std::size_t count(bool messages) const {
        return std::size_t(std::count_if(objects_.begin(), objects_.end(), [&](const Object &o) {
            return o.is_message() == messages;
        }));
    }
    // One of the objects, or null when there is none.
    Object *any_object() {
        return objects_.empty() ? nullptr : &objects_[choices_.below(objects_.size())];
    }
    // A slot of the object's type, with functions of its own. Any message's operations take any
    // message, whose type is only compared when it is judged.
    const Slot *any_slot(const Object &object, bool composite);
    void fill_value(const Type &type, std::uint8_t *value);
    void add(const Object &object) { objects_.push_back(object); }
    void delete_owner(void *owner);

    Choices choices_;
    std::vector<Object> objects_;
};

const Message &any_message_type(Choices *choices) {
    return *protocol::messages()[choices->below(protocol::messages().size())];
}

const Type &any_composite_type(Choices *choices) {
    static const std::vector<const Type *> composites = samples::composites();
    return *composites[choices->below(composites.size())];
}

const Slot *Session::any_slot(const Object &object, bool composite) {
    const bool own = !object.is_message() || choices_.below(4) != 0;
    const std::vector<Slot> &slots = own ? object.slots() : any_message_type(&choices_).slots;
    const std::size_t start = choices_.below(slots.size());
    for (std::size_t i = 0; i < slots.size(); ++i) {
        const Slot &slot = slots[(start + i) % slots.size()];
        if (slot.append != nullptr && slot.type->is_composite() == composite)
            return &slot;
    }
    return nullptr;
}

// ---- Making and deleting -----------------------------------------------------------------------

void Session::make_message() {
    if (count(true) == mostMessages)
        return;
    const Message &type = any_message_type(&choices_);
    TarnMsg *msg = type.create();
    HOLDS(msg->messageId == type.id && TarnSizeOfMsg(msg) == 7);
    add({&type, nullptr, msg, msg});
}

void Session::make_composite() {
    if (count(false) == mostComposites)
        return;
    const Type &type = any_composite_type(&choices_);
    void *ie = type.create();
    HOLDS(TarnGetIeTag(static_cast<TarnIe *>(ie)) == type.tag);
    add({nullptr, &type, ie, ie});
}

void Session::decode_message() {
    if (count(true) == mostMessages)
        return;
    const Message &type = any_message_type(&choices_);
    const Amount amount = choices_.below(2) != 0 ? Amount::slim : Amount::least;
    Random random(choices_.byte());
    const Bytes bytes =
        samples::encode(samples::make_message(type, amount, random, choices_.below(4)));
    const Block buffer(bytes.data(), bytes.size());
    TarnMsg *msg = type.unpack(buffer.data(), buffer.size());
    HOLDS(msg != nullptr && type.isValid(msg) == 1);
    add({&type, nullptr, msg, msg});
}

void Session::delete_owner(void *owner) {
    const auto found = std::find_if(objects_.begin(), objects_.end(),
                                    [owner](const Object &o) { return o.at == owner; });
    HOLDS(found != objects_.end());
    if (found->is_message())
        TarnDeleteMsg(found->msg());
    else
        TarnDeleteIe(found->ie());
    std::erase_if(objects_, [owner](const Object &o) { return o.owner == owner; });
}

void Session::delete_object() {
    if (const Object *object = any_object(); object != nullptr && object->is_free())
        delete_owner(object->owner);
}

// ---- Appending ---------------------------------------------------------------------------------

void store_scalar(const Type &type, void *value, std::uint32_t number) {
    if (type.valueSize == 4)
        *static_cast<std::uint32_t *>(value) = number;
    else if (type.valueSize == 2)
        *static_cast<std::uint16_t *>(value) = std::uint16_t(number);
    else
        *static_cast<std::uint8_t *>(value) = std::uint8_t(number);
}

// Counts stay near their bounds, or hardly any value would be valid.
void Session::fill_value(const Type &type, std::uint8_t *value) {
    if (type.shape == Shape::record) {
        for (const protocol::Member &member : type.members)
            fill_value(*member.type, value + member.offset);
        return;
    }
    if (type.shape == Shape::scalar) {
        const std::uint32_t wide = choices_.byte();
        const std::uint32_t number = wide < 0xF0 ? wide : choices_.word();
        store_scalar(type, value, number);
        return;
    }
    const std::uint32_t counts[] = {type.least, type.greatest, type.greatest + 1, choices_.byte()};
    const std::uint32_t items = counts[choices_.below(std::size(counts))];
    std::memset(value, int(items), type.valueSize);
    std::memcpy(value, &items, sizeof items);
    if (type.shape == Shape::list)
        for (std::uint32_t i = 0; i < std::min(items, type.capacity); ++i)
            fill_value(*type.item, value + type.itemsOffset + i * type.stride);
}

void Session::append_value() {
    Object *object = any_object();
    const Slot *slot = object != nullptr ? any_slot(*object, false) : nullptr;
    if (slot == nullptr)
        return;
    Block value(slot->type->valueSize);
    fill_value(*slot->type, value.data());
    const std::uint32_t size = object->size();
    const std::size_t blocks = test_host::live_blocks();
    const bool valid = slot->type->isValid(value.data()) != 0;
    HOLDS((slot->append(object->at, value.data()) != 0) == valid);
    HOLDS(object->size() == size + (valid ? 6 + slot->type->sizeOf(value.data()) : 0));
    HOLDS(test_host::live_blocks() == blocks + (valid ? 1 : 0));
}

// Any composite can be linked through any operation: nothing is looked at before the owner is
// judged or packed.
void Session::link_composite() {
    Object *parent = any_object();
    Object *child = any_object();
    if (parent == nullptr || child->is_message() || !child->is_free() || parent->owner == child->at)
        return;
    const Slot *slot = any_slot(*parent, true);
    if (slot == nullptr)
        return;
    const std::uint32_t size = parent->size() + child->size();
    HOLDS(slot->append(parent->at, child->at) == 1);
    HOLDS(parent->size() == size);
    void *const former = child->at;
    for (Object &object : objects_)
        if (object.owner == former)
            object.owner = parent->owner;
}

// ---- Extracting --------------------------------------------------------------------------------

TarnIe *next_to_extract(const Object &object, std::uint32_t tag) {
    for (TarnIe *ie : fuzz::members_of(object.list()))
        if (ie->tag == tag && ie->extractHistory == 0)
            return ie;
    return nullptr;
}

void Session::extract_value() {
    Object *object = any_object();
    const Slot *slot = object != nullptr ? any_slot(*object, false) : nullptr;
    if (slot == nullptr)
        return;
    const TarnIe *next = next_to_extract(*object, slot->type->tag);
    Block value(slot->type->valueSize, 0xEE);
    HOLDS(slot->extract(object->at, value.data()) == (next != nullptr ? 1U : 0U));
    if (next == nullptr) {
        HOLDS(value.is_filled_with(0xEE));
        return;
    }
    HOLDS(std::memcmp(value.data(), protocol::value_of(next), value.size()) == 0);
    HOLDS(next->extractHistory == 1);
}

void Session::extract_composite() {
    Object *object = any_object();
    const Slot *slot = object != nullptr ? any_slot(*object, true) : nullptr;
    if (slot == nullptr || count(false) == mostComposites)
        return;
    TarnIe *next = next_to_extract(*object, slot->type->tag);
    void *lent = object->at; // anything that is not null
    HOLDS(slot->extract(object->at, &lent) == (next != nullptr ? 1U : 0U));
    HOLDS(lent == next);
    if (next == nullptr)
        return;
    HOLDS(next->extractHistory == 1);
    const bool known = std::any_of(objects_.begin(), objects_.end(),
                                   [lent](const Object &o) { return o.at == lent; });
    if (!known)
        add({nullptr, slot->type, lent, object->owner});
}

bool is_all_reset(const VelDllHead *list) {
    for (const TarnIe *ie : fuzz::members_of(list)) {
        if (ie->extractHistory != 0)
            return false;
        if (TarnIsComplexType(ie->tag) != 0 && !is_all_reset(protocol::children_of(ie)))
            return false;
    }
    return true;
}

void Session::reset_history() {
    Object *object = any_object();
    if (object == nullptr)
        return;
    if (object->is_message())
        TarnResetMsgExtractHistory(object->msg());
    else
        TarnResetIeExtractHistory(object->ie());
    HOLDS(is_all_reset(object->list()));
    HOLDS(object->is_message() || object->ie()->extractHistory == 0);
}

// ---- Sizing, packing, judging ------------------------------------------------------------------

void Session::compare_sizes() {
    const Object *object = any_object();
    if (object == nullptr)
        return;
    std::uint32_t size = object->is_message() ? 0 : 6;
    for (const TarnIe *ie : fuzz::members_of(object->list()))
        size += TarnSizeOfIe(ie);
    HOLDS(object->size() == size);
}

// More than needed, exactly what is needed, one less, or next to nothing.
std::uint32_t any_room(Choices *choices, std::uint32_t needed) {
    switch (choices->below(4)) {
    case 0:
        return needed + std::uint32_t(choices->below(16));
    case 1:
        return needed;
    case 2:
        return needed - 1;
    default:
        return std::uint32_t(choices->below(16));
    }
}

// Whether every IE, to any depth, has a slot in its owner's table.
bool all_belong(const Nodes &nodes, const std::vector<Slot> &slots) {
    return std::all_of(nodes.begin(), nodes.end(), [&slots](const Node &node) {
        return std::any_of(slots.begin(), slots.end(),
                           [&node](const Slot &slot) { return slot.type == node.type; }) &&
               all_belong(node.children, node.type->slots);
    });
}

void Session::pack_message() {
    const Object *object = any_object();
    if (object == nullptr || !object->is_message())
        return;
    const bool own = choices_.below(4) != 0;
    const Message &type = own ? *object->message : any_message_type(&choices_);
    const std::uint32_t needed = object->size();
    Block room(any_room(&choices_, needed), 0xEE);
    const auto pack = [&] { return type.pack(object->msg(), room.data(), room.size()); };
    if (room.size() < needed) {
        HOLDS(fuzz::with_fatal_errors(1, pack) == 0);
        return;
    }
    const bool packed = pack() != 0;
    HOLDS(packed == all_belong(samples::nodes_of(*object->list()), type.slots));
    if (packed) {
        const Bytes bytes = samples::encode(samples::nodes_of(*object->list()));
        HOLDS(Block(room.data(), needed) == Block(bytes.data(), bytes.size()));
        HOLDS(room.is_filled_with(0xEE, needed));
    }
}

void Session::pack_composite() {
    const Object *object = any_object();
    if (object == nullptr || object->is_message())
        return;
    const bool own = choices_.below(4) != 0;
    const Type &type = own ? *object->type : any_composite_type(&choices_);
    const std::uint32_t needed = object->size();
    Block room(any_room(&choices_, needed), 0xEE);
    std::uint32_t written = ~0U;
    const bool packed = type.packIe(object->at, room.data(), room.size(), &written) != 0;
    HOLDS(packed ==
          (room.size() >= needed && all_belong(samples::nodes_of(*object->list()), type.slots)));
    HOLDS(packed ? written == needed
                 : written <= room.size() && (room.size() >= needed || written == 0));
    HOLDS(room.size() < needed || room.is_filled_with(0xEE, needed));
}

void Session::judge() {
    const Object *object = any_object();
    if (object == nullptr)
        return;
    const std::size_t allocations = test_host::allocations();
    const Nodes nodes = samples::nodes_of(*object->list());
    if (object->is_message()) {
        const Message &other = any_message_type(&choices_);
        HOLDS((object->message->isValid(object->msg()) != 0) ==
              model::is_valid(*object->message, nodes));
        HOLDS(&other == object->message || other.isValid(object->msg()) == 0);
    } else {
        const Type &other = any_composite_type(&choices_);
        HOLDS((object->type->isIeValid(object->at) != 0) ==
              model::is_valid({object->type, {}, nodes}));
        HOLDS(&other == object->type || other.isIeValid(object->at) == 0);
    }
    for (const protocol::Condition &condition : protocol::conditions())
        if (std::string_view(condition.predicate).ends_with("ForMsg") == object->is_message())
            HOLDS(condition.holds(object->msg(), object->at) <= 1);
    HOLDS(test_host::allocations() == allocations);
}

// ---- Missing pointers --------------------------------------------------------------------------

void Session::miss_pointers() {
    Object *object = any_object();
    const Slot *slot = object != nullptr ? any_slot(*object, choices_.below(2) != 0) : nullptr;
    if (slot == nullptr)
        return;
    const std::uint32_t size = object->size();
    const auto reported = [](std::size_t count, auto call) {
        return fuzz::with_fatal_errors(count, call);
    };
    // A MessageId is given by value.
    const bool byValue = slot->type->tag == 72;
    const std::uint8_t id = 0;
    if (!byValue)
        HOLDS(reported(1, [&] { return slot->append(object->at, nullptr); }) == 0);
    HOLDS(reported(1, [&] { return slot->extract(object->at, nullptr); }) == 0);
    HOLDS(reported(byValue ? 1 : 2,
                   [&] { return slot->append(nullptr, byValue ? &id : nullptr); }) == 0);
    HOLDS(reported(2, [&] { return slot->extract(nullptr, nullptr); }) == 0);
    if (object->is_message())
        HOLDS(reported(1, [&] { return object->message->pack(object->msg(), nullptr, 0); }) == 0);
    else
        HOLDS(reported(2, [&] { return object->type->packIe(object->at, nullptr, 0, nullptr); }) ==
              0);
    HOLDS(object->size() == size);
}

void Session::call() {
    using Step = void (Session::*)();
    // Some stand twice because without them there is little to see.
    static constexpr Step steps[] = {
        &Session::make_message,      &Session::make_composite, &Session::make_composite,
        &Session::decode_message,    &Session::append_value,   &Session::append_value,
        &Session::link_composite,    &Session::link_composite, &Session::extract_value,
        &Session::extract_composite, &Session::reset_history,  &Session::compare_sizes,
        &Session::pack_message,      &Session::pack_composite, &Session::judge,
        &Session::delete_object,     &Session::miss_pointers,
    };
    (this->*steps[choices_.below(std::size(steps))])();
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const fuzz::Watch watch;
    Session session(Choices(data, size));
    session.run();
    return 0;
}
