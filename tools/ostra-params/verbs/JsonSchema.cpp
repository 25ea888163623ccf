#include "language/JsonSchema.h"

#include "edit/Layout.h"
#include "output/OutputFile.h"
#include "verbs/Verb.h"

#include <CLI/CLI.hpp>

#include <memory>
#include <string>

namespace Tool {

Action addJsonSchema(CLI::App& program) {
    const auto output = std::make_shared<std::string>(standardOutput);
    CLI::App* verb = program.add_subcommand("json-schema", "Write the JSON schema by which editors know schemas");
    verb->add_option("-o,--output", *output, "The JSON schema, a .json file; standard output when none\nis given")
        ->check(refuseEmpty)
        ->type_name("FILE");
    verb->footer("It is of draft 7, and holds for a file with one schema. Installing brings it, too:\n"
                 "share/ostra-parameters/schema.json.");
    return [output] {
        writeTo(*output, Layout::ofJson(Language::jsonSchema()));
        return Good;
    };
}

} // namespace Tool
