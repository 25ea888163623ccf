#pragma once

#include <parameters/Kinds.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace Support {

/// A kind of object, or units, as the tool's table of counts calls them, and what is in the bases of their schemas.
struct CatalogueKind {
    std::string name;
    std::vector<std::string> bases;
};

/// Returns the library's kinds and units.
inline std::vector<CatalogueKind> makeCatalogueKinds() {
    std::vector<CatalogueKind> kinds{{"units", {"norvex.unit:unit-1."}}};
    Parameters::forEachKind([&](auto kind) {
        CatalogueKind& made = kinds.emplace_back(CatalogueKind{std::string(kind.info.plural()), {}});
        for (const std::string_view base : kind.info.bases()) {
            const std::size_t version = base.find('-');
            const bool hasVersion = version != std::string_view::npos;
            made.bases.emplace_back(hasVersion ? base.substr(0, base.find('.', version) + 1) : base); // any minor one
        }
    });
    return kinds;
}

inline const std::vector<CatalogueKind> catalogueKinds = makeCatalogueKinds();

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
