#include "Fuzz.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

// Runs a fuzzer over the files of a folder, where there is no fuzzing: every compiler builds this.

namespace {

std::string contentOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

} // namespace

int main(int argc, char** argv) {
    int inputs = 0;
    for (int i = 1; i < argc; ++i) {
        if (argv[i][0] == '-') {
            continue; // an option of the fuzzer that this stands in for
        }
        for (const auto& entry : std::filesystem::directory_iterator(argv[i])) {
            const std::string input = contentOf(entry.path());
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
            ++inputs;
        }
    }
    std::cout << inputs << " inputs\n";
    return inputs > 0 ? 0 : 1;
}
