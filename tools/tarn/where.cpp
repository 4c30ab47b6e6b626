#include "tarn/where.h"

#include <algorithm>
#include <cstring>
#include <functional>

#include "tarn/terminal.h"
#include "tarn/wire.h"
#include "tarn/writing.h"

namespace tool {

namespace {

enum class Operator { equal, unequal, less, lessOrEqual, greater, greaterOrEqual };

struct Value {
    std::string text;
    std::optional<std::uint64_t> number;
};

std::optional<std::uint64_t> number_of(std::string_view text) {
    const bool isHex = text.starts_with("0x") || text.starts_with("0X");
    if (isHex)
        text.remove_prefix(2);
    std::uint64_t number = 0;
    const char *end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number, isHex ? 16 : 10);
    if (text.empty() || stop != end || error != std::errc())
        return {};
    return number;
}

// Whether text fits a pattern with * and ?. Goes back to the last * alone, so it takes at most the
// product of both lengths.
bool fits(std::string_view pattern, std::string_view text) {
    std::size_t p = 0;
    std::size_t t = 0;
    std::size_t star = pattern.npos;
    std::size_t mark = 0;
    while (t < text.size()) {
        if (p < pattern.size() && (pattern[p] == '?' || pattern[p] == text[t]) &&
            pattern[p] != '*') {
            ++p;
            ++t;
        } else if (p < pattern.size() && pattern[p] == '*') {
            star = p++;
            mark = t;
        } else if (star != pattern.npos) {
            p = star + 1;
            t = ++mark;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', p) == pattern.npos;
}

template <class T>
bool compare(Operator op, const T &a, const T &b) {
    switch (op) {
    case Operator::less:
        return a < b;
    case Operator::lessOrEqual:
        return a <= b;
    case Operator::greater:
        return a > b;
    case Operator::greaterOrEqual:
        return a >= b;
    default:
        return a == b; // what is unequal is asked for as not equal
    }
}

bool compare_text(Operator op, std::string_view text, const Value &value) {
    return op == Operator::equal ? fits(value.text, text)
                                 : compare(op, text, std::string_view(value.text));
}

// ---- What can be asked of a message ------------------------------------------------------------

class Any final : public Condition {
public:
    Any(ConditionPtr a, ConditionPtr b) : a_(std::move(a)), b_(std::move(b)) {}
    bool holds(const Judged &judged) const override {
        return a_->holds(judged) || b_->holds(judged);
    }

private:
    ConditionPtr a_;
    ConditionPtr b_;
};

class Not final : public Condition {
public:
    explicit Not(ConditionPtr inner) : inner_(std::move(inner)) {}
    bool holds(const Judged &judged) const override { return !inner_->holds(judged); }

private:
    ConditionPtr inner_;
};

ConditionPtr both(ConditionPtr a, ConditionPtr b) {
    return std::make_unique<Not>(std::make_unique<Any>(std::make_unique<Not>(std::move(a)),
                                                       std::make_unique<Not>(std::move(b))));
}

// Something that is told of the message as a whole.
class OfMessage final : public Condition {
public:
    using Read = std::function<std::string(const Judged &)>;

    OfMessage(Read read, Operator op, Value value)
        : read_(std::move(read)), op_(op), value_(std::move(value)) {}
    bool holds(const Judged &judged) const override {
        const std::string text = read_(judged);
        const std::optional<std::uint64_t> number = number_of(text);
        if (number && value_.number)
            return compare(op_, *number, *value_.number);
        return compare_text(op_, text, value_);
    }

private:
    Read read_;
    Operator op_;
    Value value_;
};

class OfPath final : public Condition {
public:
    OfPath(std::string_view path, std::optional<Operator> op, Value value)
        : path_(path), op_(op), value_(std::move(value)) {}

    bool holds(const Judged &judged) const override {
        bool found = false;
        path_.visit(judged, [this, &found](const TarnInfoPart &part, bool isHere) {
            found = isHere && (!op_ || part_holds(part));
            return !found;
        });
        return found;
    }

private:
    bool part_holds(const TarnInfoPart &part) const {
        if (part.type->shape == TarnInfoNumber && value_.number)
            return compare(*op_, std::uint64_t{part.number}, *value_.number);
        if (!is_leaf(part))
            return false;
        std::string text;
        append_value(part, &text);
        const std::string form = readable(part);
        return compare_text(*op_, text, value_) ||
               (!form.empty() && compare_text(*op_, form, value_));
    }

    Path path_;
    std::optional<Operator> op_;
    Value value_;
};

std::string reason_of(const Judged &judged) {
    if (judged.is_plain())
        return {};
    const TarnInfoExplanation &why = judged.explanation();
    return why.faultCount != 0 ? tarnInfoReasonName(why.faults[0].reason) : "";
}

std::string end_of(const capture::Endpoint &end) {
    std::string text;
    append_endpoint(end, &text);
    return text;
}

const std::pair<std::string_view, OfMessage::Read> ofMessage[] = {
    {"message", [](const Judged &judged) { return std::string(judged.name()); }},
    {"direction", [](const Judged &judged) { return std::string(direction_of(judged.message())); }},
    {"verdict",
     [](const Judged &judged) { return std::string(tarnInfoVerdictWord(judged.verdict())); }},
    {"reason", reason_of},
    {"from", [](const Judged &judged) { return end_of(judged.found().from); }},
    {"to", [](const Judged &judged) { return end_of(judged.found().to); }},
    {"packet", [](const Judged &judged) { return std::to_string(judged.found().packet); }},
    {"size", [](const Judged &judged) { return std::to_string(judged.size()); }},
};

ConditionPtr make_condition(std::string_view path, std::optional<Operator> op, Value value) {
    const bool isUnequal = op == Operator::unequal;
    if (isUnequal)
        op = Operator::equal;
    // Without a port in it, an end is known by its address.
    if ((path == "from" || path == "to") && value.text.find(':') == value.text.npos)
        value.text += "*";
    const auto found = std::find_if(std::begin(ofMessage), std::end(ofMessage),
                                    [path](const auto &each) { return each.first == path; });
    ConditionPtr condition;
    if (found == std::end(ofMessage))
        condition = std::make_unique<OfPath>(path, op, std::move(value));
    else if (op)
        condition = std::make_unique<OfMessage>(found->second, *op, std::move(value));
    else
        throw UsageError("what should " + std::string(path) + " be? A comparison is missing");
    return isUnequal ? std::make_unique<Not>(std::move(condition)) : std::move(condition);
}

// ---- The language ------------------------------------------------------------------------------

class Parser {
public:
    explicit Parser(std::string_view text) : text_(text), left_(text) {}

    ConditionPtr run() {
        ConditionPtr condition = expression();
        if (!left_.empty())
            refuse("expected && or ||");
        return condition;
    }

private:
    [[noreturn]] void refuse(const std::string &what) const {
        throw UsageError(what + " at character " + std::to_string(text_.size() - left_.size() + 1) +
                         " of '" + printable(text_) + "'");
    }

    void skip_blanks() {
        while (!left_.empty() && left_.front() == ' ')
            left_.remove_prefix(1);
    }

    bool take(std::string_view sign) {
        skip_blanks();
        if (!left_.starts_with(sign))
            return false;
        left_.remove_prefix(sign.size());
        skip_blanks();
        return true;
    }

    ConditionPtr expression() {
        ConditionPtr condition = all();
        while (take("||"))
            condition = std::make_unique<Any>(std::move(condition), all());
        return condition;
    }

    ConditionPtr all() {
        ConditionPtr condition = test();
        while (take("&&"))
            condition = both(std::move(condition), test());
        return condition;
    }

    ConditionPtr test() {
        constexpr unsigned deepest = 100;
        if (++depth_ > deepest)
            refuse("nested too deep");
        ConditionPtr condition;
        if (take("!")) {
            condition = std::make_unique<Not>(test());
        } else if (take("(")) {
            condition = expression();
            if (!take(")"))
                refuse("expected )");
        } else {
            condition = comparison();
        }
        --depth_;
        return condition;
    }

    ConditionPtr comparison() {
        const std::string_view path = word(".");
        if (path.empty())
            refuse("expected a name");
        constexpr std::pair<std::string_view, Operator> signs[] = {
            {"==", Operator::equal},       {"!=", Operator::unequal},
            {"<=", Operator::lessOrEqual}, {">=", Operator::greaterOrEqual},
            {"<", Operator::less},         {">", Operator::greater},
            {"=", Operator::equal}};
        for (const auto &[sign, op] : signs)
            if (take(sign))
                return make_condition(path, op, value());
        return make_condition(path, {}, {});
    }

    // Letters, digits and what else is allowed.
    std::string_view word(std::string_view more) {
        skip_blanks();
        std::size_t size = 0;
        const auto belongs = [more](char c) {
            return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
                   more.find(c) != more.npos;
        };
        while (size < left_.size() && belongs(left_[size]))
            ++size;
        const std::string_view found = left_.substr(0, size);
        left_.remove_prefix(size);
        return found;
    }

    Value value() {
        skip_blanks();
        if (!left_.empty() && (left_.front() == '"' || left_.front() == '\'')) {
            const std::size_t end = left_.find(left_.front(), 1);
            if (end == left_.npos)
                refuse("a quote that does not close");
            Value quoted{std::string(left_.substr(1, end - 1)), {}};
            left_.remove_prefix(end + 1);
            return quoted;
        }
        const std::string_view found = word(".:-_*?[]");
        if (found.empty())
            refuse("expected a value");
        return {std::string(found), number_of(found)};
    }

    std::string_view text_;
    std::string_view left_;
    unsigned depth_ = 0;
};

// A term of --only and --not.
ConditionPtr parse_term(std::string_view term) {
    if (term.find_first_of("=<>") != term.npos)
        return Parser(term).run();
    for (const auto &[path, words] :
         {std::pair<std::string_view, std::string_view>{"direction", " up down "},
          {"verdict", " valid invalid refused "}})
        if (words.find(" " + std::string(term) + " ") != words.npos)
            return make_condition(path, Operator::equal, {std::string(term), {}});
    std::uint32_t count = 0;
    const auto *messages = tarnInfoMessages(&count);
    const bool isKnown = std::any_of(messages, messages + count, [term](const auto *message) {
        return fits(term, message->name);
    });
    if (!isKnown)
        throw UsageError("'" + printable(term) + "' fits no message's name, and is none of up, " +
                         "down, valid, invalid and refused");
    return make_condition("message", Operator::equal, {std::string(term), {}});
}

std::vector<ConditionPtr> parse_terms(const std::vector<std::string> &lists) {
    std::vector<ConditionPtr> conditions;
    for (std::string_view list : lists)
        while (!list.empty()) {
            const std::size_t end = std::min(list.find(','), list.size());
            conditions.push_back(parse_term(list.substr(0, end)));
            list.remove_prefix(std::min(end + 1, list.size()));
        }
    return conditions;
}

} // namespace

ConditionPtr parse_condition(std::string_view text) {
    return Parser(text).run();
}

std::string_view direction_of(const TarnInfoMessage *message) {
    if (message == nullptr)
        return "both";
    const std::string_view term = message->term;
    return term.starts_with("AP to AC") ? "up" : term.starts_with("AC to AP") ? "down" : "both";
}

Path::Path(std::string_view text) {
    while (true) {
        const std::size_t end = std::min(text.find('.'), text.size());
        names_.emplace_back(text.substr(0, end));
        const std::string &name = names_.back();
        // A type that stands twice in one owner has a name of its own there.
        const bool isSecond = name.starts_with("Second");
        if (tarnInfoTypeByName(name.c_str()) == nullptr &&
            (!isSecond || tarnInfoTypeByName(name.c_str() + std::strlen("Second")) == nullptr))
            throw UsageError("no IE has the name '" + printable(name) + "'");
        if (end == text.size())
            return;
        text.remove_prefix(end + 1);
    }
}

Filter::Filter(const FilterOptions &options)
    : only_(parse_terms(options.only)), butNot_(parse_terms(options.butNot)),
      where_(options.where.empty() ? nullptr : parse_condition(options.where)),
      errors_(options.errors) {}

bool Filter::takes(const Judged &judged) const {
    const auto holds = [&judged](const ConditionPtr &each) { return each->holds(judged); };
    if (errors_ && judged.is_valid())
        return false;
    if (!only_.empty() && std::none_of(only_.begin(), only_.end(), holds))
        return false;
    if (std::any_of(butNot_.begin(), butNot_.end(), holds))
        return false;
    return !where_ || where_->holds(judged);
}

} // namespace tool
