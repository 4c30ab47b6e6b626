// header_writer [--check] [root]
//
// Writes the public header, the list of exported functions, the reference tables and Wireshark's
// plugin beneath `root` (the current directory, when left out) from the rows of src/catalogue. With
// --check it writes nothing: it compares, names each file that differs, and fails if there is one.

#include "pages.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <stdexcept>

namespace {

using header_writer::Page;

struct File {
    std::string path;
    std::string content;
};

std::string export_list(std::vector<std::string> names) {
    std::sort(names.begin(), names.end());
    if (std::adjacent_find(names.begin(), names.end()) != names.end())
        throw std::runtime_error("a function stands twice in the headers");
    std::string text;
    for (const std::string &name : names)
        text += name + "\n";
    return text;
}

std::string content_of(const std::filesystem::path &path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

std::vector<File> all_files(const std::filesystem::path &root) {
    const header_writer::Catalogue catalogue = header_writer::read_catalogue();
    const std::vector<std::pair<std::string, Page>> headers = {
        {"include/tarn_if.h", header_writer::core_header()},
        {"include/tarn_if_objects.h", header_writer::objects_header()},
        {"include/tarn_if_primitive_ies.h", header_writer::primitive_header(catalogue)},
        {"include/tarn_if_composite_ies.h", header_writer::composite_header(catalogue)},
        {"include/tarn_if_messages.h", header_writer::message_header(catalogue)},
    };
    std::vector<File> files;
    std::vector<std::string> functions;
    for (const auto &[path, page] : headers) {
        files.push_back({path, page.text()});
        functions.insert(functions.end(), page.functions().begin(), page.functions().end());
    }
    files.push_back({"cmake/exports.txt", export_list(functions)});
    files.push_back({"include/tarn.hpp", header_writer::cpp_header(catalogue)});
    files.push_back({"python/tarn/_rows.py", header_writer::python_rows(catalogue)});
    files.push_back({"python/tarn/__init__.pyi", header_writer::python_types(catalogue)});
    files.push_back({"docs/reference.md", header_writer::reference_tables(catalogue)});
    // The plugin is one file, since Wireshark loads each of its plugins by itself.
    files.push_back({"wireshark/tarn.lua", header_writer::lua_rows(catalogue) +
                                               content_of(root / "wireshark/engine.lua") +
                                               content_of(root / "wireshark/plugin.lua")});
    return files;
}

int check(const std::filesystem::path &root, const std::vector<File> &files) {
    bool same = true;
    for (const File &file : files) {
        if (content_of(root / file.path) == file.content)
            continue;
        same = false;
        std::cerr << file.path << " differs from the rows in src/catalogue\n";
    }
    if (!same)
        std::cerr << "to mend: cmake --preset release && "
                     "cmake --build --preset release --target tarn_headers\n";
    return same ? 0 : 1;
}

int write(const std::filesystem::path &root, const std::vector<File> &files) {
    for (const File &file : files) {
        const std::filesystem::path path = root / file.path;
        std::filesystem::create_directories(path.parent_path());
        std::ofstream stream(path, std::ios::binary);
        stream << file.content;
        if (!stream.flush())
            throw std::runtime_error("cannot write " + file.path);
    }
    return 0;
}

int run(std::vector<std::string> arguments) {
    const bool checking = !arguments.empty() && arguments.front() == "--check";
    if (checking)
        arguments.erase(arguments.begin());
    if (arguments.size() > 1 || (!arguments.empty() && arguments.front().starts_with("-"))) {
        std::cerr << "usage: header_writer [--check] [root]\n";
        return 2;
    }
    const std::filesystem::path root = arguments.empty() ? "." : arguments.front();
    return checking ? check(root, all_files(root)) : write(root, all_files(root));
}

} // namespace

int main(int count, char **words) {
    try {
        return run({words + 1, words + count});
    } catch (const std::exception &error) {
        std::cerr << "header_writer: " << error.what() << "\n";
        return 2;
    }
}
