#include "support/Catalogue.h"
#include "support/Faults.h"
#include "support/MutatedTexts.h"
#include "support/Picture.h"

#include <parameters/ParametersEngine.h>

#include <cstdint>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#endif

/// Prints all that the library says of schema texts, so that platforms can be compared byte for byte: golden FOLDER...
/// The texts of the first folder are changed at random, too; the files of the others are read as they are.

namespace {

namespace fs = std::filesystem;

using Support::Texts;

void print(const std::string& what, const Texts& texts) {
    Parameters::ParametersEngine engine;
    std::cout << "== " << what << "\n";
    for (const Parameters::Fault& fault : engine.registerSoundSchemas(texts)) {
        std::cout << Support::lineOf(fault, texts) << " " << fault.place().begin << "-" << fault.place().end << " "
                  << Support::shown(fault.message()) << "\n";
    }
    for (const auto& [typeId, message] : engine.findUnresolvable()) {
        std::cout << "left " << Support::shown(typeId) << ": " << Support::shown(message) << "\n";
    }
    std::cout << Support::pictureOf(engine);
}

/// What each text by itself is refused for, or what it needs.
void printRefusals(const Texts& texts) {
    for (const auto& [key, text] : texts) {
        Parameters::ParametersEngine engine;
        std::cout << key << ": ";
        try {
            const auto [missing, units] = engine.registerSchema(text);
            for (const std::set<std::string>& typeIds : {missing, units}) {
                std::cout << "needs";
                for (const std::string& typeId : typeIds) {
                    std::cout << " " << Support::shown(typeId);
                }
            }
        } catch (const std::exception& exception) {
            std::cout << Support::shown(exception.what());
        }
        std::cout << "\n";
    }
}

Texts numbered(const std::vector<std::string>& texts) {
    Texts result;
    for (const std::string& text : texts) {
        result.emplace(std::to_string(result.size()), text);
    }
    return result;
}

/// Rounds of texts of which about one in four is changed.
void printChanged(const std::vector<std::string>& texts, std::uint64_t rounds) {
    for (std::uint64_t seed = 0; seed < rounds; ++seed) {
        Support::MutatedTexts random(seed);
        std::vector<std::string> changed = texts;
        for (std::string& text : changed) {
            text = random.chance(4) ? random.mutated(text) : text;
        }
        print("changed with seed " + std::to_string(seed), numbered(changed));
        printRefusals(numbered(changed));
    }
}

Texts filesIn(const fs::path& folder) {
    Texts texts;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        if (entry.is_regular_file()) {
            std::ifstream stream(entry.path(), std::ios::binary);
            texts.emplace(entry.path().lexically_relative(folder).generic_string(),
                          std::string(std::istreambuf_iterator<char>(stream), {}));
        }
    }
    return texts;
}

} // namespace

int main(int argc, char** argv) {
#ifdef _WIN32
    _setmode(_fileno(stdout), _O_BINARY);
#endif
    if (argc < 2) {
        std::cerr << "usage: golden FOLDER...\n";
        return 2;
    }
    const std::vector<std::string> texts = Support::textsIn(argv[1]);
    print("as they are", numbered(texts));
    printChanged(texts, 20);
    for (int i = 2; i < argc; ++i) {
        print(std::to_string(i), filesIn(argv[i]));
        printRefusals(filesIn(argv[i]));
    }
}
