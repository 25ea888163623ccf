#pragma once

#include <memory>
#include <string_view>
#include <utility>

namespace Parameters::Internal {

/// The one friend of every value class: makes values of data and looks into them without copying strings.
struct Access {
    template <class Value>
    static const auto& data(const Value& value) noexcept {
        return *value.data_;
    }
    /// The data as the value holds it, for handles that refer to a part of it.
    template <class Value>
    static const auto& shared(const Value& value) noexcept {
        return value.data_;
    }
    template <class Value, class Data>
    static Value make(std::shared_ptr<Data> data) noexcept {
        return Value(std::move(data));
    }

    /// A handle without data, for a place whose value is not there. It never leaves the library.
    template <class Value>
    static Value none() noexcept {
        return Value(nullptr);
    }
    template <class Value>
    static bool isNone(const Value& value) noexcept {
        return value.data_ == nullptr;
    }
    /// Puts a value in a place without touching its count: handles can only be copied, lest others see one without
    /// data.
    template <class Value>
    static void put(Value&& value, Value& place) noexcept {
        place.data_ = std::move(value.data_);
    }
};

/// Returns the type identifier by which a value is known; it lives as long as the value's data.
template <class Value>
std::string_view typeIdOf(const Value& value) noexcept {
    return Access::data(value).typeId();
}

} // namespace Parameters::Internal

/// Defines the four comparisons of a value class. They compare identity: the bytes of the typeid and nothing else, so
/// that two values of one typeid are equal whatever they hold.
#define PARAMETERS_COMPARE_BY_TYPEID(Value)                                                                            \
    bool Value::operator==(const Value& other) const noexcept {                                                        \
        return Internal::typeIdOf(*this) == Internal::typeIdOf(other);                                                 \
    }                                                                                                                  \
    bool Value::operator!=(const Value& other) const noexcept { return !(*this == other); }                            \
    bool Value::operator<(const Value& other) const noexcept {                                                         \
        return Internal::typeIdOf(*this) < Internal::typeIdOf(other);                                                  \
    }                                                                                                                  \
    bool Value::operator>(const Value& other) const noexcept { return *this != other && !(*this < other); }
