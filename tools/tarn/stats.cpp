#include <algorithm>
#include <map>
#include <unordered_map>

#include "tarn/input.h"
#include "tarn/terminal.h"
#include "tarn/where.h"
#include "tarn/wire.h"
#include "tarn/writing.h"

namespace tool {

namespace {

struct Counts {
    std::uint64_t verdicts[3] = {};
    std::uint64_t bytes = 0;
    std::uint32_t least = ~0U;
    std::uint32_t greatest = 0;

    void add(const Judged &judged) {
        ++verdicts[judged.verdict()];
        bytes += judged.size();
        least = std::min(least, judged.size());
        greatest = std::max(greatest, judged.size());
    }
    std::uint64_t all() const { return verdicts[0] + verdicts[1] + verdicts[2]; }
};

// Counts of many things, of which the most frequent are shown. Bounded: what is seen after there
// are too many is counted together.
class Frequencies {
public:
    void add(const std::string &what) {
        constexpr std::size_t most = 1000000;
        const auto found = counts_.find(what);
        if (found != counts_.end())
            ++found->second;
        else if (counts_.size() < most)
            counts_.emplace(what, 1);
        else
            ++others_;
    }

    void print(std::ostream &out, const char *title, std::size_t shown) const {
        if (counts_.empty())
            return;
        std::vector<std::pair<std::string, std::uint64_t>> all(counts_.begin(), counts_.end());
        std::sort(all.begin(), all.end(), [](const auto &a, const auto &b) {
            return a.second != b.second ? a.second > b.second : a.first < b.first;
        });
        out << '\n' << title << ", " << all.size() << (others_ != 0 ? " and more" : "") << ":\n";
        for (std::size_t i = 0; i < std::min(shown, all.size()); ++i)
            row(out, all[i].second, all[i].first);
        std::uint64_t rest = others_;
        for (std::size_t i = shown; i < all.size(); ++i)
            rest += all[i].second;
        if (rest != 0)
            row(out, rest, "(others)");
    }

    static void row(std::ostream &out, std::uint64_t count, const std::string &what) {
        const std::string number = std::to_string(count);
        out << std::string(number.size() < 12 ? 12 - number.size() : 0, ' ') << number << "  "
            << what << '\n';
    }

private:
    std::unordered_map<std::string, std::uint64_t> counts_;
    std::uint64_t others_ = 0;
};

class Statistics final : public FileSink {
public:
    Statistics(const StatsOptions &options, const Streams &streams)
        : FileSink(streams, options.progress), filter_(options.filter) {}

    void message(const capture::Found &found) override {
        const Judged judged(found);
        if (!filter_.takes(judged))
            return;
        all_.add(judged);
        messages_[judged.message() != nullptr ? judged.message()->id : 0].add(judged);
        if (!judged.is_plain())
            add_reasons(judged);
        ue_.clear();
        append_ue(judged, false, &ue_);
        if (!ue_.empty())
            ues_.add(ue_);
        if (found.time)
            add_time(*found.time);
    }

    void print(bool perSecond) const {
        std::ostream &out = streams().out;
        print_messages(out);
        reasons_.print(out, "Reasons and notes", 30);
        ues_.print(out, "UEs", 20);
        print_rate(out, perSecond);
    }

    int status() const { return all_.verdicts[0] == all_.all() ? exitOk : exitRefused; }

private:
    void add_reasons(const Judged &judged) {
        const TarnInfoExplanation &why = judged.explanation();
        if (why.faultCount != 0)
            reasons_.add(std::string(tarnInfoVerdictWord(why.verdict)) + ": " +
                         tarnInfoReasonName(why.faults[0].reason) + " " + why.faults[0].path);
        for (std::uint32_t i = 0; i < why.noteCount; ++i)
            reasons_.add(std::string("note: ") + tarnInfoReasonName(why.notes[i].reason) + " " +
                         why.notes[i].path);
    }

    void add_time(std::uint64_t time) {
        constexpr std::uint64_t second = 1000000000;
        constexpr std::size_t mostSeconds = 10000000;
        first_ = std::min(first_, time);
        last_ = std::max(last_, time);
        if (lastSecond_ == nullptr || lastSecond_->first != time / second) {
            if (seconds_.size() >= mostSeconds && seconds_.count(time / second) == 0)
                return;
            lastSecond_ = &*seconds_.try_emplace(time / second, 0).first;
        }
        ++lastSecond_->second;
    }

    void print_messages(std::ostream &out) const {
        constexpr std::size_t nameWidth = 26;
        const auto cell = [&out](const std::string &text, std::size_t width) {
            out << std::string(text.size() < width ? width - text.size() : 1, ' ') << text;
        };
        const auto row = [&](const std::string &name, const Counts &counts) {
            out << name << std::string(nameWidth - std::min(nameWidth, name.size()), ' ');
            for (const std::uint64_t count : counts.verdicts)
                cell(std::to_string(count), 12);
            cell(std::to_string(counts.all() == 0 ? 0 : counts.least), 8);
            cell(std::to_string(counts.all() == 0 ? 0 : counts.bytes / counts.all()), 8);
            cell(std::to_string(counts.greatest), 8);
            cell(std::to_string(counts.bytes), 14);
            out << '\n';
        };
        out << "message" << std::string(nameWidth - 7, ' ')
            << "       valid     invalid     refused   least    mean greatest         bytes\n";
        for (const auto &[id, counts] : messages_) {
            const TarnInfoMessage *message = tarnInfoMessageById(id);
            row(message != nullptr ? message->name : "(no known message)", counts);
        }
        row("all", all_);
    }

    void print_rate(std::ostream &out, bool perSecond) const {
        if (seconds_.empty())
            return;
        const auto busiest =
            std::max_element(seconds_.begin(), seconds_.end(),
                             [](const auto &a, const auto &b) { return a.second < b.second; });
        Clock clock;
        std::string text = "\nFrom ";
        clock.append(first_, &text);
        text += " to ";
        clock.append(last_, &text);
        const std::uint64_t milliseconds = (last_ - first_) / 1000000;
        text += ", ";
        append_number(milliseconds == 0 ? all_.all() : all_.all() * 1000 / milliseconds, &text);
        text += " messages a second, at most ";
        append_number(busiest->second, &text);
        out << text << " in one\n";
        if (!perSecond)
            return;
        out << "\nPer second:\n";
        for (const auto &[second, count] : seconds_) {
            text.clear();
            clock.append(second * 1000000000, &text);
            Frequencies::row(out, count, text.substr(0, 19) + "Z");
        }
    }

    Filter filter_;
    Counts all_;
    std::map<std::uint32_t, Counts> messages_; // by id; 0 for what is none
    Frequencies reasons_;
    Frequencies ues_;
    std::map<std::uint64_t, std::uint64_t> seconds_;
    std::pair<const std::uint64_t, std::uint64_t> *lastSecond_ = nullptr;
    std::uint64_t first_ = ~std::uint64_t{0};
    std::uint64_t last_ = 0;
    std::string ue_;
};

} // namespace

int stats(const StatsOptions &options, const Streams &streams) {
    Statistics statistics(options, streams);
    const int status = statistics.read(options.files, options.input);
    statistics.print(options.perSecond);
    return std::max(status, statistics.status());
}

} // namespace tool
