// Two messages side by side.
#include <new>
#include <unordered_map>
#include <vector>

#include "explanation.h"
#include "judging.h"
#include "printing.h"

namespace info {

namespace {

// One value as JSON, and where it stands.
struct Leaf {
    std::string path;
    std::string value;
};

void append(void *context, const char *text, std::uint32_t length) {
    static_cast<std::string *>(context)->append(text, length);
}

// The numbers and strings of a message; what has parts stands for itself where it has none.
class Leaves {
public:
    bool enter(const TarnInfoPart &part, const TarnInfoSlot *slot) {
        add(part, slot, is_list(*part.type) ? "[]" : "{}");
        return true;
    }
    bool leaf(const TarnInfoPart &part, const TarnInfoSlot *slot) {
        std::string value;
        Text text(append, &value);
        put_json_value(part, 0, &text);
        text.flush();
        add(part, slot, std::move(value));
        leave(part);
        return true;
    }
    void leave(const TarnInfoPart &) {
        path_.resize(ends_.back());
        ends_.pop_back();
    }

    std::vector<Leaf> all;

private:
    void add(const TarnInfoPart &part, const TarnInfoSlot *slot, std::string value) {
        if (!all.empty() && !ends_.empty() && all.back().path == path_)
            all.pop_back(); // its owner is not empty
        ends_.push_back(path_.size());
        if (slot != nullptr)
            path_ = join(path_, slot->name);
        if (part.index != TarnInfoNoIndex)
            path_ = join(path_, part.index);
        all.push_back({path_, std::move(value)});
    }

    std::string path_;
    std::vector<std::size_t> ends_; // of the paths of what is open
};

std::vector<Leaf> leaves_of(const Packed &packed) {
    Leaves leaves;
    const Judged judged = packed.judged();
    Reader(judged.bytes, judged.taken, judged.origin, &leaves).message(*judged.message);
    return std::move(leaves.all);
}

class Teller {
public:
    Teller(TarnInfoTellDifference *listener, void *context) : tell_(listener), context_(context) {}

    void tell(const std::string &path, const char *left, const char *right) {
        const TarnInfoDifference difference{path.c_str(), left, right};
        if (tell_ != nullptr)
            tell_(context_, &difference);
        ++count;
    }

    std::uint32_t count = 0;

private:
    TarnInfoTellDifference *tell_;
    void *context_;
};

void compare(const std::vector<Leaf> &left, const std::vector<Leaf> &right, Teller *teller) {
    std::unordered_map<std::string_view, const char *> others;
    for (const Leaf &leaf : right)
        others.emplace(leaf.path, leaf.value.c_str());
    for (const Leaf &leaf : left) {
        const auto other = others.find(leaf.path);
        if (other == others.end()) {
            teller->tell(leaf.path, leaf.value.c_str(), nullptr);
            continue;
        }
        if (leaf.value != other->second)
            teller->tell(leaf.path, leaf.value.c_str(), other->second);
        others.erase(other);
    }
    for (const Leaf &leaf : right)
        if (others.count(leaf.path) != 0)
            teller->tell(leaf.path, nullptr, leaf.value.c_str());
}

} // namespace

} // namespace info

uint32_t tarnInfoCompareMsgs(const TarnMsg *left, const TarnMsg *right,
                             TarnInfoTellDifference *tell, void *context) try {
    const info::Packed a = info::pack(left);
    const info::Packed b = info::pack(right);
    if (a.size == 0 || b.size == 0)
        return UINT32_MAX;
    info::Teller teller(tell, context);
    info::compare(info::leaves_of(a), info::leaves_of(b), &teller);
    return teller.count;
} catch (const std::bad_alloc &) {
    return UINT32_MAX;
}
