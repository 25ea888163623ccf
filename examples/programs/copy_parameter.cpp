// Copies a parameter from one engine to another, with all that it needs and nothing more.

#include "Files.h"

#include <parameters/ParametersEngine.h>

#include <exception>
#include <iostream>
#include <set>
#include <string>

using namespace Parameters;

namespace {

//! [copy]
/// Registers the schema of an object, and of what it names, and so on; built-in objects need no copy.
void copy(const ParametersEngine& from, ParametersEngine& to, const std::string& typeId) {
    std::set<std::string> wanted{typeId};
    while (!wanted.empty()) {
        const std::string next = wanted.extract(wanted.begin()).value();
        auto [missing, missingUnits] = to.registerSchema(from.getSchema(next));
        std::cout << "copied " << next << '\n';
        wanted.merge(missing);
    }
    to.resolveSchemas();
}
//! [copy]

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: copy_parameter FOLDER TYPEID\n";
        return 2;
    }
    try {
        ParametersEngine catalogue;
        printErrors(std::cerr, catalogue.registerSoundSchemas(textsIn(argv[1])));

        ParametersEngine project;
        project.getUnitsEngine() = catalogue.getUnitsEngine(); // units have no schema to be had, and are copied as one
        copy(catalogue, project, argv[2]);
        std::cout << project.getSchema(argv[2]) << '\n';
    } catch (const std::exception& fault) {
        std::cerr << fault.what() << '\n';
        return 1;
    }
}
