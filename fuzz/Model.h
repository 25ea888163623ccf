#pragma once

#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace Fuzz {

/// A kind of schema, and what its schemas name.
struct Kind {
    /// A constant that names an object.
    struct Reference {
        std::size_t kind;    // of what is named, as its place in the list of kinds
        const char* builtIn; // the prefix of typeids that need no object; null where there is none
        const char* constant;
        bool required;
    };

    const char* base;
    const char* before; // JSON among the constants
    std::vector<Reference> references;
    const char* after = ""; // JSON behind the constants; a % stands for the first typeid that is named
};

/// Every kind, units last.
extern const std::vector<Kind> kinds;
extern const std::size_t unitKind;

/// A schema that is known to be well formed, and what it names: one typeid for each reference of its kind, empty where
/// the constant is left out.
struct Schema {
    std::size_t kind;
    std::string typeId;
    std::vector<std::string> named;

    std::string text() const;
};

/// What an engine must hold after each operation, kept as simply as can be.
class Model {
public:
    bool isTaken(const std::string& typeId) const;
    /// Returns whether a schema is to be accepted.
    bool accepts(const Schema& schema) const;
    /// Returns what a schema names and nobody has registered.
    std::set<std::string> missingFor(const Schema& schema) const;

    void add(const Schema& schema);
    void resolve();
    void resolve(const std::string& typeId);
    /// Resolution that fails resolves units all the same.
    void resolveUnits();
    bool discard(const std::string& typeId);

    /// Returns the typeids of what is pending and cannot be built.
    std::set<std::string> unresolvable() const;
    std::set<std::string> objects() const;
    bool isPending(const std::string& typeId) const;

private:
    struct Known {
        Schema schema;
        bool resolved;
    };

    bool isBuildable(const Known& known) const;
    bool names(const Known& known, const Kind::Reference& reference, const std::string& typeId) const;

    std::map<std::string, Known> known_;
};

} // namespace Fuzz
