#include "Check.h"

#include "Checker.h"
#include "Counts.h"
#include "Input.h"

#include <fmt/format.h>

#include <cstddef>
#include <filesystem>
#include <iterator>
#include <string_view>

namespace Tool {

namespace {

/// Returns the text in one line, whatever bytes its author put into it.
std::string printable(std::string_view text) {
    std::string line;
    for (const char byte : text) {
        const auto code = static_cast<unsigned char>(byte);
        if (code < 0x20 || code == 0x7F) {
            fmt::format_to(std::back_inserter(line), "\\x{:02X}", code);
        } else {
            line += byte;
        }
    }
    return line;
}

void print(const Fault& fault) {
    if (fault.place) {
        fmt::print("{}:{}: ", printable(fault.place->file.string()), fault.place->line);
    }
    fmt::print("{}\n", printable(fault.message));
}

std::string counted(std::size_t count, std::string_view noun) {
    return fmt::format("{} {}{}", count, noun, count == 1 ? "" : "s");
}

} // namespace

bool check(const std::vector<std::string>& paths) {
    const std::vector<std::filesystem::path> files = findFiles(paths);
    Checker checker;
    std::size_t texts = 0;
    std::size_t faults = 0;
    const auto report = [&faults](const Fault& fault) {
        print(fault);
        ++faults;
    };
    for (const std::filesystem::path& file : files) {
        readTexts(file, [&](const Source& source) {
            ++texts;
            if (const auto fault = checker.add(source)) {
                report(*fault);
            }
        });
    }
    for (const Fault& fault : checker.resolve()) {
        report(fault);
    }

    fmt::print("{}", tableOfCounts(checker.engine()));
    fmt::print("{} in {}: {}\n", counted(texts, "schema"), counted(files.size(), "file"), counted(faults, "fault"));
    return faults == 0;
}

} // namespace Tool
