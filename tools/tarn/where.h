// A small language that says which messages are wanted.
//
//   expression   all || all ...                   one of them holds
//   all          test && test ...                 each of them holds
//   test         ! test | ( expression ) | PATH | PATH OPERATOR VALUE
//   PATH         names of IEs with dots between, as RabList.RabId: names may be left out in front
//                and in between; or message, direction, verdict, reason, from, to, packet, size
//   OPERATOR     == != < <= > >=
//   VALUE        a number (decimal or after 0x), or text, in quotes where it holds blanks or signs:
//                digits, hex or an address, in which * and ? stand for any characters
//
// A path alone asks whether there is such an IE. Of several values at a path one suffices; a != b
// is the same as !(a == b).
#ifndef TARN_TOOL_WHERE_H
#define TARN_TOOL_WHERE_H

#include <memory>
#include <optional>

#include "tarn/commands.h"
#include "tarn/judged.h"

namespace tool {

class Condition {
public:
    virtual ~Condition() = default;
    virtual bool holds(const Judged &judged) const = 0;
};
using ConditionPtr = std::unique_ptr<const Condition>;

// Throws UsageError.
ConditionPtr parse_condition(std::string_view text);

// What all options for finding say together. Throws UsageError.
//   --only, --not    terms with commas between: a message's name with * and ?, up (AP to AC), down,
//                    valid, invalid, refused, or a comparison as above: Srnti=0x1e240
class Filter {
public:
    explicit Filter(const FilterOptions &options);
    bool takes(const Judged &judged) const;

private:
    std::vector<ConditionPtr> only_;
    std::vector<ConditionPtr> butNot_;
    ConditionPtr where_;
    bool errors_;
};

// "up" for AP to AC, "down", or "both" where the message's row does not tell.
std::string_view direction_of(const TarnInfoMessage *message);

// A path of IE names, as people write it.
class Path {
public:
    // Throws UsageError for a name that no IE has.
    explicit Path(std::string_view text);
    // Calls `visit(part, isHere)` for each part of the message, `isHere` for those at this path,
    // until it returns false.
    template <class Visit>
    void visit(const Judged &judged, Visit visit) const;

private:
    std::vector<std::string> names_;
};

template <class Visit>
void Path::visit(const Judged &judged, Visit visit) const {
    // How many of the names the parts above the present one have matched, by depth.
    constexpr std::size_t deepest = 32;
    std::size_t matched[deepest + 1] = {};
    judged.visit_parts([&](const TarnInfoPart &part) {
        if (part.depth >= deepest)
            return bool(visit(part, false));
        const std::size_t above = matched[part.depth];
        const bool isNext = above + 1 < names_.size() && names_[above] == part.name;
        matched[part.depth + 1] = above + (isNext ? 1 : 0);
        return bool(visit(part, above + 1 == names_.size() && names_[above] == part.name));
    });
}

} // namespace tool

#endif
