#include "tarn/diagnosis.h"

#include <algorithm>

#include "tarn/value_walk.h"
#include "tarn/wording.h"

namespace tool {

namespace {

std::string join(const std::string &path, const char *name) {
    return path.empty() ? name : path + "." + name;
}

// What became of a child at the current position.
enum class Outcome {
    absent,  // another tag, or bytes that do not decode
    invalid, // decoded, out of its range or rules
    valid,
};

// A child that was read: a primitive's value or a composite's object.
struct Candidate {
    Outcome outcome = Outcome::absent;
    std::unique_ptr<ValueMemory> value;
    IePtr ie; // also of a composite that failed, as far as it went
    Fault fault;
};

class Walk {
public:
    Walk(const std::uint8_t *bytes, std::uint32_t length) : in_{bytes, length} {}

    Diagnosis run();

private:
    Fault read_message_id();
    Fault read_slots(const Owner &owner, const std::string &path);
    Fault read_slot(const Owner &owner, const Slot &slot, const std::string &path);
    Fault read_elements(const Owner &list, const std::string &path, std::uint32_t declared);
    Candidate read_child(const Slot &slot, const std::string &path);
    void read_primitive_child(const Type &type, const std::string &path, Candidate *child);
    void read_composite_child(const Type &type, const std::string &path, Candidate *child);
    Fault refusal(const Owner &owner, const Slot &slot, const std::string &path, Candidate *child);
    Fault end_of_bytes(const Owner &owner, std::size_t next, const std::string &path) const;
    void check_validity(const Owner &owner);
    void explain_rest(const Owner &owner);
    void add_left_out(std::uint32_t stop, std::vector<Finding> *findings) const;

    Input in_;
    Diagnosis result_;
    // Optional children that stood at their place and were not taken, with the position of each.
    // The walk never gets past such a place, since no other slot that follows takes the same tag.
    struct LeftOut {
        std::uint32_t at;
        const char *name;
        Finding why;
    };
    std::vector<LeftOut> leftOut_;
};

void append(const Owner &owner, const Slot &slot, Candidate *child) {
    if (child->value)
        append_value(owner, slot, child->value->get());
    else
        append_ie(owner, slot, std::move(child->ie));
}

void Walk::read_primitive_child(const Type &type, const std::string &path, Candidate *child) {
    const std::uint32_t start = in_.at;
    child->value = std::make_unique<ValueMemory>(type);
    child->fault = read_primitive(type, child->value->get(), path, &in_, &result_.notes);
    if (child->fault)
        return;
    child->fault = find_invalid(type, child->value->get(), path, start);
    child->outcome = child->fault ? Outcome::invalid : Outcome::valid;
}

void Walk::read_composite_child(const Type &type, const std::string &path, Candidate *child) {
    const std::uint32_t start = in_.at;
    std::uint32_t declared = 0;
    child->fault = read_header(type, path, &in_, &declared);
    if (child->fault)
        return;
    child->ie = create_ie(type);
    const Owner owner{nullptr, child->ie.get(), type.slots};
    child->fault = type.shape == Shape::sequence ? read_slots(owner, path)
                                                 : read_elements(owner, path, declared);
    if (child->fault)
        return;
    note_length(type, path, start, declared, in_.at - start - headerSize, &result_.notes);
    if (type.isIeValid(child->ie.get()) != 0) {
        child->outcome = Outcome::valid;
        return;
    }
    child->outcome = Outcome::invalid;
    if (const Slot *unmet = unmet_condition(owner))
        child->fault = Finding{in_.at, join(path, unmet->name), needed_words(*unmet)};
    else
        child->fault = Finding{start, path, count_fault(type, children(owner).size())};
}

// Tries a child at the current position; if it is not valid, the position is anywhere behind.
Candidate Walk::read_child(const Slot &slot, const std::string &path) {
    Candidate child;
    if (slot.type->is_composite())
        read_composite_child(*slot.type, path, &child);
    else
        read_primitive_child(*slot.type, path, &child);
    return child;
}

// Whether a child that is not taken refuses its owner, and why. What a conditional child does that
// decodes without being called for, or that is invalid, differs: it refuses a composite, while a
// message leaves it out.
Fault Walk::refusal(const Owner &owner, const Slot &slot, const std::string &path,
                    Candidate *child) {
    const bool isElement = slot.presence == protocol::Presence::repeated && !is_conditional(slot);
    if (slot.presence == protocol::Presence::mandatory || isElement)
        return std::move(child->fault);
    const bool stoodThere = in_.tag() == slot.type->tag;
    const bool calledFor = is_called_for(owner, slot);
    if (child->outcome == Outcome::valid)
        child->fault = Finding{in_.at, path, uncalled_words(slot)};
    if (is_conditional(slot)) {
        if (child->outcome == Outcome::absent && calledFor && !stoodThere)
            child->fault->what = needed_words(slot) + "; found " + label_of_tag(in_.tag());
        if (child->outcome == Outcome::absent ? calledFor : owner.ie != nullptr)
            return std::move(child->fault);
    }
    if (stoodThere)
        leftOut_.push_back({in_.at, slot.name, std::move(*child->fault)});
    return {};
}

// The bytes have ended before slot `next`. In a message that is a fault if a mandatory or a
// conditional child that is called for follows, but for a repeated one. A composite that lacks a
// conditional child ends here, and its validator then refuses it.
Fault Walk::end_of_bytes(const Owner &owner, std::size_t next, const std::string &path) const {
    for (; next < owner.slots.size(); ++next) {
        const Slot &slot = owner.slots[next];
        if (slot.presence == protocol::Presence::mandatory)
            return Finding{in_.at, join(path, slot.name),
                           "missing: the bytes end before " + label(*slot.type)};
        if (slot.presence == protocol::Presence::conditional && owner.msg != nullptr &&
            is_called_for(owner, slot))
            return Finding{in_.at, join(path, slot.name), needed_words(slot)};
    }
    return {};
}

// Tries the child of one slot at the current position and moves behind it if it is taken. Returns
// why the owner is refused, if it is.
Fault Walk::read_slot(const Owner &owner, const Slot &slot, const std::string &path) {
    const std::uint32_t start = in_.at;
    const std::size_t notes = result_.notes.size();
    Candidate child = read_child(slot, path);
    if (child.outcome == Outcome::valid && is_called_for(owner, slot)) {
        append(owner, slot, &child);
        return {};
    }
    in_.at = start;
    result_.notes.resize(notes);
    Fault fault = refusal(owner, slot, path, &child);
    if (fault && child.ie)
        append_ie(owner, slot, std::move(child.ie)); // shows how far it went
    return fault;
}

Fault Walk::read_slots(const Owner &owner, const std::string &path) {
    // A message object is created with its MessageId, which was read before.
    for (std::size_t i = owner.msg != nullptr ? 1 : 0; i < owner.slots.size(); ++i) {
        if (in_.left() == 0)
            return end_of_bytes(owner, i, path);
        if (Fault fault = read_slot(owner, owner.slots[i], join(path, owner.slots[i].name)))
            return fault;
    }
    return {};
}

// A list's length is what its elements may take together; each is bounded by the bytes that remain.
Fault Walk::read_elements(const Owner &list, const std::string &path, std::uint32_t declared) {
    const Slot &slot = list.slots.front();
    const std::uint32_t start = in_.at;
    for (unsigned index = 0; in_.at - start < declared; ++index) {
        const std::string elementPath = path + "[" + std::to_string(index) + "]";
        if (in_.left() == 0)
            return Finding{start - headerSize + tagSize, path,
                           "its length field says " + std::to_string(declared) +
                               ", but the bytes end after " + std::to_string(in_.at - start)};
        if (Fault fault = read_slot(list, slot, elementPath))
            return fault;
        if (in_.at - start > declared)
            return Finding{in_.at, elementPath,
                           "passes the end of " + path + ", whose length field says " +
                               std::to_string(declared)};
    }
    return {};
}

// ---- The message -------------------------------------------------------------------------------

Fault Walk::read_message_id() {
    const Slot &slot = protocol::messages().front()->slots.front();
    TarnMessageId id = 0;
    if (Fault fault = read_primitive(*slot.type, &id, slot.name, &in_, &result_.notes))
        return fault;
    result_.message = protocol::message_by_id(id);
    if (result_.message == nullptr)
        return Finding{headerSize, slot.name,
                       "no message has the id " + std::to_string(unsigned(id))};
    return {};
}

// Adds to the findings what was left out at the position where the walk stopped, and what, inside
// that, was left out where it stopped in its turn.
void Walk::add_left_out(std::uint32_t stop, std::vector<Finding> *findings) const {
    for (auto left = leftOut_.rbegin(); left != leftOut_.rend(); ++left) {
        if (left->at != stop)
            continue;
        findings->push_back(left->why);
        findings->back().what += std::string(", so ") + left->name + " was left out";
        stop = left->why.at;
    }
}

void Walk::check_validity(const Owner &owner) {
    if (result_.message->isValid(owner.msg) != 0)
        return;
    if (const Slot *unmet = unmet_condition(owner))
        result_.faults.push_back({in_.at, unmet->name, needed_words(*unmet)});
    else
        result_.faults.push_back({in_.at, result_.message->name, "not valid"});
}

// Bytes behind the last IE that the message takes are ignored. Tells what they are.
void Walk::explain_rest(const Owner &owner) {
    if (in_.left() == 0)
        return;
    Finding rest{in_.at, "", counted(in_.left(), "byte") + " ignored"};
    if (in_.left() >= headerSize) {
        const bool belongs = std::any_of(owner.slots.begin(), owner.slots.end(),
                                         [&](auto &slot) { return slot.type->tag == in_.tag(); });
        rest.what += ", from " + label_of_tag(in_.tag()) + " on";
        if (!belongs)
            rest.what += std::string(", which is no IE of ") + result_.message->name;
        else if (leftOut_.empty() || leftOut_.back().at != in_.at)
            rest.what += ", which stands twice or out of order";
    }
    result_.notes.push_back(std::move(rest));
    add_left_out(in_.at, &result_.notes);
}

Diagnosis Walk::run() {
    if (Fault fault = read_message_id()) {
        result_.faults.push_back(std::move(*fault));
        return std::move(result_);
    }
    result_.decoded = MsgPtr(result_.message->create());
    const Owner owner{result_.decoded.get(), nullptr, result_.message->slots};
    if (Fault fault = read_slots(owner, "")) {
        result_.faults.push_back(std::move(*fault));
        add_left_out(result_.faults.front().at, &result_.faults);
        return std::move(result_);
    }
    result_.isDecodable = true;
    result_.consumed = in_.at;
    check_validity(owner);
    explain_rest(owner);
    return std::move(result_);
}

} // namespace

std::string words(const Finding &finding) {
    const std::string place = byte_words(finding.at);
    return finding.path.empty() ? place + ": " + finding.what
                                : place + ", " + finding.path + ": " + finding.what;
}

Diagnosis diagnose(const std::uint8_t *bytes, std::uint32_t length) {
    return Walk(bytes, length).run();
}

} // namespace tool
