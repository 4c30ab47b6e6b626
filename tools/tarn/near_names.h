// Suggestions for misspelt names.
#ifndef TARN_TOOL_NEAR_NAMES_H
#define TARN_TOOL_NEAR_NAMES_H

#include <string>
#include <string_view>
#include <vector>

namespace tool {

// Whether two names are the same but for upper and lower case.
bool same_name(std::string_view a, std::string_view b);

// "; did you mean Srnti?", or nothing if no candidate is near.
std::string suggestion(std::string_view name, const std::vector<std::string_view> &candidates);

} // namespace tool

#endif
