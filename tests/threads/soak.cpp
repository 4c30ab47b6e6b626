// Valid and hostile messages through library and host for as many minutes as the first argument
// says, on as many threads as the second: decoded, judged, packed, taken by one call and built
// again. Decoded messages change hands, threads end and new ones begin, and the process forks.
// Fails when memory grows after the first tenth of the time, when a child fails, or when a block
// stays live. "unforked" is for ThreadSanitizer, whose own locks do not outlast a fork.
//
// What decodes and is valid has to pack to the bytes that it came from as far as they were read.

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include "support/mutations.h"
#include "tarn_host.h"

namespace {

using Clock = std::chrono::steady_clock;

struct Inputs {
    std::vector<Bytes> valid;
    std::vector<Bytes> hostile;
    std::size_t greatestRecord = 0;
};

Inputs make_inputs() {
    Inputs inputs;
    Random random(1);
    for (const Message *type : protocol::messages()) {
        inputs.greatestRecord = std::max(inputs.greatestRecord, type->recordSize);
        for (const Amount amount : {Amount::least, Amount::slim, Amount::random, Amount::random}) {
            const samples::Nodes nodes = samples::make_message(*type, amount, random);
            inputs.valid.push_back(samples::encode(nodes));
            for (int i = 0; i < 4; ++i)
                inputs.hostile.push_back(samples::mutate(nodes, random));
        }
    }
    return inputs;
}

std::atomic<std::uint64_t> messages{0};
std::atomic<std::uint64_t> refusals{0};
std::atomic<std::uint64_t> faults{0};
std::atomic<bool> ends{false};

// Decoded messages that wait for any thread to delete them.
std::array<std::atomic<TarnMsg *>, 64> shelf{};

void hand_over(TarnMsg *msg, std::size_t place) {
    if (TarnMsg *const former = shelf[place % shelf.size()].exchange(msg))
        TarnDeleteMsg(former);
}

class Worker {
public:
    Worker(const Inputs &inputs, std::uint64_t seed)
        : inputs_(inputs), random_(seed), record_(inputs.greatestRecord / 8 + 1), out_(131072) {}

    void run(unsigned count) {
        for (unsigned i = 0; i < count && !ends; ++i)
            random_.coin() ? pass(one_of(inputs_.valid), true) : pass(spoilt(), false);
    }

private:
    const Bytes &one_of(const std::vector<Bytes> &all) { return all[random_.next() % all.size()]; }

    const Bytes &spoilt() {
        spoilt_ = one_of(inputs_.hostile);
        if (!spoilt_.empty() && random_.coin())
            spoilt_[random_.next() % spoilt_.size()] ^= std::uint8_t(1U << random_.next() % 8);
        return spoilt_;
    }

    void pass(const Bytes &bytes, bool must_be_valid) {
        const auto length = std::uint32_t(bytes.size());
        TarnMsg *msg = nullptr;
        ++messages;
        if (TarnUnpackNewMsg(bytes.data(), length, &msg) == 0) {
            ++refusals;
            faults += must_be_valid ? 1 : 0;
            return;
        }
        const Message &type = *protocol::message_by_id(msg->messageId);
        const bool is_valid = type.isValid(msg) != 0;
        refusals += is_valid ? 0 : 1;
        const auto size = std::uint32_t(TarnSizeOfMsg(msg));
        const bool packs = size <= out_.size() && type.pack(msg, out_.data(), size) != 0;
        faults += packs ? 0 : 1;
        if (must_be_valid && (!is_valid || std::memcmp(out_.data(), bytes.data(), length) != 0))
            ++faults;
        hand_over(msg, random_.next());
        std::memset(record_.data(), 0, type.recordSize);
        faults += type.get(bytes.data(), length, record_.data()) != 0 ? 0 : 1;
        faults += is_valid && type.build(out_.data(), size, record_.data()) != size ? 1 : 0;
    }

    const Inputs &inputs_;
    Random random_;
    std::vector<std::uint64_t> record_;
    Bytes out_;
    Bytes spoilt_;
};

double resident_megabytes() {
    double total = 0;
    double resident = 0;
    std::ifstream("/proc/self/statm") >> total >> resident;
    return resident * double(sysconf(_SC_PAGESIZE)) / 1048576;
}

// Whether a child, forked while the other threads are at work, gets its own work done.
bool fork_once(const Inputs &inputs, std::uint64_t seed) {
    const pid_t child = fork();
    if (child == 0) {
        alarm(120);
        faults = 0; // its own
        Worker(inputs, seed).run(200);
        std::_Exit(faults == 0 ? 0 : 1);
    }
    int status = 1;
    return waitpid(child, &status, 0) == child && status == 0;
}

struct Soak {
    const Inputs inputs = make_inputs();
    const Clock::time_point start = Clock::now();
    double seconds;
    bool does_fork;
    std::vector<std::thread> threads;
    std::uint64_t begun = 0;
    std::uint64_t forks = 0;
    double warm = 0; // most MB while warming up
    double late = 0; // most MB in the last tenth

    double elapsed() const { return std::chrono::duration<double>(Clock::now() - start).count(); }

    void print(const char *when) const {
        std::printf(
            "%6.0f s %-6s %12llu messages, %llu refused or invalid, %llu faults, %llu threads, "
            "%llu forks, %.1f MB resident\n",
            elapsed(), when, static_cast<unsigned long long>(messages),
            static_cast<unsigned long long>(refusals), static_cast<unsigned long long>(faults),
            static_cast<unsigned long long>(begun), static_cast<unsigned long long>(forks),
            resident_megabytes());
        std::fflush(stdout);
    }

    void begin_thread(std::thread &thread) {
        thread = std::thread([this, seed = ++begun] { Worker(inputs, seed).run(2000); });
    }

    void run(std::size_t count) {
        threads.resize(count);
        std::for_each(threads.begin(), threads.end(), [this](auto &each) { begin_thread(each); });
        print("start");
        for (double next_print = 60; elapsed() < seconds;) {
            std::thread &oldest = threads[std::size_t(begun % threads.size())];
            oldest.join();
            begin_thread(oldest);
            if (does_fork) {
                faults += fork_once(inputs, begun) ? 0 : 1;
                ++forks;
            }
            if (elapsed() > 0.9 * seconds)
                late = std::max(late, resident_megabytes());
            else if (elapsed() < 0.1 * seconds)
                warm = std::max(warm, resident_megabytes());
            if (elapsed() > next_print) {
                print("");
                next_print += 60;
            }
        }
        ends = true;
        std::for_each(threads.begin(), threads.end(), [](auto &each) { each.join(); });
        for (std::size_t place = 0; place < shelf.size(); ++place)
            hand_over(nullptr, place);
        print("end");
    }
};

} // namespace

int main(int argc, char **argv) {
    if (argc < 3) {
        std::fprintf(stderr, "usage: %s MINUTES THREADS [unforked]\n", argv[0]);
        return 2;
    }
    // A refused Get tells a token each time.
    tarnHostSetDebugTokenHandler([](void *, uint32_t, uint32_t) {}, nullptr);
    Soak soak{.seconds = std::atof(argv[1]) * 60, .does_fork = argc == 3, .threads = {}};
    soak.run(std::size_t(std::max(1, std::atoi(argv[2]))));
    const bool is_warm = soak.seconds >= 60; // by the end of the first tenth
    const bool has_grown = is_warm && soak.late > soak.warm + 4;
    std::printf("resident: at most %.1f MB in the first tenth, %.1f MB in the last%s\n", soak.warm,
                soak.late, has_grown ? ": it has grown" : "");
    tarnHostReportLiveBlocks(stdout);
    return faults == 0 && !has_grown && tarnHostLiveBlocks() == 0 ? 0 : 1;
}
