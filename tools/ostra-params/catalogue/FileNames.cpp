#include "catalogue/FileNames.h"

#include "catalogue/Input.h"
#include "output/Text.h"
#include "system/System.h"

#include <algorithm>
#include <array>
#include <regex>
#include <string_view>
#include <unordered_set>

namespace Tool {

namespace {

std::string extensionOf(const std::string& file) { return lower(System::textOf(System::pathOf(file).extension())); }

/// Returns the path of the file of which that of this path is a copy, by its name; empty when it does not look like
/// one.
std::string originalOf(const std::string& path) {
    static const std::regex copy(R"((.*/)?(copy of )?(.*?)( \((copy|\d+)\)| - copy( \(\d+\))?| copy( \d+)?)"
                                 R"(|[._-](bak|backup|orig|old|copy))?(\.[^.]*))",
                                 std::regex::icase);
    constexpr std::size_t longest = 1000; // it takes stack for each character
    const std::string name = lower(System::textOf(System::pathOf(path).filename()));
    constexpr std::array signs{"copy", "bak", "back", "orig", "old", " ("};
    const auto isIn = [&](const char* sign) { return name.find(sign) != std::string::npos; };
    const bool isCopy = path.size() <= longest && std::any_of(signs.begin(), signs.end(), isIn);
    std::smatch parts;
    return isCopy && std::regex_match(path, parts, copy) ? parts.str(1) + parts.str(3) + parts.str(9) : std::string();
}

} // namespace

bool holdsLines(const std::string& file) {
    const std::string extension = extensionOf(file);
    return extension == ".ndjson" || extension == ".jsonl";
}

bool isSchemaFile(const std::string& file) { return extensionOf(file) == ".json" || holdsLines(file); }

bool isNameBefore(const std::string& one, const std::string& other) {
    // As paths are compared, name by name, at a fraction of the cost.
    const auto rank = [](char byte) { return byte == '/' ? 0 : 1 + static_cast<unsigned char>(byte); };
    return std::lexicographical_compare(one.begin(), one.end(), other.begin(), other.end(),
                                        [&](char left, char right) { return rank(left) < rank(right); });
}

void putCopiesLast(std::deque<std::string>& files) {
    const std::unordered_set<std::string> known(files.begin(), files.end());
    std::stable_partition(files.begin(), files.end(), [&](const std::string& file) {
        const std::string original = originalOf(file);
        return original == file || !known.contains(original);
    });
}

} // namespace Tool
