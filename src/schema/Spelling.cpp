#include "schema/Spelling.h"

#include <algorithm>
#include <array>

namespace Ostra {

namespace {

/// Texts that differ over a greater length are different, not misspelt.
constexpr std::size_t longest = 255;

char lower(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}

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
    const std::size_t longer = std::max(one.size(), other.size());
    if (longer - std::min(one.size(), other.size()) > limit || longer > longest) {
        return limit + 1;
    }
    // Three rows of the table of distances between all beginnings of the two texts. What lies further from the diagonal
    // than the limit is not looked at, as thousands of texts may be compared with thousands.
    using Row = std::array<std::size_t, longest + 1>;
    std::array<Row, 3> rows;
    for (std::size_t j = 0; j <= other.size(); ++j) {
        rows[0][j] = j;
    }
    for (std::size_t i = 1; i <= one.size(); ++i) {
        Row& row = rows[i % 3];
        const Row& last = rows[(i + 2) % 3];
        const Row& beforeLast = rows[(i + 1) % 3];
        const std::size_t begin = i > limit ? i - limit : 1;
        const std::size_t end = std::min(other.size(), i + limit);
        row[begin - 1] = begin == 1 ? i : limit + 1;
        std::size_t least = row[begin - 1];
        for (std::size_t j = begin; j <= end; ++j) {
            const std::size_t above = j < i + limit ? last[j] : limit + 1;
            row[j] =
                std::min({above + 1, row[j - 1] + 1, last[j - 1] + (areAlike(one[i - 1], other[j - 1]) ? 0U : 1U)});
            if (i > 1 && j > 1 && areAlike(one[i - 1], other[j - 2]) && areAlike(one[i - 2], other[j - 1])) {
                row[j] = std::min(row[j], beforeLast[j - 2] + 1);
            }
            least = std::min(least, row[j]);
        }
        if (least > limit) {
            return limit + 1;
        }
    }
    return rows[one.size() % 3][other.size()];
}

std::vector<std::string_view> nearest(std::string_view text, const std::vector<std::string_view>& candidates) {
    constexpr std::size_t most = 3;
    std::size_t limit = 1 + text.size() / 8; // beyond that texts are different, not misspelt
    std::vector<std::string_view> near;
    for (const std::string_view candidate : candidates) {
        const std::size_t apart = distance(text, candidate, limit);
        if (apart < limit) {
            near.clear();
        }
        if (apart <= limit) {
            limit = apart;
            near.push_back(candidate);
        }
    }
    std::sort(near.begin(), near.end());
    near.erase(std::unique(near.begin(), near.end()), near.end());
    near.resize(std::min(near.size(), most));
    return near;
}

} // namespace Ostra
