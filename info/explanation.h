// An explanation while it is put together.
#ifndef TARN_INFO_EXPLANATION_H
#define TARN_INFO_EXPLANATION_H

#include <memory>
#include <new>
#include <string>
#include <vector>

#include "wording.h"

namespace info {

struct Finding {
    std::uint32_t offset = 0;
    TarnInfoReason reason = TarnInfoReasonCount; // none
    std::string path;
    std::string sentence;

    explicit operator bool() const { return reason != TarnInfoReasonCount; }
};

inline Finding make_finding(std::uint32_t offset, TarnInfoReason reason, std::string path,
                            const TarnInfoWords &words) {
    return {offset, reason, std::move(path), sentence(reason, words)};
}

inline std::string join(const std::string &path, const char *name) {
    return path.empty() ? name : path + "." + name;
}
inline std::string join(const std::string &path, std::uint32_t index) {
    return path + "[" + std::to_string(index) + "]";
}

// The public part refers to the rest, which stays where it is.
class Explanation : public TarnInfoExplanation {
public:
    Explanation() : TarnInfoExplanation{} {}
    Explanation(const Explanation &) = delete;
    Explanation &operator=(const Explanation &) = delete;

    std::vector<Finding> foundFaults;
    std::vector<Finding> foundNotes;

    // Fills in the public part's lists.
    void finish() {
        faults = list(foundFaults, &faultRows_, &faultCount);
        notes = list(foundNotes, &noteRows_, &noteCount);
    }

private:
    static const TarnInfoFinding *list(const std::vector<Finding> &found,
                                       std::vector<TarnInfoFinding> *rows, std::uint32_t *count) {
        for (const Finding &finding : found)
            rows->push_back(
                {finding.offset, finding.reason, finding.path.c_str(), finding.sentence.c_str()});
        *count = std::uint32_t(rows->size());
        return rows->data();
    }

    std::vector<TarnInfoFinding> faultRows_;
    std::vector<TarnInfoFinding> noteRows_;
};

// Null if memory runs out on the way.
template <class Explain>
const TarnInfoExplanation *explain(const Explain &fill_in) {
    try {
        auto explanation = std::make_unique<Explanation>();
        fill_in(explanation.get());
        explanation->finish();
        return explanation.release();
    } catch (const std::bad_alloc &) {
        return nullptr;
    }
}

} // namespace info

#endif
