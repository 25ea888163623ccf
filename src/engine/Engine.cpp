#include "engine/Engine.h"

#include "engine/AnyUnits.h"
#include "engine/Review.h"

#include <algorithm>
#include <array>
#include <memory>
#include <optional>

namespace Parameters::Internal {

namespace {

template <class... Ks>
constexpr std::array<KindInfo, sizeof...(Ks)> infosOf(KindList<Ks...>) {
    return {Ks::Public::info...};
}

[[noreturn]] void failUnknown(const std::string& typeId) {
    throw UnrecognizedIdentifierException(EngineMessages::messages("any-object-unknown").with({typeId}));
}

} // namespace

bool Engine::isRegistered(const Directory::Key& key) const {
    return registry_.read().find(key) != nullptr || isReserved(key.typeId) ||
           AnyUnits::isRegistered(units_, key.typeId);
}

std::optional<KindInfo> Engine::kindOf(std::string_view typeId) const noexcept {
    static constexpr auto infos = infosOf(StoreOrder{});
    const Directory::Subject* subject = registry_.read().find(typeId);
    return subject != nullptr ? std::optional(infos[subject->kind]) : std::nullopt;
}

std::size_t Engine::countObjects(std::optional<KindInfo> kind) const noexcept {
    std::size_t count = 0;
    forEachKind(StoreOrder{}, [&]<class K>() {
        if (!kind || *kind == K::Public::info) {
            count += registry_.read().store<K>().objects.size();
        }
    });
    return count;
}

void Engine::checkNew(const Directory::Key& key) const {
    if (key.typeId.empty()) {
        throw ValidationException(EngineMessages::messages("object-typeid-empty").with({}));
    }
    if (isRegistered(key)) {
        throw ValidationException(EngineMessages::messages("typeid-taken").with({key.typeId}));
    }
}

ValueType Engine::valueTypeOf(const std::string& text) const {
    const Ostra::Schema schema(text, ValidationExceptionFactory::shared());
    ValueType type = None;
    try {
        anyKind(ValueTypeOrder{}, [&]<class K>() {
            const bool accepts = K::read(schema).has_value();
            type = accepts ? K::Public::valueType : None;
            return accepts;
        });
    } catch (const ValidationException&) {
        return None; // of that kind by its base, but no parameter can come of it
    }
    return type;
}

Engine::Missing Engine::registerSchema(const std::string& text) {
    Missing missing;
    if (!offer(text, &missing, {{}, 0})) {
        throw ValidationException(EngineMessages::messages("base-unrecognized").with({}));
    }
    return missing;
}

void Engine::registerSchemas(const std::map<std::string, std::string>& texts) {
    for (const auto& [typeId, text] : texts) {
        const Directory::Key key(typeId);
        if (!isRegistered(key) && !offer(text, nullptr, key)) {
            units_.registerSchema(text);
        }
    }
    resolveSchemas();
}

bool Engine::offer(const std::string& text, Missing* missing, const Directory::Key& free) {
    const Ostra::Schema schema(text, ValidationExceptionFactory::shared());
    const bool isFree = schema.typeId() == free.typeId;
    const Directory::Key key = isFree ? free : Directory::Key(schema.typeId());
    if (!isFree) {
        checkNew(key);
    }
    return Internal::offer(schema, [&]<class K>() {
        auto record = K::read(schema);
        if (!record) {
            return false;
        }
        registry_.write().addPending<K>(std::move(*record), key, [&](const auto& filed) {
            if (missing != nullptr) {
                findMissing<K>(filed, *missing);
            }
        });
        return true;
    });
}

template <class K, class Record>
void Engine::findMissing(const Record& record, Missing& missing) const {
    if constexpr (DependentKind<K>) {
        findMissing(record.references, record.typeId(), missing.first);
    }
    if constexpr (KindWithUnits<K>) {
        findMissing(record.units, record.typeId(), missing.second);
    }
}

template <class Named>
void Engine::findMissing(const Named& named, std::string_view ownTypeId, std::set<std::string>& missing) const {
    std::for_each(named.begin(), named.end(), [&](const Name& name) {
        const bool isKnown = name.typeId == ownTypeId || registry_.read().subjectOf(name) != nullptr;
        if (!isKnown && !isReserved(name.typeId) && !AnyUnits::isRegistered(units_, name.typeId)) {
            missing.emplace(name.typeId);
        }
    });
}

void Engine::resolveSchemas() {
    units_.resolveSchemas();
    if (!registry_.read().hasPending()) {
        return; // and a copy goes on sharing its tables
    }
    Registry& registry = registry_.write();
    registry.shrinkPending();
    Resolution resolution(registry, units_);
    if (const auto& faults = resolution.run(Resolution::Stop::afterFaultyKind); !faults.empty()) {
        const auto& first = *std::min_element( // of the first record the first one
            faults.begin(), faults.end(), [](const auto& one, const auto& other) { return one.typeId < other.typeId; });
        throw ValidationException(first.cause.sentence);
    }
    registry.prepareCommit();
    forEachKind(StoreOrder{}, [&]<class K>() { registry.commit<K>(resolution.built<K>()); });
}

std::map<std::string, std::string> Engine::findUnresolvable() const {
    Units::UnitsEngine units = units_; // resolving units would change the engine
    units.resolveSchemas();
    Resolution resolution(registry_.read(), units);
    std::map<std::string, std::string> unresolvable;
    for (const auto& fault : resolution.run(Resolution::Stop::never)) {
        unresolvable.emplace(fault.typeId, fault.cause.sentence); // the first one of each
    }
    return unresolvable;
}

std::vector<Fault> Engine::findFaults(const std::map<std::string, std::string>& texts) const {
    Registry registry = registry_.read();
    Units::UnitsEngine units = units_;
    return review(texts, registry, units, Outcome::faults);
}

std::vector<Fault> Engine::registerSoundSchemas(const std::map<std::string, std::string>& texts) {
    const auto registry = std::make_shared<Registry>(registry_.read());
    Units::UnitsEngine units = units_;
    auto faults = review(texts, *registry, units, Outcome::objects);
    registry_.replace(registry);
    units_ = std::move(units);
    return faults;
}

bool Engine::discardPending(const std::string& typeId) {
    if (!registry_.read().isPending(typeId)) {
        return false;
    }
    registry_.write().discardPending(typeId);
    return true;
}

std::set<std::string> Engine::dependenciesOf(const std::string& typeId) const {
    std::optional<std::set<std::string>> named; // none for kinds that name nothing: they are not searched
    registry_.read().visitObject(typeId, [&]<class K>(const typename K::Object& object) {
        if constexpr (DependentKind<K>) {
            named = namedBy<K>(object);
        }
    });
    if (!named) {
        failUnknown(typeId);
    }
    return *std::move(named);
}

std::string Engine::schemaOf(const std::string& typeId) const {
    std::string text;
    const bool found = registry_.read().visitObject(
        typeId, [&]<class K>(const typename K::Object& object) { text = K::write(object); });
    if (!found) {
        failUnknown(typeId);
    }
    return text;
}

} // namespace Parameters::Internal
