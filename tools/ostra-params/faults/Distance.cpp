#include "faults/Distance.h"

#include "output/Text.h"

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <tuple>
#include <utility>

namespace Tool {

namespace {

char lower(char character) { return static_cast<char>(std::tolower(static_cast<unsigned char>(character))); }

bool areAlike(char one, char other) { return lower(one) == lower(other); }

/// Drops what two texts have in common at both ends, which tells nothing of their distance.
void dropCommonEnds(std::string_view& one, std::string_view& other) {
    while (!one.empty() && !other.empty() && areAlike(one.front(), other.front())) {
        one.remove_prefix(1);
        other.remove_prefix(1);
    }
    while (!one.empty() && !other.empty() && areAlike(one.back(), other.back())) {
        one.remove_suffix(1);
        other.remove_suffix(1);
    }
}

} // namespace

std::size_t distance(std::string_view one, std::string_view other, std::size_t limit) {
    dropCommonEnds(one, other);
    if (std::max(one.size(), other.size()) - std::min(one.size(), other.size()) > limit) {
        return limit + 1;
    }
    // Rows of the table of distances between all beginnings of the two texts.
    std::vector<std::size_t> beforeLast;
    std::vector<std::size_t> last(other.size() + 1);
    for (std::size_t j = 0; j < last.size(); ++j) {
        last[j] = j;
    }
    for (std::size_t i = 1; i <= one.size(); ++i) {
        std::vector<std::size_t> row(last.size());
        row[0] = i;
        for (std::size_t j = 1; j < row.size(); ++j) {
            row[j] =
                std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + (areAlike(one[i - 1], other[j - 1]) ? 0U : 1U)});
            const bool areSwapped =
                i > 1 && j > 1 && areAlike(one[i - 1], other[j - 2]) && areAlike(one[i - 2], other[j - 1]);
            if (areSwapped) {
                row[j] = std::min(row[j], beforeLast[j - 2] + 1);
            }
        }
        if (*std::min_element(row.begin(), row.end()) > limit) {
            return limit + 1;
        }
        beforeLast = std::exchange(last, std::move(row));
    }
    return last.back();
}

std::vector<std::string_view> nearest(std::string_view text, const std::vector<std::string_view>& candidates) {
    const std::size_t limit = 1 + text.size() / 8; // beyond that texts are different, not misspelt
    constexpr std::size_t most = 3;
    std::vector<std::pair<std::size_t, std::string_view>> near;
    for (const std::string_view candidate : candidates) {
        const std::size_t apart = distance(text, candidate, limit);
        if (apart <= limit) {
            near.emplace_back(apart, candidate);
        }
    }
    std::sort(near.begin(), near.end());
    near.erase(std::unique(near.begin(), near.end()), near.end());
    std::vector<std::string_view> texts;
    for (std::size_t i = 0; i < std::min(near.size(), most) && near[i].first == near.front().first; ++i) {
        texts.push_back(near[i].second);
    }
    return texts;
}

std::string didYouMean(std::string_view text, const std::vector<std::string_view>& candidates) {
    std::string question;
    for (const std::string_view candidate : nearest(text, candidates)) {
        question += question.empty() ? "did you mean " : " or ";
        question += candidate;
    }
    return question.empty() ? question : question + "?";
}

} // namespace Tool
