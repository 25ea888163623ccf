#include "language/JsonSchema.h"

#include "edit/Layout.h"
#include "output/OutputFile.h"
#include "verbs/Verb.h"

#include <memory>
#include <string>

namespace Tool {

void addJsonSchema(CommandLine& program) {
    const auto output = std::make_shared<std::string>(standardOutput);
    const Verb verb = program.addVerb("json-schema", "Write the JSON schema by which editors know schemas");
    verb.add("-o,--output", *output, "FILE", "The JSON schema, a .json file; standard output when none\nis given")
        .check(refuseEmpty);
    verb.footer("It is of draft 7, and holds for a file with one schema. Installing brings it, too:\n"
                "share/ostra-parameters/schema.json.");
    verb.does([output] {
        writeTo(*output, Layout::ofJson(Language::jsonSchema()));
        return Good;
    });
}

} // namespace Tool
