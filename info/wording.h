// The sentences of tarn_info_reasons.def, with their place holders filled.
#ifndef TARN_INFO_WORDING_H
#define TARN_INFO_WORDING_H

#include <string>
#include <string_view>

#include "facts.h"

namespace info {

// "Srnti [1]"; a tag that the protocol lacks is "unknown tag 300".
std::string label(const TarnInfoType &type);
std::string label_of_tag(std::uint32_t tag);

std::string sentence(TarnInfoReason reason, const TarnInfoWords &words);

} // namespace info

#endif
