#pragma once

#include "engine/Kinds.h"
#include "engine/Messages.h"
#include "engine/Registry.h"
#include "engine/Resolution.h"
#include "model/ValidationExceptionFactory.h"
#include "schema/CopyOnWrite.h"
#include "schema/Schema.h"

#include <parameters/Fault.h>
#include <parameters/UnrecognizedIdentifierException.h>
#include <parameters/ValidationException.h>
#include <parameters/ValueType.h>
#include <units/UnitsEngine.h>

#include <cstddef>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Parameters::Internal {

/// The engine behind the public one: each family of operations is one template over the kinds.
class Engine {
public:
    /// Typeids that a schema names and nobody has registered: schemas first, then units.
    using Missing = std::pair<std::set<std::string>, std::set<std::string>>;

    template <class K>
    std::optional<typename K::Object> find(std::string_view typeId) const {
        return find<K, std::optional<typename K::Object>>(typeId, [] { return std::nullopt; });
    }

    template <class K>
    typename K::Object get(std::string_view typeId) const {
        return find<K, typename K::Object>(typeId, [typeId]() -> typename K::Object {
            throw UnrecognizedIdentifierException(messages("object-unknown").with({K::word, typeId}));
        });
    }

    /// Returns copies of all objects of a kind.
    template <class K>
    std::map<std::string, typename K::Object> all() const {
        return registry_.read().store<K>().all();
    }

    /// Shows all objects of a kind as they are in the engine.
    template <class K>
    ArrayView<typename K::Object> view() const {
        const auto& sorted = registry_.read().store<K>().sorted();
        return {sorted.data(), sorted.size()};
    }

    template <class K>
    void add(const typename K::Object& object) {
        const auto bound = bind<K>(object);
        registry_.write().addObject<K>(bound);
    }

    /// Reads an object from a text and binds it to what is registered, without registering it.
    template <class K>
    typename K::Object read(const std::string& text) const {
        const Ostra::Schema schema(text, ValidationExceptionFactory::shared());
        checkNew(schema.typeId());
        auto record = K::read(schema);
        if (!record) {
            throw ValidationException(EngineMessages::messages("base-incorrect").with({}));
        }
        return K::build(*std::move(record), RegistryFinder(registry_.read(), units_), nullptr);
    }

    template <class K>
    std::set<std::string> dependenciesOf(const typename K::Object& object) const {
        return namedBy<K>(bind<K>(object));
    }

    template <class K>
    std::string schemaOf(const typename K::Object& object) const {
        return K::write(bind<K>(object));
    }

    bool isRegistered(const Directory::Key& key) const;
    bool isPending(std::string_view typeId) const noexcept { return registry_.read().isPending(typeId); }
    std::optional<KindInfo> kindOf(std::string_view typeId) const noexcept;
    std::size_t countObjects(std::optional<KindInfo> kind) const noexcept; // of all kinds where none is given
    ArrayView<Identity> dependentsOf(std::string_view typeId) const { return registry_.read().dependentsOf(typeId); }
    ValueType valueTypeOf(const std::string& text) const;
    Missing registerSchema(const std::string& text);
    void registerSchemas(const std::map<std::string, std::string>& texts);
    void resolveSchemas();
    std::map<std::string, std::string> findUnresolvable() const;
    std::vector<Fault> findFaults(const std::map<std::string, std::string>& texts) const;
    std::vector<Fault> registerSoundSchemas(const std::map<std::string, std::string>& texts);
    bool discardPending(const std::string& typeId);
    std::set<std::string> dependenciesOf(const std::string& typeId) const;
    std::string schemaOf(const std::string& typeId) const;
    Units::UnitsEngine& units() noexcept { return units_; }

private:
    template <class K, class Result, class Absent>
    Result find(std::string_view typeId, Absent absent) const {
        if constexpr (KindWithStandIn<K>) {
            if (K::base.isIn(typeId)) {
                return standInOf<K>(typeId);
            }
        }
        if (const auto* object = registry_.read().findObject<K>(typeId)) {
            return *object;
        }
        return absent();
    }

    /// Checks an object made in code, and returns it with what it names as registered.
    template <class K>
    typename K::Object bind(const typename K::Object& object) const {
        checkNew(typeIdOf(object));
        return K::build(K::recordOf(object), RegistryFinder(registry_.read(), units_), &object);
    }

    template <class K>
    static std::set<std::string> namedBy(const typename K::Object& object) {
        std::set<std::string> named;
        forEachNamed(K::recordOf(object), [&](const Name& name) { named.emplace(name.typeId); });
        return named;
    }

    /// @throws ValidationException if something has that typeid already, or nothing may have it.
    void checkNew(const Directory::Key& key) const;

    /// Files a schema as pending with the first kind that accepts it; returns whether one did. What it names and is not
    /// registered is added to missing, unless that is null. One typeid may be known to be free already.
    bool offer(const std::string& text, Missing* missing, const Directory::Key& free);
    template <class K, class Record>
    void findMissing(const Record& record, Missing& missing) const;
    template <class Named>
    void findMissing(const Named& named, std::string_view ownTypeId, std::set<std::string>& missing) const;

    Ostra::CopyOnWrite<Registry> registry_;
    Units::UnitsEngine units_;
};

} // namespace Parameters::Internal
