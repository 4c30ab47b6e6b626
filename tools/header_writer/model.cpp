#include "model.h"

#include <set>
#include <stdexcept>

namespace header_writer {
namespace {

std::vector<Primitive> read_primitives() {
    std::vector<Primitive> rows;
#define SCALAR_ROW(form_, name_, tag_, type_, width_, least_, greatest_, term_)                    \
    rows.push_back(                                                                                \
        {#name_, Shape::scalar, form_, tag_, #type_, width_, 0, least_, greatest_, term_, {}});
#define RECORD_ROW(form_, name_, tag_, term_)                                                      \
    rows.push_back({#name_, Shape::record, form_, tag_, "", 0, 0, 0, 0, term_, {}});
#define SCALAR(name_, tag_, type_, width_, least_, greatest_, term_)                               \
    SCALAR_ROW(Form::ie, name_, tag_, type_, width_, least_, greatest_, term_)
#define ITEM_SCALAR(name_, tag_, type_, width_, least_, greatest_, term_)                          \
    SCALAR_ROW(Form::item, name_, tag_, type_, width_, least_, greatest_, term_)
#define FREE_SCALAR(name_, type_, width_, least_, greatest_, term_)                                \
    SCALAR_ROW(Form::free, name_, 0, type_, width_, least_, greatest_, term_)
#define BYTES(name_, tag_, capacity_, least_, greatest_, term_)                                    \
    rows.push_back(                                                                                \
        {#name_, Shape::bytes, Form::ie, tag_, "", 0, capacity_, least_, greatest_, term_, {}});
#define RECORD(name_, tag_, term_)      RECORD_ROW(Form::ie, name_, tag_, term_)
#define ITEM_RECORD(name_, tag_, term_) RECORD_ROW(Form::item, name_, tag_, term_)
#define FREE_RECORD(name_, term_)       RECORD_ROW(Form::free, name_, 0, term_)
#define MEMBER(name_, member_)          rows.back().members.push_back(#member_);
#define LIST(name_, tag_, item_, capacity_, least_, greatest_, term_)                              \
    rows.push_back({#name_,                                                                        \
                    Shape::list,                                                                   \
                    Form::ie,                                                                      \
                    tag_,                                                                          \
                    "",                                                                            \
                    0,                                                                             \
                    capacity_,                                                                     \
                    least_,                                                                        \
                    greatest_,                                                                     \
                    term_,                                                                         \
                    {#item_}});
#include "catalogue/primitive_ies.def"
#undef SCALAR_ROW
#undef RECORD_ROW
    return rows;
}

// Slot rows stand behind their owner's row, so they belong to the last row read.
#define PRIMITIVE_SLOT_ROW(child_, presence_, condition_)                                          \
    rows.back().slots.push_back({#child_, #child_, Presence::presence_, #condition_, false, false});
#define COMPOSITE_SLOT_ROW(child_, presence_, condition_)                                          \
    rows.back().slots.push_back({#child_, #child_, Presence::presence_, #condition_, true, false});
#define SECOND_SLOT_ROW(child_, member_, presence_, condition_)                                    \
    rows.back().slots.push_back({#child_, #member_, Presence::presence_, #condition_, false, true});

std::vector<Composite> read_composites() {
    std::vector<Composite> rows;
#define SEQUENCE(name_, tag_, rule_, term_)                                                        \
    rows.push_back({#name_, tag_, term_, UnpackRule::rule_, {}, "", 0, 0});
#define COMPOSITE_LIST(name_, tag_, element_, least_, greatest_, term_)                            \
    rows.push_back({#name_, tag_, term_, UnpackRule::none, {}, #element_, least_, greatest_});
#define PRIMITIVE_SLOT(owner_, child_, presence_, condition_)                                      \
    PRIMITIVE_SLOT_ROW(child_, presence_, condition_)
#define COMPOSITE_SLOT(owner_, child_, presence_, condition_)                                      \
    COMPOSITE_SLOT_ROW(child_, presence_, condition_)
#define SECOND_SLOT(owner_, child_, member_, presence_, condition_)                                \
    SECOND_SLOT_ROW(child_, member_, presence_, condition_)
#include "catalogue/composite_ies.def"
    return rows;
}

std::vector<Message> read_messages() {
    std::vector<Message> rows;
#define MESSAGE(name_, id_, rule_, append_token_, validity_token_, pack_token_, term_)             \
    rows.push_back(                                                                                \
        {#name_, id_, term_, append_token_, validity_token_, pack_token_, UnpackRule::rule_, {}});
#define PRIMITIVE_SLOT(owner_, child_, presence_, condition_)                                      \
    PRIMITIVE_SLOT_ROW(child_, presence_, condition_)
#define COMPOSITE_SLOT(owner_, child_, presence_, condition_)                                      \
    COMPOSITE_SLOT_ROW(child_, presence_, condition_)
#define SECOND_SLOT(owner_, child_, member_, presence_, condition_)                                \
    SECOND_SLOT_ROW(child_, member_, presence_, condition_)
#include "catalogue/messages.def"
    return rows;
}

std::vector<Condition> read_conditions() {
    constexpr bool inside = true;
    constexpr bool outside = false;
    std::vector<Condition> rows;
#define CONDITION_FOR_MSG(name_, predicate_, ie_, values_, counts_, meaning_)                      \
    rows.push_back({#name_, #predicate_, #ie_, values_, counts_, meaning_, false});
#define CONDITION_FOR_IE(name_, predicate_, ie_, values_, counts_, meaning_)                       \
    rows.push_back({#name_, #predicate_, #ie_, values_, counts_, meaning_, true});
#include "catalogue/conditions.def"
    return rows;
}

constexpr uint32_t getToken =
#define GET_TOKEN(token_) token_;
#include "catalogue/messages.def"

    template <typename Row>
    const Row & find(const std::vector<Row> &rows, const std::string &name) {
    for (const Row &row : rows)
        if (row.name == name)
            return row;
    throw std::runtime_error("no row is named " + name);
}

std::vector<std::string> needs(const Primitive &row) {
    return row.members;
}

std::vector<std::string> needs(const Composite &row) {
    return row.composites();
}

template <typename Row>
void place(const Row &row, const std::vector<Row> &rows, std::set<std::string> &placed,
           std::vector<Row> &ordered) {
    if (!placed.insert(row.name).second)
        return;
    for (const std::string &name : needs(row))
        place(find(rows, name), rows, placed, ordered);
    ordered.push_back(row);
}

// Keeps the rows' own order wherever what a row is made of allows it.
template <typename Row>
std::vector<Row> dependencies_first(const std::vector<Row> &rows) {
    std::set<std::string> placed;
    std::vector<Row> ordered;
    for (const Row &row : rows)
        place(row, rows, placed, ordered);
    return ordered;
}

} // namespace

std::vector<std::string> Composite::composites() const {
    if (is_list())
        return {element};
    std::vector<std::string> names;
    for (const Slot &slot : slots)
        if (slot.composite)
            names.push_back(slot.child);
    return names;
}

const Primitive &Catalogue::primitive(const std::string &name) const {
    return find(primitives, name);
}

const Composite &Catalogue::composite(const std::string &name) const {
    return find(composites, name);
}

const Condition &Catalogue::condition(const std::string &name) const {
    return find(conditions, name);
}

uint32_t Catalogue::tag_of(const Slot &slot) const {
    return slot.composite ? composite(slot.child).tag : primitive(slot.child).tag;
}

const Primitive &Catalogue::list_of(const Primitive &item) const {
    for (const Primitive &row : primitives)
        if (row.shape == Shape::list && row.members.front() == item.name)
            return row;
    throw std::runtime_error("no list has items of " + item.name);
}

const Composite &Catalogue::owner_of(const Condition &condition) const {
    for (const Composite &row : composites)
        for (const Slot &slot : row.slots)
            if (slot.condition == condition.name)
                return row;
    throw std::runtime_error("no composite has a slot under the condition " + condition.name);
}

Catalogue read_catalogue() {
    return {dependencies_first(read_primitives()), dependencies_first(read_composites()),
            read_messages(), read_conditions(), getToken};
}

std::vector<uint32_t> presence_bits(const std::vector<Slot> &slots) {
    std::vector<uint32_t> bits;
    unsigned before = 0;
    for (const Slot &slot : slots) {
        bits.push_back(tarn::presence_bit(slot.presence, before));
        before += slot.presence != Presence::mandatory;
    }
    return bits;
}

} // namespace header_writer
