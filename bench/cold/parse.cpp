#include "cold/Lines.h"

#include <rapidjson/document.h>

#include <cstdlib>
#include <string>

/// Parses the texts of a catalogue and does no more: bench-cold-parse FILE
int main(int argc, char** argv) {
    if (argc != 2) {
        return EXIT_FAILURE;
    }
    std::size_t members = 0;
    rapidjson::Document document;
    for (const std::string& line : Bench::linesOf(argv[1])) {
        document.GetAllocator().Clear();
        members += document.Parse(line.data(), line.size()).MemberCount();
    }
    return members > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
