#include "cold/Lines.h"

#include <parameters/ParametersEngine.h>

#include <cstdlib>
#include <string>

/// Loads a catalogue as a program does that has just been started: bench-cold-load FILE
int main(int argc, char** argv) {
    if (argc != 2) {
        return EXIT_FAILURE;
    }
    Parameters::ParametersEngine engine;
    for (const std::string& line : Bench::linesOf(argv[1])) {
        if (line.find(R"("inherits":["norvex.unit:unit-)") != std::string::npos) {
            engine.getUnitsEngine().registerSchema(line);
        } else {
            engine.registerSchema(line);
        }
    }
    engine.resolveSchemas();
}
