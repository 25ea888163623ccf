#pragma once

#include <functional>
#include <string_view>
#include <vector>

namespace Tool {

/// A pattern for names, as shells have them for files: * takes any text, ? any character, [a-z] and [[:alpha:]] one of
/// some, [!a-z] one of all others, and \ takes the special meaning from what is behind it. Case does not matter but in
/// [[:upper:]] and [[:lower:]]. The same on every system.
class NamePattern {
public:
    explicit NamePattern(std::string_view pattern);

    /// Returns whether the pattern takes a name as a whole.
    bool matches(std::string_view name) const;

private:
    using Takes = std::function<bool(char32_t)>; // what one character must be; none where any text may stand
    std::vector<Takes> parts_;
};

} // namespace Tool
