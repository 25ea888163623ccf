#pragma once

#include "model/Access.h"
#include "model/Finder.h"
#include "model/Kind.h"

#include <utility>

namespace Parameters::Internal {

/// What resolution makes of a record, kept aside until everything is resolved; nothing where something is missing.
template <class K>
class Staged {
public:
    using Object = typename K::Object;

    /// Makes the object, unless the finder misses something.
    void make(const typename K::Record& record, const Finder& finder) {
        auto object = K::build(record, finder, nullptr);
        if (!finder.hasUnresolved()) {
            Access::put(std::move(object), object_);
        }
    }
    bool isNone() const noexcept { return Access::isNone(object_); }
    /// The object for those that name it, or null.
    const Object* object() const noexcept { return isNone() ? nullptr : &object_; }
    template <class Pending>
    Object finish(Pending&&) noexcept {
        return object_;
    }

private:
    Object object_ = Access::none<Object>();
};

/// Of a linked kind, whose objects are there, it is what they name.
template <LinkedKind K>
class Staged<K> {
public:
    template <class Record>
    void make(const Record& record, const Finder& finder) {
        auto links = K::find(*record.data, record.references, finder, nullptr);
        if (!finder.hasUnresolved()) {
            links_ = std::move(links);
        }
    }
    bool isNone() const noexcept { return links_.isNone(); }
    const typename K::Object* object() const noexcept { return nullptr; } // nothing names it
    template <class Pending>
    typename K::Object finish(Pending&& pending) noexcept {
        return K::link(std::move(pending.data), std::move(links_));
    }

private:
    typename K::Links links_;
};

} // namespace Parameters::Internal
