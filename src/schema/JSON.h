#pragma once

#include "schema/Arena.h"
#include "schema/FaultHandler.h"
#include "schema/JSONValue.h"
#include "schema/Message.h"

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace Ostra {

class MaybeView;

/// A read-only look at one value of a document; valid as long as the JSON it came from.
class JSONView {
public:
    JSONView(const JSONValue& value, FaultHandler& handler) : value_(&value), handler_(&handler) {}

    bool isObject() const { return value_->isObject(); }
    bool isArray() const { return value_->isArray(); }
    bool isString() const { return value_->isString(); }
    bool isBoolean() const { return value_->isBoolean(); }
    /// True for a number that was written without fraction and exponent and fits a signed 64-bit integer.
    bool isInteger() const { return value_->isInteger(); }
    bool isNumber() const { return value_->isNumber(); }

    /// Returns the number of members of an object or of elements of an array.
    std::size_t size() const { return value_->size(); }

    /// Returns the first member of that name, or nothing when there is none or the value is no object.
    MaybeView member(std::string_view name) const;
    bool hasMember(std::string_view name) const;

    /// Calls visit(name, value) for each member of an object in document order.
    template <class Visitor>
    void forEachMember(Visitor&& visit) const {
        const JSONValue* const end = value_->next();
        for (const JSONValue* name = value_->first(); name != end; name = name->next()->next()) {
            visit(name->string(), JSONView(*name->next(), *handler_));
        }
    }
    /// Calls visit(element) for each element of an array in order.
    template <class Visitor>
    void forEachElement(Visitor&& visit) const {
        const JSONValue* const end = value_->next();
        for (const JSONValue* element = value_->first(); element != end; element = element->next()) {
            visit(JSONView(*element, *handler_));
        }
    }

    std::string_view string() const { return value_->string(); }
    bool boolean() const { return value_->boolean(); }
    std::int64_t integer() const { return value_->integer(); }
    /// Returns any number as a double, rounded where an integer has more than 53 bits.
    double number() const { return value_->number(); }

    /// Copies the members of an object; of two members of one name the first counts.
    /// Fails when a name or a value is not a string.
    std::map<std::string, std::string> toStringMap() const;

    /// Returns the value as text without blanks. Does not recurse with the depth of the value.
    /// @throws std::domain_error if a number is not finite.
    std::string toText() const;

    /// Whether faults are kept while the document is read, so that what is only needed for them is worth finding out.
    bool isInspected() const { return handler_->inspection() != nullptr; }

    /// Tells that the value is faulty. Throws the exception of the library that had the document read; where faults are
    /// kept, what is returned makes up for the value.
    [[nodiscard]] Nothing fail(const Message& message, std::initializer_list<std::string_view> inserted = {}) const {
        report(message, inserted);
        return {};
    }
    /// As fail, of a value that lacks a member, or one of several, or, if it is an array, a definition of that id.
    [[nodiscard]] Nothing failLacking(std::initializer_list<std::string_view> names, const Message& message,
                                      std::initializer_list<std::string_view> inserted = {}) const;
    /// As fail, for readers that can go on. Warnings go no further where the first error is thrown.
    void report(const Message& message, std::initializer_list<std::string_view> inserted = {}) const;
    /// As report, of a value that another one stands in the way of.
    void reportBeside(JSONView other, const Message& message,
                      std::initializer_list<std::string_view> inserted = {}) const;

    /// Notes that the value, a string, names an object by its typeid.
    void noteReference() const {
        if (isInspected()) [[unlikely]] {
            noteName();
        }
    }
    /// Notes that the definition whose id this is was read.
    void noteRead() const;
    /// Notes that a definition was looked for in this array.
    void noteLookForDefinition(std::string_view id, MaybeView found) const;
    /// Notes that a definition in this array, of that id, was not read unless that was noted.
    void noteIfUnread(JSONView definition, JSONView id, const Message& message) const;
    /// Notes that all has been read that will be, of so many definitions in all; returns whether nothing is left.
    bool noteReadWhole(std::size_t definitions) const;
    /// Notes that what is in this value is not going to be read.
    void notePassedOver() const;

private:
    friend class MaybeView;
    JSONView() = default; // of nothing

    void noteLook(std::string_view name, const JSONValue* found) const;
    void noteName() const;

    const JSONValue* value_ = nullptr;
    FaultHandler* handler_ = nullptr;
};

/// A value that may not be there. As wide as the view itself, so that it travels in registers, where an optional one
/// would take a detour through memory a dozen times a schema.
class MaybeView {
public:
    // NOLINTBEGIN(google-explicit-constructor): a value is one that is there
    MaybeView(JSONView view) : view_(view) {}
    MaybeView(std::nullopt_t) {}
    // NOLINTEND(google-explicit-constructor)

    // NOLINTNEXTLINE(readability-identifier-naming): as of std::optional
    bool has_value() const { return view_.value_ != nullptr; }
    explicit operator bool() const { return has_value(); }
    const JSONView& operator*() const { return view_; }
    const JSONView* operator->() const { return &view_; }

private:
    JSONView view_;
};

inline MaybeView JSONView::member(std::string_view name) const {
    const JSONValue* const found = isObject() ? value_->findName(name) : nullptr;
    if (isInspected()) [[unlikely]] {
        noteLook(name, found);
    }
    return found != nullptr ? MaybeView(JSONView(*found->next(), *handler_)) : std::nullopt;
}

inline bool JSONView::hasMember(std::string_view name) const { return member(name).has_value(); }

/// A parsed document. It owns the memory in which its values lie; their strings may lie in the text.
class JSON {
public:
    /// Parses a whole text, which must live as long. Neither this nor destruction recurses with the depth of the text.
    /// Fails through the handler, which must live as long, with "JSON parsing error at offset N: reason".
    JSON(const std::string& text, FaultHandler& handler);
    JSON(std::string&& text, FaultHandler& handler) = delete; // it would be gone

    /// False for what is no JSON, where faults are kept.
    bool isParsed() const { return isParsed_; }
    JSONView view() const { return {tape_.root(), handler_}; }

    /// Returns the value as text without blanks (see JSONView::toText).
    std::string toText() const { return view().toText(); }

    /// Returns memory that lives as long as the document.
    Arena& arena() { return arena_; }

private:
    Arena arena_;
    JSONTape tape_{arena_};
    FaultHandler& handler_;
    bool isParsed_ = true;
};

} // namespace Ostra
