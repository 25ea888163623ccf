#include "Model.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace Fuzz {

namespace {

bool contains(const std::string& typeId, std::string_view base) {
    return typeId.find(Support::versionPrefixOf(base)) != std::string::npos;
}

/// Whether a typeid is one of the kind that needs no object.
bool isReserved(const std::string& typeId, Parameters::KindInfo kind) {
    return (kind.isRange() || !kind.builtInName().empty()) &&
           std::any_of(kind.bases().begin(), kind.bases().end(),
                       [&](std::string_view base) { return contains(typeId, base); });
}

/// Whether no object can have a typeid.
bool isReserved(const std::string& typeId) {
    bool reserved = false;
    Parameters::forEachKind([&](auto kind) {
        const std::string_view besides = Support::Sample<decltype(kind)>::reserved;
        reserved = reserved || isReserved(typeId, kind.info) || (!besides.empty() && contains(typeId, besides));
    });
    return reserved;
}

std::vector<Support::Shape> allShapes() {
    std::vector<Support::Shape> all = Support::everyShape();
    all.push_back(Support::unitShape());
    return all;
}

} // namespace

const std::vector<Support::Shape> shapes = allShapes();

std::string Schema::text() const {
    return shape->text(typeId, "1", [this](const Support::Reference& reference) {
        return named.at(static_cast<std::size_t>(&reference - shape->form.references.data()));
    });
}

bool Model::isTaken(const std::string& typeId) const { return known_.count(typeId) == 1 || isReserved(typeId); }

bool Model::accepts(const Schema& schema) const {
    if (schema.typeId.empty() || isTaken(schema.typeId)) {
        return false;
    }
    const auto& references = schema.shape->form.references;
    for (std::size_t i = 0; i < references.size(); ++i) {
        if (references[i].required && schema.named[i].empty()) {
            return false;
        }
    }
    return true;
}

std::set<std::string> Model::missingFor(const Schema& schema) const {
    std::set<std::string> missing;
    for (const std::string& typeId : schema.named) {
        if (!typeId.empty() && typeId != schema.typeId && !isTaken(typeId)) {
            missing.insert(typeId);
        }
    }
    return missing;
}

void Model::add(const Schema& schema) { known_.emplace(schema.typeId, Known{schema, false}); }

void Model::resolve() {
    for (auto& [typeId, known] : known_) {
        known.resolved = true;
    }
}

void Model::resolve(const std::string& typeId) { known_.at(typeId).resolved = true; }

void Model::resolveUnits() {
    for (auto& [typeId, known] : known_) {
        known.resolved = known.resolved || known.schema.isUnit();
    }
}

bool Model::isPending(const std::string& typeId) const {
    const auto found = known_.find(typeId);
    return found != known_.end() && !found->second.resolved && !found->second.schema.isUnit();
}

bool Model::discard(const std::string& typeId) { return isPending(typeId) && known_.erase(typeId) == 1; }

/// Whether what a reference names is such an object, or will be.
bool Model::names(const Support::Reference& reference, const std::string& typeId) const {
    if (typeId.empty() || (reference.mayBeBuiltIn() && isReserved(typeId, *reference.kind))) {
        return true;
    }
    const auto found = known_.find(typeId);
    if (found == known_.end()) {
        return false;
    }
    const Support::Shape& shape = *found->second.schema.shape;
    return shape.kind == reference.kind && (reference.base.empty() || reference.base == shape.base) &&
           isBuildable(found->second);
}

bool Model::isBuildable(const Known& known) const {
    if (known.resolved) {
        return true;
    }
    const auto& references = known.schema.shape->form.references;
    for (std::size_t i = 0; i < references.size(); ++i) {
        if (!names(references[i], known.schema.named[i])) {
            return false;
        }
    }
    return true;
}

std::set<std::string> Model::unresolvable() const {
    std::set<std::string> typeIds;
    for (const auto& [typeId, known] : known_) {
        if (!isBuildable(known)) {
            typeIds.insert(typeId);
        }
    }
    return typeIds;
}

std::set<std::string> Model::objects() const {
    std::set<std::string> typeIds;
    for (const auto& [typeId, known] : known_) {
        if (known.resolved && !known.schema.isUnit()) {
            typeIds.insert(typeId);
        }
    }
    return typeIds;
}

} // namespace Fuzz
