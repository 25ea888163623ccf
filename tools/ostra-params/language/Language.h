#pragma once

#include "catalogue/Sections.h"

#include <span>
#include <string_view>
#include <vector>

/// What schemas of each kind consist of: the one description of it outside the library, which is the judge of it.
namespace Tool::Language {

/// What the value of a constant or property must be.
enum class Type {
    text,
    nonEmptyText,
    boolean,
    integer, ///< Of 64 bits with sign.
    number,
    texts,         ///< An array, each text once.
    reference,     ///< {"typeid": T}, which names an object.
    references,    ///< An array of such.
    range,         ///< Names a range, or has its constants beside the base of one.
    referenceSpec, ///< Names a spec, or has a category beside the typeid of the spec of family types.
    generalSpec,   ///< Names a spec, perhaps with an empty object beside it.
    enumeration,   ///< Names an enumeration; tells more than a typeid from a value by the member, as the spec above.
    choice         ///< An integer in "value".
};

/// A constant or property that a schema may have. What stands for one that is left out hangs on its type and on what it
/// names alone: see defaultOf.
struct Definition {
    std::string_view id; ///< Empty for a choice, which has any.
    Type type{};
    bool isRequired = false;
    std::string_view meaning = {}; ///< In a sentence.
    std::string_view named = {};   ///< The id of the section of what it names, if it does.
};

/// What schemas of one base consist of. Constants and properties are in the order in which the library reads them.
struct Grammar {
    std::string_view id = {};    ///< As options name it; that of the kind where it is empty.
    std::string_view label = {}; ///< As a sentence calls such an object; as the kind does where it is empty.
    std::string_view meaning;    ///< In a sentence.
    std::span<const Definition> constants = {};
    std::span<const Definition> properties = {};
};

/// A base with its grammar.
struct Form : Grammar {
    const Section* section;
    std::string_view base;
};

/// Returns the forms of units and of all kinds, in the order of the sections and of their bases.
const std::vector<Form>& forms();

/// Returns the form of an id; for the id of a kind with several, the first of them; nullptr if there is none.
const Form* findForm(std::string_view id);

/// Returns the form of schemas that inherit a base, of whatever minor version; nullptr if there is none.
const Form* findFormOfBase(std::string_view base);

/// Returns the definitions that a form has in a table, "constants" or "properties"; none where there is no form.
std::span<const Definition> definitionsOf(const Form* form, std::string_view table);

/// Returns a base up to the dot after its major version, which is what it counts by; all of it where it has no version.
std::string_view prefixOf(std::string_view base);

/// Returns what no typeid may have in it.
std::vector<std::string_view> reservedPrefixes();

/// Returns whether the value of a type stands in "typedValue" rather than in "value".
constexpr bool isTyped(Type type) {
    return type == Type::reference || type == Type::references || type == Type::range || type == Type::referenceSpec ||
           type == Type::generalSpec || type == Type::enumeration;
}

} // namespace Tool::Language
