#include "engine/Dependents.h"

#include "engine/Kinds.h"
#include "engine/Registry.h"

namespace Parameters::Internal {

Dependents::Dependents(const Registry& registry) {
    struct Edge {
        Span* named;
        Identity object;
    };
    std::vector<Edge> edges;
    std::size_t objects = 0;
    forEachKind(StoreOrder{}, [&]<class K>() {
        if constexpr (DependentKind<K>) {
            const auto& store = registry.store<K>();
            for (const std::uint32_t place : store.order()) {
                const auto& object = store.objects[place];
                ++objects;
                forEachNamed(K::recordOf(object), [&](const Name& name) {
                    auto named = spans_.find(name.typeId);
                    if (named == spans_.end()) {
                        named = spans_.emplace(name.typeId, Span()).first;
                    }
                    if (named->second.last != objects) { // once, however often the object names it
                        named->second.last = objects;
                        ++named->second.size;
                        edges.push_back({&named->second, {typeIdOf(object), K::Public::info}});
                    }
                });
            }
        }
    });
    std::size_t begin = 0;
    for (auto& [typeId, span] : spans_) {
        span.begin = begin;
        begin += span.size;
        span.size = 0;
    }
    objects_.assign(edges.size(), {{}, Kinds::Enumeration::info});
    for (const Edge& edge : edges) {
        objects_[edge.named->begin + edge.named->size++] = edge.object;
    }
}

ArrayView<Identity> Dependents::of(std::string_view typeId) const noexcept {
    const auto found = spans_.find(typeId);
    return found == spans_.end() ? ArrayView<Identity>()
                                 : ArrayView<Identity>(&objects_[found->second.begin], found->second.size);
}

} // namespace Parameters::Internal
