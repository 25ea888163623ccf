// Loads a folder of schema files, one schema a file. What is faulty is named and left out; the rest is there.

#include "Files.h"

#include <parameters/Kinds.h>
#include <parameters/ParametersEngine.h>

#include <cstddef>
#include <exception>
#include <filesystem>
#include <iostream>
#include <string>

using namespace Parameters;

namespace {

/// Units belong to the units engine; this catalogue has them in folders called "units".
void registerText(ParametersEngine& engine, const std::filesystem::path& file, const std::string& text) {
    if (file.parent_path().filename() == "units") {
        engine.getUnitsEngine().registerSchema(text);
    } else {
        engine.registerSchema(text);
    }
}

bool registerFiles(ParametersEngine& engine, const std::filesystem::path& folder) {
    bool sound = true;
    for (const auto& [file, text] : textsIn(folder)) {
        try {
            registerText(engine, file, text);
        } catch (const std::exception& fault) {
            std::cout << std::filesystem::path(file).filename().string() << ": " << fault.what() << '\n';
            sound = false;
        }
    }
    return sound;
}

bool resolve(ParametersEngine& engine) {
    //! [faults]
    engine.getUnitsEngine().resolveSchemas();
    const auto faults = engine.findUnresolvable();
    for (const auto& [typeId, message] : faults) {
        std::cout << message << '\n';
        engine.discardPending(typeId);
    }
    engine.resolveSchemas();
    //! [faults]
    return faults.empty();
}

std::size_t countParameters(const ParametersEngine& engine) {
    //! [kinds]
    std::size_t count = 0;
    forEachKind(Kinds::Parameters{}, [&](auto kind) { count += kind.getAll(engine).size(); });
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
    const bool readable = registerFiles(engine, argv[1]);
    const bool resolvable = resolve(engine);
    std::cout << countParameters(engine) << " parameters in " << engine.getAllGroups().size() << " groups\n";
    return readable && resolvable ? 0 : 1;
}
