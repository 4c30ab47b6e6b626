#include "tarn/capture/source.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>
#include <zlib.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace capture {

namespace {

constexpr std::size_t chunk = std::size_t{1} << 18;

} // namespace

// Turns compressed bytes into plain ones. Files may hold several gzip members in a row.
class Source::Inflater {
public:
    explicit Inflater(View start) : input_(start.begin(), start.end()) {
        stream_.next_in = input_.data();
        stream_.avail_in = uInt(input_.size());
        constexpr int gzipOnly = 16 + MAX_WBITS;
        if (inflateInit2(&stream_, gzipOnly) != Z_OK)
            throw std::bad_alloc();
    }
    Inflater(const Inflater &) = delete;
    Inflater &operator=(const Inflater &) = delete;
    ~Inflater() { inflateEnd(&stream_); }

    // 0 at the end, with a word on it if it is not the right one.
    std::size_t read(Source &source, std::uint8_t *to, std::size_t room, std::string *defect) {
        stream_.next_out = to;
        stream_.avail_out = uInt(room);
        while (stream_.avail_out == room && !isOver_) {
            if (stream_.avail_in == 0)
                fetch(source);
            if (stream_.avail_in == 0) {
                isOver_ = true;
                if (!isBetween_)
                    *defect = "the compressed data end early";
                break;
            }
            step(defect);
        }
        return room - stream_.avail_out;
    }

private:
    void fetch(Source &source) {
        input_.resize(chunk);
        const std::size_t count = source.read_file(input_.data(), input_.size());
        stream_.next_in = input_.data();
        stream_.avail_in = uInt(count);
    }

    void step(std::string *defect) {
        if (isBetween_ && inflateReset(&stream_) != Z_OK)
            isOver_ = true;
        const bool wasBetween = isBetween_;
        isBetween_ = false;
        const int result = inflate(&stream_, Z_NO_FLUSH);
        if (result == Z_STREAM_END) {
            isBetween_ = true;
        } else if (result != Z_OK && result != Z_BUF_ERROR) {
            isOver_ = true;
            *defect = wasBetween ? "bytes behind the compressed data are ignored"
                                 : "the compressed data are damaged";
        }
    }

    z_stream stream_{};
    std::vector<std::uint8_t> input_;
    bool isBetween_ = false; // behind a member, perhaps in front of another
    bool isOver_ = false;
};

Source::Source(const std::string &path) : path_(path), buffer_(chunk) {
    file_ = path == "-" ? STDIN_FILENO : open(path.c_str(), O_RDONLY | O_CLOEXEC);
    struct stat about {};
    if (file_ == -1 || fstat(file_, &about) != 0)
        throw SourceError(std::strerror(errno));
    mayWait_ = !S_ISREG(about.st_mode);
    fileSize_ = mayWait_ ? 0 : std::uint64_t(about.st_size);
    refill();
    look_for_gzip();
}

Source::Source(View bytes) : buffer_(bytes.begin(), bytes.end()), end_(bytes.size()) {
    ended_ = true;
    look_for_gzip();
}

Source::~Source() {
    if (file_ > STDIN_FILENO)
        close(file_);
}

void Source::look_for_gzip() {
    if (file_ != -1)
        peek(2);
    if (end_ - begin_ < 2 || buffer_[begin_] != 0x1F || buffer_[begin_ + 1] != 0x8B)
        return;
    inflater_ = std::make_unique<Inflater>(View(buffer_).subspan(begin_, end_ - begin_));
    begin_ = end_ = 0;
    ended_ = false;
    buffer_.resize(chunk);
}

View Source::peek(std::size_t wanted) {
    while (end_ - begin_ < wanted && !ended_) {
        if (begin_ == end_)
            begin_ = end_ = 0;
        if (begin_ != 0 && buffer_.size() - begin_ < std::max(wanted, chunk / 2)) {
            std::memmove(buffer_.data(), buffer_.data() + begin_, end_ - begin_);
            end_ -= begin_;
            begin_ = 0;
        }
        if (buffer_.size() < wanted)
            buffer_.resize(wanted);
        refill();
    }
    return View(buffer_).subspan(begin_, end_ - begin_);
}

std::uint64_t Source::skip(std::uint64_t count) {
    std::uint64_t left = count;
    while (left != 0) {
        const auto here = std::size_t(std::min<std::uint64_t>(left, end_ - begin_));
        begin_ += here;
        left -= here;
        if (left != 0 && some().empty())
            break;
    }
    return count - left;
}

void Source::refill() {
    const std::size_t count = read_content(buffer_.data() + end_, buffer_.size() - end_);
    end_ += count;
    ended_ = count == 0;
}

std::size_t Source::read_content(std::uint8_t *to, std::size_t room) {
    return inflater_ ? inflater_->read(*this, to, room, &defect_) : read_file(to, room);
}

void Source::wait() const {
    constexpr int aWhile = 200; // milliseconds
    pollfd input{file_, POLLIN, 0};
    if (poll(&input, 1, 0) != 0 || !beforeWaiting)
        return;
    beforeWaiting();
    if (idle && poll(&input, 1, aWhile) == 0) {
        idle();
        beforeWaiting();
    }
}

std::size_t Source::read_file(std::uint8_t *to, std::size_t room) {
    if (file_ == -1)
        return 0;
    if (mayWait_)
        wait();
    ssize_t count = 0;
    do
        count = read(file_, to, room);
    while (count < 0 && errno == EINTR);
    if (count < 0)
        throw SourceError(std::strerror(errno));
    fileRead_ += std::uint64_t(count);
    if (progress)
        progress(fileRead_, fileSize_);
    return std::size_t(count);
}

} // namespace capture
