// What goes to a terminal: colours, a progress line, and text that cannot harm it.
#ifndef TARN_TOOL_TERMINAL_H
#define TARN_TOOL_TERMINAL_H

#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>

namespace tool {

// Text from outside with each byte escaped that is no plain character, and cut where it is long:
// file names and arguments may hold what terminals obey.
std::string printable(std::string_view text, std::size_t longest = 200);

// Whether a stream goes to a terminal whose user has not asked for no colours.
bool wants_colours(int file);

// How far a long file was read, on standard error where that is a terminal.
class Progress {
public:
    Progress(std::string name, bool isWanted);
    ~Progress();

    bool is_shown() const { return isShown_; }
    void operator()(std::uint64_t done, std::uint64_t size);

private:
    using Clock = std::chrono::steady_clock;

    std::string name_;
    bool isShown_;
    bool isOnScreen_ = false;
    Clock::time_point next_;
};

} // namespace tool

#endif
