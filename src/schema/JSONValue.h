#pragma once

#include "schema/Arena.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string_view>

namespace Ostra {

/// One value of a document. All values of a document lie behind one another, in the order of its text: what is in an
/// array or an object follows it, each member as its name, a string, and its value.
class JSONValue {
public:
    bool isNull() const { return type_ == Type::null; }
    bool isBoolean() const { return type_ == Type::boolean; }
    /// True for a number without fraction and exponent that fits 64 bits with sign.
    bool isInteger() const { return type_ == Type::integer; }
    /// True for such a number that fits 64 bits without sign alone.
    bool isUnsignedInteger() const { return type_ == Type::unsignedInteger; }
    bool isReal() const { return type_ == Type::real; }
    bool isNumber() const { return type_ >= Type::integer && type_ <= Type::real; }
    bool isString() const { return type_ == Type::string; }
    bool isArray() const { return type_ == Type::array; }
    bool isObject() const { return type_ == Type::object; }
    bool isContainer() const { return type_ >= Type::array; }

    bool boolean() const { return integer_ != 0; }
    std::int64_t integer() const { return integer_; }
    std::uint64_t unsignedInteger() const { return unsigned_; }
    /// Returns any number, rounded where it has more than 53 bits.
    double number() const {
        return isReal() ? real_ : isInteger() ? static_cast<double>(integer_) : static_cast<double>(unsigned_);
    }
    std::string_view string() const { return {text_, size_}; }

    /// Returns the number of elements of an array or of members of an object.
    std::size_t size() const { return size_; }
    /// Returns what is in an array or an object first: an element, or the name of a member.
    const JSONValue* first() const { return this + 1; }
    /// Returns what follows the value and all that is in it. Behind the name of a member, that is its value.
    const JSONValue* next() const { return this + (isContainer() ? span_ : 1); }

    /// Returns the name of the first member of that name of an object, or null.
    const JSONValue* findName(std::string_view name) const {
        const JSONValue* const end = next();
        for (const JSONValue* at = first(); at != end; at = at->next()->next()) {
            if (at->string() == name) {
                return at;
            }
        }
        return nullptr;
    }
    /// Returns the first member of that name, or null when there is none or the value is no object.
    const JSONValue* find(std::string_view name) const {
        const JSONValue* const found = isObject() ? findName(name) : nullptr;
        return found != nullptr ? found->next() : nullptr;
    }

private:
    friend class JSONTape;

    enum class Type : std::uint8_t { null, boolean, integer, unsignedInteger, real, string, array, object };

    Type type_;
    std::uint32_t size_; // of a string or a container
    // NOLINTBEGIN(readability-identifier-naming): they are members of the class
    union {
        std::int64_t integer_;
        std::uint64_t unsigned_;
        double real_;
        const char* text_;
        std::size_t span_; // of a container, with itself; while it is open, the place of the one that it is in
    };
    // NOLINTEND(readability-identifier-naming)
};

/// What a parser writes the values of a document to, one by one. The first of them lie within, others in an arena.
class JSONTape {
public:
    explicit JSONTape(Arena& arena) : arena_(arena) {}
    JSONTape(const JSONTape&) = delete;
    JSONTape& operator=(const JSONTape&) = delete;

    /// Begins again, without any value.
    void clear() {
        end_ = begin_;
        open_ = none;
    }

    void null() { add(JSONValue::Type::null); }
    void boolean(bool value) { add(JSONValue::Type::boolean).integer_ = value ? 1 : 0; }
    void integer(std::int64_t value) { add(JSONValue::Type::integer).integer_ = value; }
    void unsignedInteger(std::uint64_t value) { add(JSONValue::Type::unsignedInteger).unsigned_ = value; }
    void real(double value) { add(JSONValue::Type::real).real_ = value; }
    void string(const char* text, std::uint32_t size) {
        JSONValue& value = add(JSONValue::Type::string);
        value.text_ = text;
        value.size_ = size;
    }
    void beginArray() { begin(JSONValue::Type::array); }
    void beginObject() { begin(JSONValue::Type::object); }
    /// Ends the innermost container, which has so many elements or members.
    void end(std::uint32_t size) {
        JSONValue& container = begin_[open_];
        const auto place = open_;
        open_ = container.span_;
        container.span_ = static_cast<std::size_t>(end_ - begin_) - place;
        container.size_ = size;
    }

    bool isEmpty() const { return end_ == begin_; }
    const JSONValue& root() const { return *begin_; }

    /// Makes strings refer to a copy of the text that they refer to.
    void moveStrings(const char* text, const char* copy) {
        for (JSONValue* value = begin_; value != end_; ++value) {
            if (value->isString()) {
                value->text_ = copy + (value->text_ - text);
            }
        }
    }

private:
    static constexpr std::size_t none = std::numeric_limits<std::size_t>::max();

    JSONValue& add(JSONValue::Type type) {
        if (end_ == limit_) [[unlikely]] {
            enlarge();
        }
        end_->type_ = type;
        return *end_++;
    }
    void begin(JSONValue::Type type) {
        JSONValue& container = add(type);
        container.span_ = open_;
        open_ = static_cast<std::size_t>(&container - begin_);
    }
    void enlarge();

    Arena& arena_;
    std::array<JSONValue, 256> within_; // all values of most schemas
    JSONValue* begin_ = within_.data();
    JSONValue* end_ = within_.data();
    JSONValue* limit_ = within_.data() + within_.size();
    std::size_t open_ = none; // the place of the innermost container that is not ended
};

} // namespace Ostra
