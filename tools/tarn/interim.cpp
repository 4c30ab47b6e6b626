// What libtarn_info declares and does not do yet, by the tool's older means. Goes as it lands.
#include <cstring>

#include "tarn/diagnosis.h"
#include "tarn/wording.h"
#include "tarn_info.h"

namespace {

struct Interim {
    TarnInfoExplanation explanation{};
    tool::Diagnosis diagnosis;
    std::vector<TarnInfoFinding> faults;
    std::vector<TarnInfoFinding> notes;
};

std::vector<TarnInfoFinding> convert(const std::vector<tool::Finding> &findings) {
    std::vector<TarnInfoFinding> result;
    for (const tool::Finding &finding : findings)
        result.push_back(
            {finding.at, TarnInfoReason(0), finding.path.c_str(), finding.what.c_str()});
    return result;
}

} // namespace

#pragma GCC visibility push(default)
extern "C" {

const TarnInfoExplanation *tarnInfoExplainBytes(const uint8_t *bytes, uint32_t length) {
    auto *all = new Interim;
    const TarnInfoJudgement judgement = tarnInfoJudge(bytes, length);
    all->diagnosis = tool::diagnose(bytes, length);
    all->faults = convert(all->diagnosis.faults);
    all->notes = convert(all->diagnosis.notes);
    all->explanation.verdict = judgement.verdict;
    all->explanation.message = judgement.message;
    all->explanation.consumed = judgement.consumed;
    all->explanation.faults = all->faults.data();
    all->explanation.faultCount = uint32_t(all->faults.size());
    all->explanation.notes = all->notes.data();
    all->explanation.noteCount = uint32_t(all->notes.size());
    return &all->explanation;
}

void tarnInfoFreeExplanation(const TarnInfoExplanation *explanation) {
    delete reinterpret_cast<const Interim *>(explanation);
}

const char *tarnInfoReasonName(TarnInfoReason) {
    return "Reason";
}

uint32_t tarnInfoSentence(TarnInfoReason reason, const TarnInfoWords *words, char *text,
                          uint32_t size) {
    std::string sentence = "missing: it is mandatory";
    if (reason != TarnInfoMissing) {
        const tool::Type &type = *protocol::type_by_tag(words->type->tag);
        sentence = reason == TarnInfoCountOutOfRange
                       ? tool::count_fault(type, std::uint64_t(words->number))
                       : tool::number_fault(type, words->number);
    }
    std::snprintf(text, size, "%s", sentence.c_str());
    return uint32_t(sentence.size());
}

uint32_t tarnInfoCompareMsgs(const TarnMsg *, const TarnMsg *, TarnInfoTellDifference *, void *) {
    return 0;
}
}
#pragma GCC visibility pop
