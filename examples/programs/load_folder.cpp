// Loads a folder of schema files, one schema a file. What is faulty is named and left out; the rest is there.

#include "Files.h"

#include <parameters/Kinds.h>
#include <parameters/ParametersEngine.h>

#include <algorithm>
#include <cstddef>
#include <iostream>

using namespace Parameters;

namespace {

/// Returns whether all files are sound.
bool load(ParametersEngine& engine, const char* folder) {
    //! [faults]
    const auto faults = engine.registerSoundSchemas(textsIn(folder)); // those of units, too
    printErrors(std::cout, faults);
    //! [faults]
    return std::none_of(faults.begin(), faults.end(), [](const Fault& fault) { return fault.isError(); });
}

std::size_t countParameters(const ParametersEngine& engine) {
    //! [kinds]
    std::size_t count = 0;
    forEachKind(Kinds::Parameters{}, [&](auto kind) { count += kind.count(engine); });
    //! [kinds]
    return count;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: load_folder FOLDER\n";
        return 2;
    }
    ParametersEngine engine;
    const bool isSound = load(engine, argv[1]);
    std::cout << countParameters(engine) << " parameters in " << engine.countObjects(Kinds::Group::info) << " groups\n";
    return isSound ? 0 : 1;
}
