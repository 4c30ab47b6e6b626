#include "tarn/terminal.h"

#include <unistd.h>

#include <cstdio>
#include <cstdlib>

namespace tool {

std::string printable(std::string_view text, std::size_t longest) {
    std::string result;
    for (const char c : text) {
        if (result.size() >= longest)
            return result + "...";
        char escaped[5];
        const bool isPlain = (c >= ' ' && c <= '~') || (c & 0x80) != 0;
        // The lead byte of the second row of control characters, which some terminals obey too.
        if (isPlain && c != '\xC2')
            result += c;
        else {
            std::snprintf(escaped, sizeof escaped, "\\x%02x", unsigned(std::uint8_t(c)));
            result += escaped;
        }
    }
    return result;
}

bool wants_colours(int file) {
    const char *no = std::getenv("NO_COLOR");
    return isatty(file) == 1 && (no == nullptr || *no == 0);
}

Progress::Progress(std::string name, bool isWanted)
    : name_(std::move(name)), isShown_(isWanted && isatty(STDERR_FILENO) == 1),
      next_(Clock::now() + std::chrono::seconds(1)) {}

Progress::~Progress() {
    if (isOnScreen_)
        std::fputs("\r\x1B[K", stderr);
}

void Progress::operator()(std::uint64_t done, std::uint64_t size) {
    const auto now = Clock::now();
    if (now < next_)
        return;
    next_ = now + std::chrono::milliseconds(200);
    isOnScreen_ = true;
    if (size != 0)
        std::fprintf(stderr, "\r\x1B[K%s: %u %%", name_.c_str(), unsigned(done * 100 / size));
    else
        std::fprintf(stderr, "\r\x1B[K%s: %llu MB", name_.c_str(),
                     static_cast<unsigned long long>(done >> 20));
}

} // namespace tool
