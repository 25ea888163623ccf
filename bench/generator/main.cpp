#include "generator/Catalogue.h"

#include <cstdint>
#include <exception>
#include <iostream>
#include <string>

/// Prints a catalogue, one schema a line: bench-catalogue SIZE [SEED]
int main(int argc, char** argv) {
    if (argc < 2 || argc > 3) {
        std::cerr << "usage: bench-catalogue SIZE [SEED]\n";
        return 2;
    }
    try {
        const std::uint64_t seed = argc == 3 ? std::stoull(argv[2]) : 1;
        for (const Bench::Schema& schema : Bench::makeCatalogue(std::stoull(argv[1]), seed)) {
            std::cout << schema.text << '\n';
        }
    } catch (const std::exception& error) {
        std::cerr << "bench-catalogue: " << error.what() << '\n';
        return 1;
    }
}
