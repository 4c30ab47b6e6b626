// Why bytes are refused and what is let pass: the codec's own judge, with a listener.
#include <algorithm>

#include "explanation.h"
#include "judging.h"
#include "tarn_if_internal_funcs/judging.h"

namespace info {

namespace {

using tarn::Fate;
using tarn::getToken;
using tarn::Outcome;
using tarn::Place;
using tarn::Reason;

// More are not told: hostile bytes could ask for millions.
constexpr std::size_t mostNotes = 1000;

// What became of the IE or value that is being tried. Most that is found is an optional IE that is
// not there, so it is put into words only when it matters.
struct Frame {
    Place place{};
    const TarnInfoType *type = nullptr;
    std::uint32_t at = 0;
    std::size_t notes = 0;         // told before it
    std::uint32_t lastElement = 0; // of a list
    Reason found = Reason::none;   // here, with position and number
    std::uint32_t foundAt = 0;
    std::uint32_t number = 0;
    Finding below{};            // or in a part of it
    bool isUndecodable = false; // by what was found

    // Whether what is known already outweighs another finding of this kind. Once an element has
    // passed the end of its list, nothing behind it is of interest.
    bool is_settled(bool byUndecodable) const {
        return (found != Reason::none || below) &&
               (found == Reason::pastEnd || isUndecodable || !byUndecodable);
    }
};

class Listener {
public:
    Listener(const std::uint8_t *bytes, std::uint32_t length, Explanation *explanation)
        : bytes_(bytes), length_(length), out_(*explanation) {
        frames_.emplace_back(); // the message
    }

    void enters(Place place, tarn::TypeId type, const std::uint8_t *at) {
        Frame &owner = frames_.back();
        if (place.kind == Place::element && owner.found != Reason::pastEnd)
            owner.lastElement = place.number;
        frames_.push_back({place, &facts.types[type], offset_of(at), out_.foundNotes.size()});
    }

    void finds(Reason reason, const std::uint8_t *at, std::uint32_t number) {
        Frame &frame = frames_.back();
        if (frame.is_settled(!tarn::decodes(reason)))
            return;
        frame.found = reason;
        frame.foundAt = offset_of(at);
        frame.number = number;
        frame.isUndecodable = !tarn::decodes(reason);
    }

    void reads(std::uint32_t declared, std::uint32_t used) {
        const Frame &frame = frames_.back();
        if (declared == used || out_.foundNotes.size() == mostNotes)
            return;
        TarnInfoWords words{};
        words.type = frame.type;
        words.number = declared;
        words.other = used;
        out_.foundNotes.push_back(
            make_finding(frame.at + tagSize, TarnInfoLengthDiffers, path(), words));
    }

    void leaves(Outcome outcome, Fate fate) {
        Frame &frame = frames_.back();
        Frame &owner = frames_[frames_.size() - 2];
        if (fate == Fate::refuses) {
            refuse(&frame, &owner);
        } else if (fate == Fate::leftOut) {
            hasStopped_ = false;
            leave_out(outcome.reason, &frame, &owner);
        } else if (outcome.reason != Reason::none) { // a member or item out of range
            hand_up(&frame, &owner);
        } else if (frames_.size() == 2) {
            taken_.push_back(slot_of(frame.place));
        }
        if (fate != Fate::taken)
            out_.foundNotes.resize(frame.notes);
        frames_.pop_back();
    }

    // Once the judge is done.
    void conclude(const Outcome &outcome);

private:
    std::uint32_t offset_of(const std::uint8_t *at) const { return std::uint32_t(at - bytes_); }
    static const TarnInfoSlot *slot_of(Place place) {
        return place.kind == Place::slot     ? &facts.slots[place.number]
               : place.kind == Place::member ? &facts.members[place.number]
                                             : nullptr;
    }

    std::string path() const {
        std::string path;
        for (std::size_t i = 1; i < frames_.size(); ++i) {
            const Place place = frames_[i].place;
            const TarnInfoSlot *slot = slot_of(place);
            path = slot != nullptr ? join(path, slot->name) : join(path, place.number);
        }
        return path;
    }

    // What was found in the innermost frame, in words.
    Finding finding() const;
    Finding take_finding(Frame *frame) {
        return frame->found != Reason::none ? finding() : std::move(frame->below);
    }

    void hand_up(Frame *frame, Frame *owner) {
        if (owner->is_settled(frame->isUndecodable))
            return;
        owner->below = take_finding(frame);
        owner->found = Reason::none;
        owner->isUndecodable = frame->isUndecodable;
    }

    void refuse(Frame *frame, Frame *owner) {
        const bool isIe = frame->place.kind == Place::slot || frame->place.kind == Place::element;
        if (isIe && !hasStopped_)
            stop_ = frame->at;
        hasStopped_ = hasStopped_ || isIe;
        hand_up(frame, owner);
    }

    void leave_out(Reason reason, Frame *frame, Frame *owner) {
        if (frame->found == Reason::conditionUnmet) // its owner ends without it
            return hand_up(frame, owner);
        // With not even a tag left, nothing stands there.
        const bool stoodThere = reason != Reason::noBytes && reason != Reason::otherTag &&
                                length_ - frame->at >= tagSize;
        if (stoodThere)
            leftOut_.push_back({frame->at, slot_of(frame->place), take_finding(frame)});
    }

    void add_left_out(std::uint32_t stop, std::vector<Finding> *findings) const;
    void check_conditions();
    void explain_rest(std::uint32_t at);

    // Optional children that stood at their place and were not taken. The walk never gets past such
    // a place, since no other slot that follows takes the same tag.
    struct LeftOut {
        std::uint32_t at;
        const TarnInfoSlot *slot;
        Finding why;
    };

    const std::uint8_t *bytes_;
    std::uint32_t length_;
    Explanation &out_;
    std::vector<Frame> frames_;
    std::vector<LeftOut> leftOut_;
    std::vector<const TarnInfoSlot *> taken_; // of the message
    std::uint32_t stop_ = 0;                  // where the IE begins that refuses the message
    bool hasStopped_ = false;
};

// What the judge found, in words and at the place where people look for it.
Finding Listener::finding() const {
    const Frame &frame = frames_.back();
    const Frame &owner = frames_[frames_.size() > 1 ? frames_.size() - 2 : 0];
    const std::uint32_t number = frame.number;
    std::uint32_t at = frame.foundAt;
    TarnInfoWords words{};
    words.type = frame.type;
    words.slot = slot_of(frame.place);
    words.number = number;
    const auto found = [&](TarnInfoReason why) { return make_finding(at, why, path(), words); };
    switch (frame.found) {
    case Reason::noBytes:
        words.slot = nullptr;
        return found(TarnInfoBytesEnd);
    case Reason::otherTag:
        words.found = number;
        // A child that is called for was not merely expected.
        return found(words.slot != nullptr && words.slot->condition != nullptr
                         ? TarnInfoNeededButFound
                         : TarnInfoWrongTag);
    case Reason::shortHeader:
        return found(TarnInfoHeaderCut);
    case Reason::otherWidth:
        words.slot = nullptr;
        return found(TarnInfoWrongWidth);
    case Reason::beyondBytes:
        words.other = length_ - at - (headerSize - tagSize);
        return found(TarnInfoLengthBeyondBytes);
    case Reason::beyondArray:
        words.slot = nullptr;
        return found(TarnInfoLengthBeyondArray);
    case Reason::usedUp:
        words.type = owner.type;
        return found(TarnInfoMemberMissing);
    case Reason::tooManyItems:
        words.type = owner.type;
        return found(TarnInfoTooManyItems);
    case Reason::bytesEnd:
        words.other = at - frame.at - headerSize;
        at = frame.at + tagSize;
        return found(TarnInfoListEnds);
    case Reason::pastEnd: {
        const std::string list = path();
        words.owner = list.c_str();
        return make_finding(at, TarnInfoElementBeyondList, join(list, frame.lastElement), words);
    }
    case Reason::uncalled:
        return found(TarnInfoNotCalledFor);
    case Reason::conditionUnmet:
        return found(TarnInfoNeeded);
    default:
        if (frame.type->shape == TarnInfoCompositeList)
            at = frame.at; // it is the IE that is wrong, not its first element
        if (frame.type->shape != TarnInfoNumber)
            return found(TarnInfoCountOutOfRange);
        return found(number < frame.type->least ? TarnInfoBelowLeast : TarnInfoAboveGreatest);
    }
}

// Adds what was left out at the position where the walk stopped, and what, inside that, was left
// out where it stopped in its turn.
void Listener::add_left_out(std::uint32_t stop, std::vector<Finding> *findings) const {
    for (auto left = leftOut_.rbegin(); left != leftOut_.rend(); ++left) {
        if (left->at != stop)
            continue;
        TarnInfoWords words{};
        words.slot = left->slot;
        findings->push_back(left->why);
        findings->back().sentence += sentence(TarnInfoLeftOut, words);
        stop = left->why.offset;
    }
}

// What only the validator sees: a child that is called for and was left out, or is not there.
void Listener::check_conditions() {
    const tarn::NumbersInBytes numbers{tarn::slots_of(tarn::MessageNumber(out_.message->id)),
                                       bytes_};
    for (const TarnInfoSlot &slot : slots_of(*out_.message)) {
        const tarn::Slot &row = tarn::catalogue.slots[&slot - facts.slots];
        if (slot.condition == nullptr || !tarn::condition_holds(row.condition, numbers) ||
            std::find(taken_.begin(), taken_.end(), &slot) != taken_.end())
            continue;
        TarnInfoWords words{};
        words.slot = &slot;
        out_.verdict = TarnInfoInvalid;
        out_.foundFaults.push_back(make_finding(out_.consumed, TarnInfoNeeded, slot.name, words));
        return;
    }
}

// Bytes behind the last IE that the message takes are ignored. Tells what they are.
void Listener::explain_rest(std::uint32_t at) {
    if (at == length_)
        return;
    TarnInfoWords words{};
    words.number = length_ - at;
    words.message = out_.message;
    TarnInfoReason reason = TarnInfoIgnored;
    if (length_ - at >= headerSize) {
        words.found = load16(bytes_ + at);
        const Slots slots = slots_of(*out_.message);
        const bool belongs = std::any_of(slots.begin(), slots.end(),
                                         [&](auto &slot) { return slot.type->tag == words.found; });
        reason = !belongs                                       ? TarnInfoIgnoredForeign
                 : leftOut_.empty() || leftOut_.back().at != at ? TarnInfoIgnoredUnordered
                                                                : TarnInfoIgnoredFrom;
    }
    out_.foundNotes.push_back(make_finding(at, reason, "", words));
    add_left_out(at, &out_.foundNotes);
}

void Listener::conclude(const Outcome &outcome) {
    if (!tarn::decodes(outcome.reason)) {
        out_.verdict = TarnInfoRefused;
        out_.token = getToken;
        out_.consumed = stop_;
        out_.foundFaults.push_back(std::move(frames_.front().below));
        add_left_out(out_.foundFaults.front().offset, &out_.foundFaults);
        return;
    }
    out_.verdict = TarnInfoValid;
    out_.consumed = outcome.size;
    check_conditions();
    explain_rest(outcome.size);
}

// Hears of lengths alone.
struct Lengths {
    void enters(Place, tarn::TypeId, const std::uint8_t *) {}
    void finds(Reason, const std::uint8_t *, std::uint32_t) {}
    void reads(std::uint32_t declared, std::uint32_t used) { agree = agree && declared == used; }
    void leaves(Outcome, Fate) {}

    bool agree = true;
};

template <class Heard>
Outcome judge(const TarnInfoMessage &message, const std::uint8_t *bytes, std::uint32_t length,
              Heard *heard) {
    tarn::Input in{bytes, length};
    const Reason reason =
        tarn::Judge<Heard>(heard).slots(tarn::catalogue.messages[message.id].slots, &in);
    return {length - in.left, reason};
}

// The bytes do not begin with the id of a message: tells what is wrong with the MessageId.
void explain_id(const std::uint8_t *bytes, std::uint32_t length, Explanation *out) {
    const TarnInfoMessage &any = *tarnInfoMessages(nullptr)[0]; // they all begin alike
    Explanation ofAny;
    ofAny.message = &any;
    Listener listener(bytes, length, &ofAny);
    listener.conclude(judge(any, bytes, length, &listener));
    out->verdict = TarnInfoRefused;
    out->token = getToken;
    const char *path = any.slots->name;
    if (!ofAny.foundFaults.empty() && ofAny.foundFaults.front().path == path) {
        out->foundFaults.push_back(std::move(ofAny.foundFaults.front()));
        return;
    }
    TarnInfoWords words{};
    words.number = bytes[headerSize];
    out->foundFaults.push_back(make_finding(headerSize, TarnInfoUnknownMessageId, path, words));
}

} // namespace

void explain_bytes(const std::uint8_t *bytes, std::uint32_t length, Explanation *out) {
    static constexpr std::uint8_t nothing[1] = {};
    if (bytes == nullptr) {
        bytes = nothing;
        length = 0;
    }
    out->message = message_of_id(TarnGetMessageId(bytes, length));
    if (out->message == nullptr)
        return explain_id(bytes, length, out);
    Listener listener(bytes, length, out);
    listener.conclude(judge(*out->message, bytes, length, &listener));
}

} // namespace info

using namespace info;

// A valid message needs no explanation.
TarnInfoJudgement tarnInfoJudge(const uint8_t *bytes, uint32_t length) try {
    const TarnInfoMessage *message =
        bytes != nullptr ? message_of_id(TarnGetMessageId(bytes, length)) : nullptr;
    if (message == nullptr)
        return {TarnInfoRefused, nullptr, 0, 0};
    Lengths lengths;
    const Outcome outcome = judge(*message, bytes, length, &lengths);
    if (outcome.reason == Reason::none && outcome.size == length && lengths.agree)
        return {TarnInfoValid, message, length, 1};
    Explanation explanation;
    explain_bytes(bytes, length, &explanation);
    return {explanation.verdict, message, explanation.consumed, 0};
} catch (const std::bad_alloc &) {
    return {TarnInfoRefused, nullptr, 0, 0};
}

const TarnInfoExplanation *tarnInfoExplainBytes(const uint8_t *bytes, uint32_t length) {
    return explain([&](Explanation *explanation) { explain_bytes(bytes, length, explanation); });
}

void tarnInfoFreeExplanation(const TarnInfoExplanation *explanation) {
    delete static_cast<const Explanation *>(explanation);
}
