#include "output/OutputFile.h"
#include "server/Server.h"
#include "system/System.h"
#include "verbs/Verb.h"

#include <cstdio>
#include <memory>
#include <string_view>

namespace Tool {

namespace {

constexpr const char* details = R"(Speaks the Language Server Protocol 3.17 over standard input and output: for
editors, which start it themselves. All files in the folders that the editor
names are one catalogue.

Exit codes:
  0  the editor has shut the server down
  1  the editor is gone without doing so
  2  wrong usage, or an output that cannot be written)";

ExitCode serve() {
    const bool isGood = Lsp::serve(System::readInput, [](std::string_view text) {
        print(text);
        if (std::fflush(stdout) != 0) {
            throw OutputError("Cannot write the result.");
        }
    });
    return isGood ? Good : Bad;
}

} // namespace

void addLsp(CommandLine& program) {
    const Verb verb = program.addVerb("lsp", "Help editors: a language server on standard input and output");
    const auto isStdio = std::make_shared<bool>();
    verb.addFlag("--stdio", *isStdio, "What some editors add, and is done anyway");
    verb.footer(details);
    verb.does([isStdio] { return serve(); });
}

} // namespace Tool
