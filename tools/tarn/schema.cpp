// The columns of the lines that decode --json writes, for engines that query files of them.
#include <algorithm>

#include "tarn/commands.h"
#include "tarn_info.h"

namespace tool {

namespace {

// How an engine writes types. Numbers have at most 32 bits and no sign.
struct Dialect {
    const char *number;
    const char *counter;
    const char *text;
    const char *time;
    const char *structStart;
    const char *structEnd;
    const char *between; // a member and its type
    const char *listStart;
    const char *listEnd;
    const char *quote;
};

constexpr Dialect duckdb = {"UINTEGER", "UBIGINT", "VARCHAR", "TIMESTAMP_NS", "STRUCT(",
                            ")",        " ",       "",        "[]",           "\""};
constexpr Dialect spark = {"BIGINT", "BIGINT", "STRING", "TIMESTAMP", "STRUCT<",
                           ">",      ": ",     "ARRAY<", ">",         "`"};

class Schema {
public:
    explicit Schema(const Dialect &dialect) : dialect_(dialect) {}

    struct Column {
        std::string name;
        std::string type;
    };

    std::vector<Column> columns() const {
        const std::string finding = struct_of(
            {{"offset", dialect_.number}, {"path", dialect_.text}, {"reason", dialect_.text}});
        std::vector<Column> all = {{"packet", dialect_.counter}, {"time", dialect_.time},
                                   {"from", dialect_.text},      {"to", dialect_.text},
                                   {"verdict", dialect_.text},   {"message", dialect_.text}};
        add_ies(&all);
        all.push_back({"fault", finding});
        all.push_back({"bytes", dialect_.text});
        all.push_back({"notes", list_of(finding)});
        return all;
    }

    std::string quoted(const std::string &name) const {
        return dialect_.quote + name + dialect_.quote;
    }

private:
    // Each IE that stands in any message, once.
    void add_ies(std::vector<Column> *all) const {
        std::uint32_t count = 0;
        const auto *messages = tarnInfoMessages(&count);
        for (std::uint32_t i = 0; i < count; ++i)
            for (std::uint32_t slot = 1; slot < messages[i]->slotCount; ++slot)
                add_ie(messages[i]->slots[slot], all);
    }

    void add_ie(const TarnInfoSlot &slot, std::vector<Column> *all) const {
        const bool isThere = std::any_of(all->begin(), all->end(), [&slot](const Column &column) {
            return column.name == slot.name;
        });
        if (isThere)
            return;
        const std::string type = type_of(*slot.type);
        all->push_back({slot.name, slot.presence == TarnInfoRepeated ? list_of(type) : type});
    }

    std::string type_of(const TarnInfoType &type) const {
        if (type.shape == TarnInfoNumber)
            return dialect_.number;
        if (type.shape == TarnInfoBytes || type.form == TarnInfoDotted)
            return dialect_.text;
        if (type.shape == TarnInfoList || type.shape == TarnInfoCompositeList)
            return list_of(type_of(*type.item));
        std::vector<Column> members;
        for (std::uint32_t i = 0; i < type.slotCount; ++i)
            members.push_back({type.slots[i].name, type_of(*type.slots[i].type)});
        return struct_of(members);
    }

    std::string list_of(const std::string &type) const {
        return dialect_.listStart + type + dialect_.listEnd;
    }

    std::string struct_of(const std::vector<Column> &members) const {
        std::string text;
        for (const Column &member : members)
            text +=
                (text.empty() ? "" : ", ") + quoted(member.name) + dialect_.between + member.type;
        return dialect_.structStart + text + dialect_.structEnd;
    }

    const Dialect &dialect_;
};

} // namespace

// For DuckDB what read_json takes as columns, for Spark what schema() takes.
int describe_schema(const std::string &engine, const Streams &streams) {
    const bool isDuckdb = engine == "duckdb";
    const Schema schema(isDuckdb ? duckdb : spark);
    std::string text;
    for (const Schema::Column &column : schema.columns()) {
        text += text.empty() ? "" : isDuckdb ? ",\n " : ",\n";
        text += schema.quoted(column.name);
        text += isDuckdb ? ": '" + column.type + "'" : " " + column.type;
    }
    streams.out << (isDuckdb ? "{" + text + "}" : text) << '\n';
    return exitOk;
}

} // namespace tool
