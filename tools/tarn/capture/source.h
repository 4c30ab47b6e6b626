// The bytes of a file or of standard input as they come, decompressed where they are gzip.
#ifndef TARN_TOOL_CAPTURE_SOURCE_H
#define TARN_TOOL_CAPTURE_SOURCE_H

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "tarn/capture/bytes.h"

namespace capture {

// What cannot be opened or read.
struct SourceError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

class Source {
public:
    // "-" is standard input. Throws SourceError.
    explicit Source(const std::string &path);
    // Bytes in memory, for tests.
    explicit Source(View bytes);
    ~Source();

    // At least as many bytes as wanted, without taking them; fewer only where the input ends. The
    // view holds until the next call of any function.
    View peek(std::size_t wanted);
    // Whatever there is without another read; reads only where there is nothing. Empty at the end.
    View some() { return peek(1); }
    // Takes bytes, seen before or not. Returns how many there were.
    std::uint64_t skip(std::uint64_t count);

    // Called before a read that has to wait for its writer, and again when it has waited a while.
    std::function<void()> beforeWaiting;
    // Called in between, when it has waited a while.
    std::function<void()> idle;
    // Called now and then with the bytes read of the file and its size.
    std::function<void(std::uint64_t done, std::uint64_t size)> progress;

    // Why the input ended before its end, or empty: compressed data may be cut or damaged.
    const std::string &defect() const { return defect_; }

private:
    class Inflater;

    void refill();
    void wait() const;
    std::size_t read_file(std::uint8_t *to, std::size_t room);
    std::size_t read_content(std::uint8_t *to, std::size_t room);
    void look_for_gzip();

    std::string path_;
    int file_ = -1;
    bool mayWait_ = false; // not a regular file
    std::uint64_t fileSize_ = 0;
    std::uint64_t fileRead_ = 0;
    bool ended_ = false;
    std::vector<std::uint8_t> buffer_;
    std::size_t begin_ = 0;
    std::size_t end_ = 0;
    std::unique_ptr<Inflater> inflater_;
    std::string defect_;
};

} // namespace capture

#endif
