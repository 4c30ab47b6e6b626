#include "tarn/near_names.h"

#include <algorithm>
#include <cctype>
#include <numeric>

namespace tool {

namespace {

std::string lower(std::string_view text) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(),
                   [](unsigned char c) { return char(std::tolower(c)); });
    return result;
}

// How many characters must be put in, taken out or replaced to make one of the other.
std::size_t edit_distance(const std::string &a, const std::string &b) {
    std::vector<std::size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < a.size(); ++i) {
        std::size_t diagonal = row[0]++;
        for (std::size_t j = 0; j < b.size(); ++j) {
            const std::size_t replaced = diagonal + (a[i] == b[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({replaced, row[j] + 1, diagonal + 1});
        }
    }
    return row.back();
}

// A distance that also finds names of which only a part was given.
std::size_t strangeness(const std::string &name, const std::string &candidate) {
    constexpr std::size_t shortestPart = 3;
    if (name.size() >= shortestPart && candidate.find(name) != candidate.npos)
        return 1;
    return edit_distance(name, candidate);
}

} // namespace

bool same_name(std::string_view a, std::string_view b) {
    return lower(a) == lower(b);
}

std::string suggestion(std::string_view name, const std::vector<std::string_view> &candidates) {
    constexpr std::size_t longestName = 64; // far beyond any name of the protocol
    constexpr std::size_t most = 5;
    if (name.empty() || name.size() > longestName)
        return {};
    const std::string wanted = lower(name);
    std::vector<std::pair<std::size_t, std::string_view>> near;
    for (const std::string_view candidate : candidates) {
        const std::size_t distance = strangeness(wanted, lower(candidate));
        if (distance <= std::max<std::size_t>(1, wanted.size() / 3))
            near.emplace_back(distance, candidate);
    }
    std::stable_sort(near.begin(), near.end(),
                     [](const auto &a, const auto &b) { return a.first < b.first; });
    near.resize(std::min(near.size(), most));
    std::string text;
    for (const auto &[distance, candidate] : near)
        text += (text.empty() ? "; did you mean " : " or ") + std::string(candidate);
    return text.empty() ? text : text + "?";
}

} // namespace tool
