#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace Support {

/// A kind of object as a catalogue and the tool's table of counts call it, and the bases of its schemas.
struct CatalogueKind {
    const char* name;
    std::vector<std::string> bases;
};

inline const std::array catalogueKinds{
    CatalogueKind{"units", {"norvex.unit:unit-1."}},
    CatalogueKind{"enumerations", {"Enum"}},
    CatalogueKind{"floating-point ranges", {"norvex.range:range.float64.bounded.static-1."}},
    CatalogueKind{"integer ranges", {"norvex.range:range.int64.bounded.static-1."}},
    CatalogueKind{"string ranges",
                  {"norvex.range:range.string-1.", "norvex.range:range.string.set.static-1.",
                   "norvex.range:range.string.regex-1."}},
    CatalogueKind{"disciplines", {"norvex.spec:discipline-1."}},
    CatalogueKind{"Boolean specs", {"norvex.spec:spec.bool-1."}},
    CatalogueKind{"general specs", {"norvex.spec:spec-1."}},
    CatalogueKind{"integer specs", {"norvex.spec:spec.int64-2."}},
    CatalogueKind{"measurable specs", {"norvex.spec:spec.measurable-2."}},
    CatalogueKind{"reference specs", {"norvex.spec:spec.reference-1."}},
    CatalogueKind{"string specs", {"norvex.spec:spec.string-2."}},
    CatalogueKind{"groups", {"norvex.parameter:group-1."}},
    CatalogueKind{"enumeration parameters", {"norvex.parameter:parameter-2."}},
    CatalogueKind{"Boolean parameters", {"norvex.parameter:parameter.bool-2."}},
    CatalogueKind{"integer parameters", {"norvex.parameter:parameter.int64-3."}},
    CatalogueKind{"measurable parameters", {"norvex.parameter:parameter.measurable-3."}},
    CatalogueKind{"reference parameters",
                  {"norvex.parameter:parameter.reference-2.", "norvex.parameter:parameter.reference.ranged-2."}},
    CatalogueKind{"string parameters", {"norvex.parameter:parameter.string-3."}},
    CatalogueKind{"domains", {"norvex.talmo.category:domain-1."}},
    CatalogueKind{"categories", {"norvex.talmo.category:majorCategory-1.", "norvex.talmo.category:subCategory-1."}},
};

/// Returns the schema texts of a folder: each .json file, and each line of each .ndjson file, in the order of the
/// paths.
inline std::vector<std::string> textsIn(const std::filesystem::path& folder) {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    std::vector<std::string> texts;
    for (const std::filesystem::path& file : files) {
        std::ifstream stream(file, std::ios::binary);
        if (file.extension() == ".json") {
            texts.emplace_back(std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>());
        } else if (file.extension() == ".ndjson") {
            for (std::string line; std::getline(stream, line);) {
                texts.push_back(line);
            }
        }
    }
    return texts;
}

/// Returns the base that a schema text inherits, as its bytes have it: the first string after "inherits".
inline std::string baseOf(const std::string& text) {
    const std::string member = "\"inherits\"";
    const std::size_t array = text.find('[', text.find(member));
    const std::size_t begin = text.find('"', array);
    const std::size_t end = text.find('"', begin + 1);
    if (text.find(member) == std::string::npos || end == std::string::npos) {
        throw std::runtime_error("No base in " + text);
    }
    return text.substr(begin + 1, end - begin - 1);
}

/// Returns how many of the texts are of each kind, by their bases.
inline std::map<std::string, std::size_t> countByKind(const std::vector<std::string>& texts) {
    std::map<std::string, std::size_t> counts;
    for (const CatalogueKind& kind : catalogueKinds) {
        const auto isOfKind = [&kind](const std::string& text) {
            const std::string inherited = baseOf(text);
            return std::any_of(kind.bases.begin(), kind.bases.end(), [&inherited](const std::string& base) {
                return inherited.find(base) != std::string::npos;
            });
        };
        counts[kind.name] = static_cast<std::size_t>(std::count_if(texts.begin(), texts.end(), isOfKind));
    }
    return counts;
}

} // namespace Support
