// Runs a target without libFuzzer: over every file named or found in the folders named, and then
// over as many mutations of them as asked for, the same ones each time.
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

#include "fuzz.h"

namespace {

using Input = std::vector<std::uint8_t>;

Input read(const std::filesystem::path &path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        std::fprintf(stderr, "cannot read %s\n", path.c_str());
        std::exit(2);
    }
    return {std::istreambuf_iterator<char>(file), {}};
}

void add_inputs(const std::filesystem::path &path, std::vector<std::filesystem::path> *found) {
    if (!std::filesystem::is_directory(path)) {
        found->push_back(path);
        return;
    }
    for (const auto &entry : std::filesystem::recursive_directory_iterator(path))
        if (entry.is_regular_file() && entry.path().filename().string().front() != '.')
            found->push_back(entry.path());
}

class Mutator {
public:
    explicit Mutator(const std::vector<Input> &inputs) : inputs_(inputs) {}

    Input next() {
        Input input = any_input();
        for (std::size_t times = 1 + below(3); times != 0; --times)
            mutate(&input);
        return input;
    }

private:
    std::size_t below(std::size_t limit) { return limit == 0 ? 0 : random_() % limit; }
    const Input &any_input() { return inputs_[below(inputs_.size())]; }

    // Bytes at the ends of their range and small ones hit lengths, counts and bounds most often.
    std::uint8_t any_byte() {
        static constexpr std::uint8_t telling[] = {0x00, 0x01, 0x06, 0x07, 0x7F, 0x80, 0xFF};
        return below(2) == 0 ? telling[below(std::size(telling))] : std::uint8_t(random_());
    }

    void mutate(Input *input) {
        const std::size_t at = below(input->size());
        const auto position = input->begin() + std::ptrdiff_t(at);
        const std::size_t left = input->size() - at;
        switch (below(5)) {
        case 0:
            if (left != 0)
                *position = any_byte();
            break;
        case 1:
            input->resize(at);
            break;
        case 2:
            input->erase(position,
                         position + std::ptrdiff_t(below(std::min<std::size_t>(left, 16))));
            break;
        case 3:
            input->insert(position, 1 + below(8), any_byte());
            break;
        default:
            splice(input, at);
        }
    }

    // Puts a piece of another input there.
    void splice(Input *input, std::size_t at) {
        const Input &other = any_input();
        const auto from = other.begin() + std::ptrdiff_t(below(other.size()));
        const auto length =
            std::ptrdiff_t(below(std::min<std::size_t>(64, std::size_t(other.end() - from))));
        input->insert(input->begin() + std::ptrdiff_t(at), from, from + length);
    }

    const std::vector<Input> &inputs_;
    std::mt19937 random_{1}; // the same numbers in every run
};

void run(const Input &input) {
    LLVMFuzzerTestOneInput(input.data(), input.size());
}

} // namespace

int main(int count, char **arguments) {
    constexpr std::string_view mutationsOption = "--mutations=";
    long mutations = 0;
    std::vector<std::filesystem::path> paths;
    for (int i = 1; i < count; ++i) {
        const std::string argument = arguments[i];
        if (argument.starts_with(mutationsOption))
            mutations = std::atol(argument.c_str() + mutationsOption.size());
        else
            add_inputs(argument, &paths);
    }
    std::sort(paths.begin(), paths.end());
    std::vector<Input> inputs;
    for (const auto &path : paths)
        inputs.push_back(read(path));
    if (inputs.empty()) {
        std::fprintf(stderr, "usage: %s [--mutations=COUNT] FILE-OR-FOLDER...\n", arguments[0]);
        return 2;
    }
    for (const Input &input : inputs)
        run(input);
    Mutator mutator(inputs);
    for (long i = 0; i < mutations; ++i)
        run(mutator.next());
    std::printf("%zu inputs and %ld mutations of them\n", inputs.size(), mutations);
    return 0;
}
