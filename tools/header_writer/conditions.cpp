#include "pages.h"

namespace header_writer {
namespace {

// "A", "A and B", "A, B and C".
std::string enumeration(const std::vector<std::string> &names) {
    std::string text;
    for (size_t i = 0; i < names.size(); ++i)
        text += (i == 0 ? "" : i + 1 == names.size() ? " and " : ", ") + names[i];
    return text;
}

template <typename Owner>
std::string decided_slots(const std::vector<Owner> &owners, const std::string &condition) {
    std::string text;
    for (const Owner &owner : owners) {
        std::vector<std::string> members;
        for (const Slot &slot : owner.slots)
            if (slot.condition == condition)
                members.push_back(slot.member);
        if (!members.empty())
            text += " It decides whether " + owner.name + " has " + enumeration(members) + ".";
    }
    return text;
}

std::string decides(const Catalogue &catalogue, const Condition &row) {
    const std::string text =
        decided_slots(catalogue.messages, row.name) + decided_slots(catalogue.composites, row.name);
    return text.empty() ? " No rule of the library asks it." : text;
}

} // namespace

void write_predicates(Page &page, const Catalogue &catalogue, bool amongChildren) {
    for (const Condition &row : catalogue.conditions) {
        if (row.amongChildren != amongChildren)
            continue;
        std::vector<std::string> parameters = {"const TarnMsg *msg"};
        if (amongChildren)
            parameters.push_back("const Tarn" + catalogue.owner_of(row).name + "Ie *ie");
        page.function("uint32_t", row.predicate, parameters,
                      "returns 1 if " + row.meaning + ", and 0 if not or if there is no " + row.ie +
                          "." + decides(catalogue, row));
    }
}

} // namespace header_writer
