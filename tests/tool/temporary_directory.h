// A directory for the files of one test process, removed with them at its end.
#ifndef TARN_TEST_TOOL_TEMPORARY_DIRECTORY_H
#define TARN_TEST_TOOL_TEMPORARY_DIRECTORY_H

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>

class TemporaryDirectory {
public:
    TemporaryDirectory() : path_(std::filesystem::temp_directory_path() / "tarn_tool_XXXXXX") {
        if (mkdtemp(path_.data()) == nullptr)
            throw std::runtime_error("no temporary directory");
    }
    TemporaryDirectory(const TemporaryDirectory &) = delete;
    TemporaryDirectory &operator=(const TemporaryDirectory &) = delete;
    ~TemporaryDirectory() { std::filesystem::remove_all(path_); }

    std::string file(const std::string &name) const { return path_ + "/" + name; }

private:
    std::string path_;
};

// The path of a file in the directory of this process.
inline std::string temporary_file(const std::string &name) {
    static const TemporaryDirectory directory;
    return directory.file(name);
}

#endif
