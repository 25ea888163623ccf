#pragma once

#include <cstddef>
#include <string_view>

namespace Ostra {

/// An identifier that schemas inherit or name without registration; its versions are told apart by the major number
/// alone.
class Identifier {
public:
    /// Takes an identifier with its whole version, such as "norvex.spec:discipline-1.0.0". One that does not begin with
    /// the first word of all, or is of another minor or patch version, does not compile.
    consteval explicit Identifier(std::string_view full) : full_(full) {
        if (!full.starts_with(firstWord) || !full.ends_with(anyVersion)) {
            throw "This is no identifier that schemas could inherit.";
        }
    }

    /// Returns the identifier with its whole version.
    constexpr std::string_view full() const { return full_; }
    /// Returns the identifier up to and including the dot after its major version.
    constexpr std::string_view prefix() const { return prefixOf(full_); }
    static constexpr std::string_view prefixOf(std::string_view full) {
        return full.substr(0, full.size() - minorAndPatch.size());
    }

    /// True when the version prefix occurs anywhere in the typeid: any minor or patch version counts, another major
    /// version does not.
    bool isIn(std::string_view typeId) const { return typeId.find(prefix()) != std::string_view::npos; }
    /// True when the typeid begins with the version prefix. Others are told apart by the prefix's last character.
    constexpr bool begins(std::string_view typeId) const { return begins(typeId, prefix()); }
    static constexpr bool begins(std::string_view typeId, std::string_view prefix) {
        const std::size_t size = prefix.size();
        return typeId.size() >= size && typeId[size - 1] == '.' && typeId.substr(0, size) == prefix;
    }

    /// Returns where in the typeid, at that position or behind it, an identifier may begin, or npos: all of them begin
    /// with one word.
    static std::size_t findStart(std::string_view typeId, std::size_t position = 0);

private:
    static constexpr std::string_view firstWord = "norvex.";
    static constexpr std::string_view minorAndPatch = "0.0";
    static constexpr std::string_view anyVersion = ".0.0";

    std::string_view full_;
};

} // namespace Ostra
