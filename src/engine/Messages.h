#pragma once

#include "engine/Kinds.h"
#include "model/Messages.h"
#include "schema/Message.h"
#include "schema/Messages.h"

namespace Parameters::Internal {

/// What an engine says.
struct EngineMessages {
    static constexpr auto messages = Ostra::Messages({
        {"object-typeid-empty", "Typeid must not be empty."},
        {"typeid-taken", "Schema with typeid <typeid> is already registered."},
        {"base-unrecognized", "Inheritance from an unrecognized base schema."},
        {"base-incorrect", "Inheritance from an incorrect base schema."},
        {"unit-refused", "<what the units library says>"},
        {"any-object-unknown", "Could not find any object with typeid <typeid>."},
        {"engine-full", "An engine holds at most 2^31 objects."},
    });
};

/// Calls visit(message) for every message of the library, those of documents and of each kind among them. Kinds of one
/// design share theirs, which come once for each.
template <class Visitor>
void forEachMessage(Visitor&& visit) {
    const auto visitAll = [&](const auto& table) {
        for (const Ostra::Message& message : table) {
            visit(message);
        }
    };
    visitAll(Ostra::messages);
    visitAll(messages);
    forEachKind(StoreOrder{}, [&]<class K>() {
        if constexpr (requires { K::messages; }) {
            visitAll(K::messages);
        }
    });
    visitAll(EngineMessages::messages);
}

} // namespace Parameters::Internal
