#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

/// The built-in schema identifiers: the bases that schemas inherit and the defaults that stand in for them.
namespace Ostra::BuiltIn {

/// One built-in identifier; its versions are told apart by the major number alone.
class Identifier {
public:
    constexpr explicit Identifier(std::string_view full, std::string_view displayName = {})
        : full_(full), displayName_(displayName) {}

    /// Returns the identifier with its whole version, such as "norvex.spec:discipline-1.0.0".
    constexpr std::string_view full() const { return full_; }
    /// Returns the identifier up to and including the dot after its major version.
    constexpr std::string_view prefix() const { return full_.substr(0, full_.size() - minorAndPatch.size()); }
    /// Returns the name of the built-in object; empty where there is none.
    constexpr std::string_view displayName() const { return displayName_; }

    /// True when the version prefix occurs anywhere in the typeid: any minor or patch version counts, another major
    /// version does not.
    bool isIn(std::string_view typeId) const { return typeId.find(prefix()) != std::string_view::npos; }
    /// True when the typeid begins with the version prefix. Others are told apart by the prefix's last character.
    constexpr bool begins(std::string_view typeId) const {
        const std::size_t size = prefix().size();
        return typeId.size() >= size && typeId[size - 1] == '.' && typeId.substr(0, size) == prefix();
    }

private:
    static constexpr std::string_view minorAndPatch = "0.0";

    std::string_view full_;
    std::string_view displayName_;
};

inline constexpr Identifier stringRange("norvex.range:range.string-1.0.0");
inline constexpr Identifier setStringRange("norvex.range:range.string.set.static-1.0.0");
inline constexpr Identifier regexStringRange("norvex.range:range.string.regex-1.0.0");
inline constexpr Identifier floatRange("norvex.range:range.float64.bounded.static-1.0.0");
inline constexpr Identifier intRange("norvex.range:range.int64.bounded.static-1.0.0");
inline constexpr Identifier discipline("norvex.spec:discipline-1.0.0", "Common");
inline constexpr Identifier domain("norvex.talmo.category:domain-1.0.0");
inline constexpr Identifier group("norvex.parameter:group-1.0.0", "Other");
inline constexpr Identifier generalSpec("norvex.spec:spec-1.0.0");
inline constexpr Identifier boolSpec("norvex.spec:spec.bool-1.0.0", "Yes/No");
inline constexpr Identifier intSpec("norvex.spec:spec.int64-2.0.0", "Integer");
inline constexpr Identifier referenceSpec("norvex.spec:spec.reference-1.0.0", "Reference");
inline constexpr Identifier familyType("norvex.talmo.spec:familyType-1.0.0", "Family Type");
inline constexpr Identifier stringSpec("norvex.spec:spec.string-2.0.0", "Text");
inline constexpr Identifier measurableSpec("norvex.spec:spec.measurable-2.0.0");
inline constexpr Identifier enumerationParameter("norvex.parameter:parameter-2.0.0");
inline constexpr Identifier boolParameter("norvex.parameter:parameter.bool-2.0.0");
inline constexpr Identifier intParameter("norvex.parameter:parameter.int64-3.0.0");
inline constexpr Identifier measurableParameter("norvex.parameter:parameter.measurable-3.0.0");
inline constexpr Identifier referenceParameter("norvex.parameter:parameter.reference-2.0.0");
inline constexpr Identifier rangedReferenceParameter("norvex.parameter:parameter.reference.ranged-2.0.0");
inline constexpr Identifier stringParameter("norvex.parameter:parameter.string-3.0.0");
inline constexpr Identifier majorCategory("norvex.talmo.category:majorCategory-1.0.0");
inline constexpr Identifier subCategory("norvex.talmo.category:subCategory-1.0.0");

/// The base of enumerations: a bare word without a version, matched as a whole.
inline constexpr std::string_view enumeration = "Enum";

/// The identifiers whose typeids are taken: no schema or object may have one of them, and naming one is never naming
/// something that is missing.
inline constexpr std::array reserved{stringRange, setStringRange, regexStringRange, floatRange, intRange,   familyType,
                                     boolSpec,    intSpec,        referenceSpec,    stringSpec, discipline, group};

/// Returns where in the typeid, at that position or behind it, an identifier may begin, or npos: all of them begin with
/// one word.
std::size_t findStart(std::string_view typeId, std::size_t position = 0);

/// True when the typeid contains the version prefix of a reserved identifier.
bool isReserved(std::string_view typeId);

} // namespace Ostra::BuiltIn
