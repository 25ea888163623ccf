#include "Fuzz.h"
#include "Model.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

// Operations on an engine, decoded from bytes, beside a simple model that says what each must do.

namespace {

using Fuzz::Model;
using Fuzz::require;
using Fuzz::Schema;
using Parameters::ParametersEngine;

class Bytes {
public:
    Bytes(const std::uint8_t* data, std::size_t size) : next_(data), left_(size) {}

    bool empty() const { return left_ == 0; }
    /// Returns a number below the bound, 0 when there are no more bytes.
    std::size_t below(std::size_t bound) {
        if (left_ == 0) {
            return 0;
        }
        --left_;
        return *next_++ % bound;
    }

private:
    const std::uint8_t* next_;
    std::size_t left_;
};

constexpr int maxOperations = 40;

/// Few, so that they meet; the first, nothing, is no typeid.
const std::array<std::string, 20> typeIds{"",
                                          "a",
                                          "b",
                                          "c",
                                          "d",
                                          "e",
                                          "f",
                                          "g",
                                          "h",
                                          "i",
                                          std::string("a\0b", 3),
                                          "a typeid that is too long for a string without memory of its own",
                                          "norvex.spec:discipline-1.7.0",
                                          "norvex.parameter:group-1.0.0",
                                          "norvex.spec:spec.bool-1.2.3 and norvex.spec:discipline-1.",
                                          "norvex.spec:spec.int64-2.0.0",
                                          "norvex.spec:spec.reference-1.0.0",
                                          "norvex.spec:spec.string-2.0.0",
                                          "norvex.spec:spec.measurable-2.0.0",
                                          "norvex.spec:spec.int64-1.0.0"};

/// An engine and what it must hold.
class Pair {
public:
    void apply(Bytes& bytes);
    void check() const;
    void exportAll() const;

private:
    Schema schemaFrom(Bytes& bytes) const;
    void registerText(const Schema& schema);
    void registerUnit(const Schema& schema);
    void registerBatch(Bytes& bytes);
    void registerObject(Bytes& bytes);
    template <class Kind>
    void registerObject(const std::string& typeId);
    void resolve();

    ParametersEngine engine_;
    Model model_;
};

Schema Pair::schemaFrom(Bytes& bytes) const {
    const Support::Shape& shape = Fuzz::shapes[bytes.below(Fuzz::shapes.size())];
    Schema schema{&shape, typeIds[bytes.below(typeIds.size())], {}};
    while (schema.named.size() < shape.form.references.size()) {
        schema.named.push_back(typeIds[bytes.below(typeIds.size())]);
    }
    return schema;
}

void Pair::registerText(const Schema& schema) {
    if (schema.isUnit()) {
        registerUnit(schema);
        return;
    }
    const bool accepts = model_.accepts(schema);
    std::set<std::string> missing;
    const std::string refusal = Fuzz::refusalOf([&] {
        const auto [schemas, units] = engine_.registerSchema(schema.text());
        missing = schemas;
        missing.insert(units.begin(), units.end());
    });
    require(refusal.empty() == accepts, "a schema is accepted when it is new: " + refusal);
    if (accepts) {
        require(missing == model_.missingFor(schema), "what is missing is told");
        model_.add(schema);
    }
}

/// The units engine knows nothing of what is registered beside it, so units are registered through a batch alone.
void Pair::registerUnit(const Schema& schema) {
    require(!Fuzz::refusalOf([&] { engine_.registerSchema(schema.text()); }).empty(),
            "a unit is no schema of an engine");
}

void Pair::registerBatch(Bytes& bytes) {
    std::map<std::string, std::string> batch;
    std::map<std::string, Schema> schemas;
    for (std::size_t count = 1 + bytes.below(6); count > 0; --count) {
        const Schema schema = schemaFrom(bytes);
        batch[schema.typeId] = schema.text();
        schemas.insert_or_assign(schema.typeId, schema);
    }
    bool refused = false;
    for (const auto& [typeId, schema] : schemas) {
        refused = !model_.isTaken(typeId) && !model_.accepts(schema);
        if (refused) {
            break;
        }
        if (!model_.isTaken(typeId)) {
            model_.add(schema);
        }
    }
    const bool resolves = !refused && model_.unresolvable().empty();
    const std::string refusal = Fuzz::refusalOf([&] { engine_.registerSchemas(batch); });
    require(refusal.empty() == resolves, "a batch is resolved when all of it can be: " + refusal);
    if (!refused) {
        resolves ? model_.resolve() : model_.resolveUnits();
    }
}

void Pair::registerObject(Bytes& bytes) {
    const std::string& typeId = typeIds[bytes.below(typeIds.size())];
    const std::size_t place = bytes.below(Parameters::Kinds::All::size);
    Parameters::forEachKind([&](auto kind) {
        if (Parameters::Kinds::indexOf<decltype(kind)> == place) {
            registerObject<decltype(kind)>(typeId);
        }
    });
}

/// An object names no more than it must; nothing that it must name is there.
template <class Kind>
void Pair::registerObject(const std::string& typeId) {
    const auto shape = std::find_if(Fuzz::shapes.begin(), Fuzz::shapes.end(), [](const Support::Shape& one) {
        return one.base == Support::mainShapeOf<Kind>().base;
    });
    const auto& references = shape->form.references;
    const bool namesNothing = std::none_of(references.begin(), references.end(),
                                           [](const Support::Reference& reference) { return reference.required; });
    const Schema schema{&*shape, typeId, std::vector<std::string>(references.size())};
    const std::string refusal = Fuzz::refusalOf([&] { Kind::add(engine_, Support::Sample<Kind>::make(typeId, "1")); });
    require(refusal.empty() == (namesNothing && model_.accepts(schema)),
            "an object is accepted when it is new: " + refusal);
    if (refusal.empty()) {
        model_.add(schema);
        model_.resolve(typeId);
    }
}

void Pair::resolve() {
    const bool resolves = model_.unresolvable().empty();
    const std::string fault = Fuzz::refusalOf([&] { engine_.resolveSchemas(); });
    require(fault.empty() == resolves, "all is resolved or nothing: " + fault);
    resolves ? model_.resolve() : model_.resolveUnits();
}

void Pair::apply(Bytes& bytes) {
    switch (bytes.below(8)) {
    case 0:
        resolve();
        break;
    case 1:
        registerBatch(bytes);
        break;
    case 2: {
        const std::string& typeId = typeIds[bytes.below(typeIds.size())];
        require(engine_.discardPending(typeId) == model_.discard(typeId), "what is pending is discarded");
        break;
    }
    case 3:
        registerObject(bytes);
        break;
    default:
        registerText(schemaFrom(bytes));
    }
}

void Pair::check() const {
    require(Fuzz::objectsIn(engine_) == model_.objects(), "an engine holds what was resolved");
    std::set<std::string> unresolvable;
    for (const auto& [typeId, message] : engine_.findUnresolvable()) {
        require(!message.empty(), "a fault has a message");
        unresolvable.insert(typeId);
    }
    require(unresolvable == model_.unresolvable(), "what cannot be resolved is found");
    for (const std::string& typeId : typeIds) {
        require(engine_.isRegistered(typeId) == model_.isTaken(typeId), "what is taken is registered");
    }
}

void Pair::exportAll() const {
    for (const std::string& typeId : model_.objects()) {
        require(!engine_.getSchema(typeId).empty(), "what was resolved can be exported");
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Bytes bytes(data, size);
    std::array<Pair, 2> pairs;
    std::size_t current = 0;
    for (int operations = 0; !bytes.empty() && operations < maxOperations; ++operations) {
        switch (bytes.below(16)) {
        case 0: // a copy, and the copy is changed from now on or the original is
            pairs[1 - current] = pairs[current];
            break;
        case 1:
            current = 1 - current;
            break;
        case 2:
            std::swap(pairs[0], pairs[1]);
            break;
        default:
            pairs[current].apply(bytes);
        }
        pairs[current].check();
    }
    for (const Pair& pair : pairs) { // what was done to the one did nothing to the other
        pair.check();
        pair.exportAll();
    }
    return 0;
}
