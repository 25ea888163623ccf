#pragma once

#include "support/Samples.h"

#include <map>
#include <set>
#include <string>
#include <vector>

namespace Fuzz {

/// Every shape that a schema may have, units last.
extern const std::vector<Support::Shape> shapes;

/// A schema that is known to be well formed, and what it names: one typeid for each reference of its shape, empty where
/// the constant is left out.
struct Schema {
    const Support::Shape* shape;
    std::string typeId;
    std::vector<std::string> named;

    std::string text() const;
    bool isUnit() const { return !shape->kind; }
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
    bool names(const Support::Reference& reference, const std::string& typeId) const;

    std::map<std::string, Known> known_;
};

} // namespace Fuzz
