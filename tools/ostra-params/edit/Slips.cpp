#include "edit/Slips.h"

#include "faults/Hints.h"
#include "output/Text.h"

#include <parameters/ParametersEngine.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>

namespace Tool {

namespace {

/// Returns where a text ceases to be JSON; nothing when it is JSON.
std::optional<std::size_t> endOfJson(std::string_view text) {
    for (const Parameters::Fault& fault : Parameters::ParametersEngine().findFaults({{"", std::string(text)}})) {
        if (fault.code() == "json-syntax") {
            return fault.place().begin;
        }
    }
    return std::nullopt;
}

/// What a text becomes by a mending, and where that ceases to be JSON.
struct Step {
    Edit mending;
    std::string text;
    std::optional<std::size_t> end;
};

/// Mends the slip of a text that ceases to be JSON at an offset.
std::optional<Step> stepFrom(std::string_view text, std::size_t end) {
    const std::optional<Edit> mending = slipAt(text, end).mending;
    if (!mending) {
        return std::nullopt;
    }
    Step step{*mending, edited(text, {*mending}), {}};
    step.end = endOfJson(step.text);
    const bool isFurther = !step.end || step.text.size() - *step.end < text.size() - end;
    return isFurther ? std::optional(std::move(step)) : std::nullopt;
}

/// Returns the one edit that makes another text of one, of whole characters.
Edit difference(std::string_view before, std::string_view after) {
    const auto [one, other] = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
    auto begin = static_cast<std::size_t>(one - before.begin());
    const auto [last, otherLast] = std::mismatch(before.rbegin(), before.rend() - static_cast<std::ptrdiff_t>(begin),
                                                 after.rbegin(), after.rend() - static_cast<std::ptrdiff_t>(begin));
    auto same = static_cast<std::size_t>(last - before.rbegin());
    while (begin > 0 && begin < before.size() && !isFirstOfCharacter(before[begin])) {
        --begin;
    }
    while (same > 0 && !isFirstOfCharacter(before[before.size() - same])) {
        --same;
    }
    return {begin, before.size() - same, std::string(after.substr(begin, after.size() - same - begin))};
}

} // namespace

std::optional<Edit> mendingOfSlip(std::string_view text) {
    const std::optional<std::size_t> end = endOfJson(text);
    std::optional<Step> step = end ? stepFrom(text, *end) : std::nullopt;
    return step ? std::optional(std::move(step->mending)) : std::nullopt;
}

std::optional<Edit> mendingOfSlips(std::string_view text) {
    constexpr std::size_t most = 1000; // each costs as much as reading the text
    std::string mended(text);
    std::optional<std::size_t> end = endOfJson(text);
    if (!end) {
        return std::nullopt;
    }
    for (std::size_t i = 0; end && i < most; ++i) {
        std::optional<Step> step = stepFrom(mended, *end);
        if (!step) {
            return std::nullopt;
        }
        mended = std::move(step->text);
        end = step->end;
    }
    return end ? std::nullopt : std::optional(difference(text, mended));
}

} // namespace Tool
