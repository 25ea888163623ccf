#pragma once

#include "schema/ExceptionFactory.h"
#include "schema/Memory.h"
#include "schema/Message.h"

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace Ostra {

/// A read-only look at one value of a document; valid as long as the JSON it came from.
class JSONView {
public:
    JSONView(const JSONValue& value, const ExceptionFactory* factory) : value_(&value), factory_(factory) {}

    bool isObject() const { return value_->IsObject(); }
    bool isArray() const { return value_->IsArray(); }
    bool isString() const { return value_->IsString(); }
    bool isBoolean() const { return value_->IsBool(); }
    /// True for a number that was written without fraction and exponent and fits a signed 64-bit integer.
    bool isInteger() const { return value_->IsInt64(); }
    bool isNumber() const { return value_->IsNumber(); }

    /// Returns the number of members of an object or of elements of an array.
    std::size_t size() const { return isObject() ? value_->MemberCount() : value_->Size(); }

    /// Returns the first member of that name, or nothing when there is none or the value is no object.
    std::optional<JSONView> member(std::string_view name) const {
        if (isObject()) {
            for (const auto& member : value_->GetObject()) {
                if (JSONView(member.name, factory_).string() == name) {
                    return JSONView(member.value, factory_);
                }
            }
        }
        return std::nullopt;
    }
    bool hasMember(std::string_view name) const { return member(name).has_value(); }

    /// Calls visit(name, value) for each member of an object in document order.
    template <class Visitor>
    void forEachMember(Visitor&& visit) const {
        for (const auto& member : value_->GetObject()) {
            visit(JSONView(member.name, factory_).string(), JSONView(member.value, factory_));
        }
    }
    /// Calls visit(element) for each element of an array in order.
    template <class Visitor>
    void forEachElement(Visitor&& visit) const {
        for (const JSONValue& element : value_->GetArray()) {
            visit(JSONView(element, factory_));
        }
    }

    std::string_view string() const { return {value_->GetString(), value_->GetStringLength()}; }
    bool boolean() const { return value_->GetBool(); }
    std::int64_t integer() const { return value_->GetInt64(); }
    /// Returns any number as a double, rounded where an integer has more than 53 bits.
    double number() const { return value_->GetDouble(); }

    /// Copies the members of an object; of two members of one name the first counts.
    /// Fails when a name or a value is not a string.
    std::map<std::string, std::string> toStringMap() const;

    /// Returns the value as text without blanks. Does not recurse with the depth of the value.
    /// @throws std::domain_error if a number is not finite.
    std::string toText() const;

    /// Throws the exception of the library that had the document read.
    [[noreturn]] void fail(const Message& message, std::initializer_list<std::string_view> inserted = {}) const;

private:
    const JSONValue* value_;
    const ExceptionFactory* factory_;
};

/// A parsed document. It owns the memory in which its values lie.
class JSON {
public:
    /// Parses a whole text. Neither this nor destruction recurses with the depth of the text.
    /// Fails through the factory with "JSON parsing error at offset N: reason".
    JSON(std::string_view text, std::shared_ptr<const ExceptionFactory> factory);

    JSONView view() const { return {value_, factory_.get()}; }

    /// Returns the value as text without blanks (see JSONView::toText).
    std::string toText() const { return view().toText(); }

private:
    JSONMemory memory_;
    JSONValue value_;
    std::shared_ptr<const ExceptionFactory> factory_;
};

} // namespace Ostra
