#include "tarn/output.h"

#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace tool {

void FileBuffer::write(const char *text, std::size_t length) {
    while (length != 0) {
        const ssize_t count = ::write(file_, text, length);
        if (count < 0 && errno != EINTR) {
            setp(buffer_.data(), end()); // what is there will not be tried again
            throw OutputError(std::strerror(errno), errno == EPIPE);
        }
        if (count > 0) {
            text += count;
            length -= std::size_t(count);
        }
    }
}

int FileBuffer::sync() {
    write(pbase(), std::size_t(pptr() - pbase()));
    setp(buffer_.data(), end());
    return 0;
}

FileBuffer::int_type FileBuffer::overflow(int_type c) {
    sync();
    if (c != traits_type::eof())
        sputc(char(c));
    return 0;
}

std::streamsize FileBuffer::xsputn(const char *text, std::streamsize length) {
    if (length > epptr() - pptr())
        sync();
    if (length > epptr() - pptr()) {
        write(text, std::size_t(length));
        return length;
    }
    std::memcpy(pptr(), text, std::size_t(length));
    pbump(int(length));
    return length;
}

} // namespace tool
