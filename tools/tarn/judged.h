// A message that was found, with what libtarn makes of it; explained only where someone asks.
#ifndef TARN_TOOL_JUDGED_H
#define TARN_TOOL_JUDGED_H

#include <memory>

#include "tarn/capture/found.h"
#include "tarn_info.h"

namespace tool {

class Judged {
public:
    explicit Judged(const capture::Found &found)
        : found_(found), judgement_(tarnInfoJudge(found.bytes.data(), size())) {}

    const capture::Found &found() const { return found_; }
    capture::View bytes() const { return found_.bytes; }
    std::uint32_t size() const { return std::uint32_t(found_.bytes.size()); }
    const TarnInfoJudgement &judgement() const { return judgement_; }
    const TarnInfoMessage *message() const { return judgement_.message; }
    TarnInfoVerdict verdict() const { return judgement_.verdict; }
    bool is_valid() const { return judgement_.verdict == TarnInfoValid; }
    bool is_plain() const { return judgement_.isPlain != 0; }
    const char *name() const { return message() != nullptr ? message()->name : "unknown"; }

    // Not for a plain one, of which there is nothing to explain.
    const TarnInfoExplanation &explanation() const {
        if (!explanation_)
            explanation_.reset(tarnInfoExplainBytes(bytes().data(), size()));
        if (!explanation_)
            throw std::bad_alloc();
        return *explanation_;
    }

    // Calls `visit(part)` for each part of the message until it returns false.
    template <class Visit>
    void visit_parts(Visit visit) const {
        const auto call = [](void *context, const TarnInfoPart *part) -> std::uint32_t {
            return (*static_cast<Visit *>(context))(*part) ? 1 : 0;
        };
        tarnInfoReadBytes(bytes().data(), size(), &judgement_, call, &visit);
    }

private:
    struct Free {
        void operator()(const TarnInfoExplanation *explanation) const {
            tarnInfoFreeExplanation(explanation);
        }
    };

    const capture::Found &found_;
    TarnInfoJudgement judgement_;
    mutable std::unique_ptr<const TarnInfoExplanation, Free> explanation_;
};

// What follows a message in the tree, and in the summary: "byte 42 (0x2a), RabList[1]: ...".
std::string words(const TarnInfoFinding &finding);

} // namespace tool

#endif
