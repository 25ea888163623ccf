#include "output/UnifiedDiff.h"

#include "output/Text.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstddef>
#include <unordered_map>
#include <utility>
#include <vector>

namespace Tool {

namespace {

using Lines = std::vector<std::string_view>;

constexpr std::size_t none = static_cast<std::size_t>(-1);
constexpr std::size_t context = 3;

Lines linesOf(std::string_view text) {
    Lines lines;
    while (!text.empty()) {
        const std::size_t length = std::min(text.find('\n'), text.size() - 1) + 1;
        lines.push_back(text.substr(0, length));
        text.remove_prefix(length);
    }
    return lines;
}

/// Some lines of the one side, and those of the other that took their place.
struct Stretch {
    std::size_t begin;
    std::size_t end;
    std::size_t newBegin;
    std::size_t newEnd;
};

/// Pairs the lines that both sides have: first those that are there once on each side, as far as they are in one order,
/// then what is alike around them.
class Pairing {
public:
    Pairing(const Lines& before, const Lines& after) : before_(before), after_(after), partners_(before.size(), none) {
        std::vector<Stretch> open{{0, before.size(), 0, after.size()}};
        while (!open.empty()) {
            const Stretch stretch = pairEnds(open.back());
            open.pop_back();
            Stretch rest = stretch;
            for (const auto& [line, newLine] : anchorsOf(stretch)) {
                open.push_back({rest.begin, line, rest.newBegin, newLine});
                partners_[line] = newLine;
                rest.begin = line + 1;
                rest.newBegin = newLine + 1;
            }
            if (rest.begin != stretch.begin) {
                open.push_back(rest);
            }
        }
    }

    /// Returns what changed, in order.
    std::vector<Stretch> changes() const {
        std::vector<Stretch> changes;
        Stretch gap{0, 0, 0, 0};
        const auto add = [&](std::size_t line, std::size_t newLine) {
            gap.end = line;
            gap.newEnd = newLine;
            if (gap.begin < gap.end || gap.newBegin < gap.newEnd) {
                changes.push_back(gap);
            }
            gap.begin = line + 1;
            gap.newBegin = newLine + 1;
        };
        for (std::size_t line = 0; line < before_.size(); ++line) {
            if (partners_[line] != none) {
                add(line, partners_[line]);
            }
        }
        add(before_.size(), after_.size());
        return changes;
    }

private:
    using Pairs = std::vector<std::pair<std::size_t, std::size_t>>;

    Stretch pairEnds(Stretch stretch) {
        auto& [begin, end, newBegin, newEnd] = stretch;
        while (begin < end && newBegin < newEnd && before_[begin] == after_[newBegin]) {
            partners_[begin++] = newBegin++;
        }
        while (begin < end && newBegin < newEnd && before_[end - 1] == after_[newEnd - 1]) {
            partners_[--end] = --newEnd;
        }
        return stretch;
    }

    /// Returns the longest row of lines that are there once on each side and in the same order on both.
    Pairs anchorsOf(const Stretch& stretch) const {
        struct Count {
            std::size_t before = 0;
            std::size_t after = 0;
            std::size_t newLine = 0;
        };
        std::unordered_map<std::string_view, Count> counts;
        for (std::size_t line = stretch.begin; line < stretch.end; ++line) {
            ++counts[before_[line]].before;
        }
        for (std::size_t line = stretch.newBegin; line < stretch.newEnd; ++line) {
            Count& count = counts[after_[line]];
            ++count.after;
            count.newLine = line;
        }
        Pairs pairs;
        for (std::size_t line = stretch.begin; line < stretch.end; ++line) {
            if (const Count& count = counts.at(before_[line]); count.before == 1 && count.after == 1) {
                pairs.emplace_back(line, count.newLine);
            }
        }
        return longestRowOf(pairs);
    }

    static Pairs longestRowOf(const Pairs& pairs) {
        std::vector<std::size_t> ends; // of the best row of each length, the pair with which it ends
        std::vector<std::size_t> previous(pairs.size(), none);
        for (std::size_t i = 0; i < pairs.size(); ++i) {
            const auto place = std::lower_bound(ends.begin(), ends.end(), i, [&](std::size_t one, std::size_t other) {
                return pairs[one].second < pairs[other].second;
            });
            previous[i] = place == ends.begin() ? none : *std::prev(place);
            place == ends.end() ? ends.push_back(i) : void(*place = i);
        }
        Pairs row;
        for (std::size_t i = ends.empty() ? none : ends.back(); i != none; i = previous[i]) {
            row.push_back(pairs[i]);
        }
        std::reverse(row.begin(), row.end());
        return row;
    }

    const Lines& before_;
    const Lines& after_;
    std::vector<std::size_t> partners_; // of the lines before
};

std::string shown(char sign, const Lines& lines, std::size_t begin, std::size_t end) {
    std::string text;
    for (std::size_t i = begin; i < end; ++i) {
        text += sign;
        text += lines[i];
        text += lines[i].ends_with('\n') ? "" : "\n\\ No newline at end of file\n";
    }
    return text;
}

/// Returns where lines begin and how many they are, as patch wants it: no lines are behind the one that is named.
std::string rangeOf(std::size_t begin, std::size_t end) {
    return fmt::format("{},{}", begin == end ? begin : begin + 1, end - begin);
}

} // namespace

std::string unifiedDiff(std::string_view file, std::string_view before, std::string_view after) {
    const Lines lines = linesOf(before);
    const Lines newLines = linesOf(after);
    const std::vector<Stretch> changes = Pairing(lines, newLines).changes();
    const std::string name = printable(file);
    std::string text = changes.empty() ? "" : fmt::format("--- {}\n+++ {}\n", name, name);
    for (std::size_t first = 0, last = 0; first < changes.size(); first = last + 1) {
        last = first;
        while (last + 1 < changes.size() && changes[last + 1].begin - changes[last].end <= 2 * context) {
            ++last;
        }
        const std::size_t lead = std::min(context, changes[first].begin);
        const std::size_t trail = std::min(context, lines.size() - changes[last].end);
        std::size_t line = changes[first].begin - lead;
        text += fmt::format("@@ -{} +{} @@\n", rangeOf(line, changes[last].end + trail),
                            rangeOf(changes[first].newBegin - lead, changes[last].newEnd + trail));
        for (std::size_t i = first; i <= last; ++i) {
            const auto& [begin, end, newBegin, newEnd] = changes[i];
            text +=
                shown(' ', lines, line, begin) + shown('-', lines, begin, end) + shown('+', newLines, newBegin, newEnd);
            line = end;
        }
        text += shown(' ', lines, line, line + trail);
    }
    return text;
}

} // namespace Tool
