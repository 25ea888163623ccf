#include "engine/SortedTexts.h"

#include <algorithm>
#include <cstring>
#include <tuple>

namespace Parameters::Internal {

namespace {

constexpr std::size_t wordSize = sizeof(std::uint64_t);

/// A text with the eight bytes by which it is told from others that begin alike.
struct Sorted {
    std::string_view text;
    std::uint32_t place;
    std::uint32_t left; // bytes from there, no more than are more than a word
    std::uint64_t word;

    void lookAt(std::size_t offset) {
        left = static_cast<std::uint32_t>(std::min(text.size() - offset, wordSize + 1));
        word = 0;
        for (std::size_t i = 0; i < wordSize; ++i) { // the first byte counts most
            word = word << 8 | (i < left ? static_cast<unsigned char>(text[offset + i]) : 0U);
        }
    }
    bool operator<(const Sorted& other) const { return std::tie(word, left) < std::tie(other.word, other.left); }
    bool looksLike(const Sorted& other) const { return word == other.word && left == other.left; }
};

/// Texts side by side whose first bytes are the same.
struct Run {
    std::size_t begin;
    std::size_t end;
    std::size_t same;
};

/// Returns how many bytes all texts of a run have in common.
std::size_t commonBytes(const std::vector<Sorted>& texts, const Run& run) {
    const std::string_view first = texts[run.begin].text;
    std::size_t common = first.size();
    for (std::size_t i = run.begin + 1; i < run.end; ++i) {
        const std::string_view text = texts[i].text;
        const std::size_t most = std::min(common, text.size());
        if (std::memcmp(first.data() + run.same, text.data() + run.same, most - run.same) == 0) {
            common = most;
        } else {
            common = static_cast<std::size_t>(std::mismatch(first.begin() + static_cast<std::ptrdiff_t>(run.same),
                                                            first.begin() + static_cast<std::ptrdiff_t>(most),
                                                            text.begin() + static_cast<std::ptrdiff_t>(run.same))
                                                  .first -
                                              first.begin());
        }
    }
    return common;
}

} // namespace

void sortTexts(std::vector<PlacedText>& texts) {
    std::vector<Sorted> sorted;
    sorted.reserve(texts.size());
    for (const auto& [text, place] : texts) {
        sorted.push_back({text, place, 0, 0});
    }
    std::vector<Run> runs{{0, sorted.size(), 0}};
    while (!runs.empty()) {
        const Run run = runs.back();
        runs.pop_back();
        if (run.end - run.begin < 2) {
            continue;
        }
        const std::size_t offset = commonBytes(sorted, run);
        const auto begin = sorted.begin() + static_cast<std::ptrdiff_t>(run.begin);
        const auto end = sorted.begin() + static_cast<std::ptrdiff_t>(run.end);
        std::for_each(begin, end, [offset](Sorted& each) { each.lookAt(offset); });
        std::sort(begin, end);
        for (std::size_t first = run.begin; first < run.end;) {
            std::size_t last = first + 1;
            while (last < run.end && sorted[last].looksLike(sorted[first])) {
                ++last;
            }
            if (sorted[first].left > wordSize) { // else they are the same to their ends
                runs.push_back({first, last, offset + wordSize});
            }
            first = last;
        }
    }
    for (std::size_t i = 0; i < texts.size(); ++i) {
        texts[i] = {sorted[i].text, sorted[i].place};
    }
}

} // namespace Parameters::Internal
