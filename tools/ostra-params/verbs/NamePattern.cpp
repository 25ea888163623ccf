#include "verbs/NamePattern.h"

#include "output/Letters.h"
#include "output/Text.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstddef>
#include <iterator>
#include <optional>
#include <string>
#include <utility>

namespace Tool {

namespace {

struct Class {
    std::u32string_view name;
    int (*has)(int);
};

constexpr std::array classes{Class{U"alnum", ::isalnum}, Class{U"alpha", ::isalpha}, Class{U"blank", ::isblank},
                             Class{U"cntrl", ::iscntrl}, Class{U"digit", ::isdigit}, Class{U"graph", ::isgraph},
                             Class{U"lower", ::islower}, Class{U"print", ::isprint}, Class{U"punct", ::ispunct},
                             Class{U"space", ::isspace}, Class{U"upper", ::isupper}, Class{U"xdigit", ::isxdigit}};

/// Letters with two cases are in the classes of Z or z; what else there is beyond ASCII is in none.
bool isOf(const Class& one, char32_t character) {
    const int sample = character < 0x80       ? static_cast<int>(character)
                       : isCapital(character) ? 'Z'
                       : isSmall(character)   ? 'z'
                                              : -1;
    return sample >= 0 && one.has(sample) != 0;
}

/// What stands between brackets.
struct Set {
    bool isInverted = false;
    std::vector<std::pair<char32_t, char32_t>> ranges = {};
    std::vector<Class> classes = {};

    bool operator()(char32_t character) const {
        const char32_t small = smallOf(character);
        const bool isIn =
            std::any_of(ranges.begin(), ranges.end(),
                        [&](auto range) { return range.first <= small && small <= range.second; }) ||
            std::any_of(classes.begin(), classes.end(), [&](const Class& one) { return isOf(one, character); });
        return isIn != isInverted;
    }
};

/// Reads a pattern from its beginning to its end.
class Reader {
public:
    explicit Reader(std::u32string_view rest) : rest_(rest) {}

    bool isAtEnd() const { return rest_.empty(); }

    char32_t next() {
        const char32_t character = rest_.front();
        rest_.remove_prefix(1);
        return character;
    }

    /// Returns the next character, or the one that a backslash is before.
    char32_t nextPlain() {
        const char32_t character = next();
        return character == U'\\' && !isAtEnd() ? next() : character;
    }

    /// Returns a set whose opening bracket is read; nothing when no bracket closes it.
    std::optional<Set> nextSet() {
        Set set;
        set.isInverted = skip(U'!') || skip(U'^');
        do { // a bracket that comes first closes nothing
            if (isAtEnd()) {
                return std::nullopt;
            }
            addMember(set);
        } while (!skip(U']'));
        return set;
    }

private:
    bool skip(char32_t character) {
        const bool isNext = rest_.starts_with(character);
        rest_.remove_prefix(isNext ? 1 : 0);
        return isNext;
    }

    void addMember(Set& set) {
        if (const auto name = nextNamed(U':')) {
            std::copy_if(classes.begin(), classes.end(), std::back_inserter(set.classes),
                         [&](const Class& one) { return one.name == *name; });
            return;
        }
        const char32_t first = nextLimit();
        const bool isRange = rest_.size() > 1 && rest_[1] != U']' && skip(U'-');
        set.ranges.emplace_back(first, isRange ? nextLimit() : first);
    }

    char32_t nextLimit() {
        for (const char32_t mark : {U'.', U'='}) {
            if (const auto name = nextNamed(mark)) {
                return smallOf(name->front());
            }
        }
        return smallOf(nextPlain());
    }

    /// Returns what stands in brackets between two marks: the name of a class, or one character.
    std::optional<std::u32string_view> nextNamed(char32_t mark) {
        const std::size_t end = rest_.starts_with(std::u32string{U'[', mark})
                                    ? rest_.find(std::u32string{mark, U']'}, 2)
                                    : std::u32string_view::npos;
        if (end == std::u32string_view::npos) {
            return std::nullopt;
        }
        const std::u32string_view name = rest_.substr(2, end - 2);
        const bool isWord = name.find_first_not_of(U"abcdefghijklmnopqrstuvwxyz") == std::u32string_view::npos;
        if (mark == U':' ? !isWord : name.size() != 1) {
            return std::nullopt;
        }
        rest_.remove_prefix(end + 2);
        return name;
    }

    std::u32string_view rest_;
};

} // namespace

NamePattern::NamePattern(std::string_view pattern) {
    const std::u32string characters = charactersOf(pattern);
    for (Reader reader(characters); !reader.isAtEnd();) {
        Reader ahead = reader;
        const char32_t character = ahead.next();
        if (character == U'*') {
            parts_.emplace_back();
        } else if (character == U'?') {
            parts_.emplace_back([](char32_t) { return true; });
        } else if (auto set = character == U'[' ? ahead.nextSet() : std::nullopt) {
            parts_.emplace_back(*std::move(set));
        } else {
            ahead = reader;
            parts_.emplace_back([small = smallOf(ahead.nextPlain())](char32_t one) { return smallOf(one) == small; });
        }
        reader = ahead;
    }
}

bool NamePattern::matches(std::string_view name) const {
    const std::u32string characters = charactersOf(name);
    auto part = parts_.begin();
    auto place = characters.begin();
    auto lastAny = parts_.end(); // when what follows it fits nowhere, no earlier one can help
    auto end = place;            // of what it takes
    while (place != characters.end()) {
        if (part != parts_.end() && !*part) {
            lastAny = part++;
            end = place;
        } else if (part != parts_.end() && (*part)(*place)) {
            ++part;
            ++place;
        } else if (lastAny != parts_.end()) {
            part = std::next(lastAny);
            place = ++end;
        } else {
            return false;
        }
    }
    return std::all_of(part, parts_.end(), [](const Takes& takes) { return !takes; });
}

} // namespace Tool
