#pragma once

#include <parameters/Ref.h>
#include <parameters/Value.h>
#include <parameters/Views.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>

namespace Parameters::Internal {

/// The one friend of every value class: makes values of data and looks into them without copying strings.
struct Access {
    /// Returns all the data of a value. Parameters and specs hold it as their core, which it derives from.
    template <class Value>
    static const auto& data(const Value& value) noexcept {
        if constexpr (hasCore<Value>) {
            return static_cast<const typename Value::Data&>(*value.core_.data_);
        } else {
            return *value.data_;
        }
    }
    /// The data as the value holds it.
    template <class Value>
    static auto& shared(Value& value) noexcept {
        if constexpr (hasCore<Value>) {
            return shared(value.core_);
        } else {
            return value.data_;
        }
    }
    /// Returns a share in all the data of a value.
    template <class Value>
    static auto share(const Value& value) noexcept {
        using Data = const typename Value::Data;
        auto share = shared(value);
        return Ref<Data>::of(static_cast<Data*>(share.release()));
    }
    template <class Value, class Data>
    static Value make(Ref<Data> data) noexcept {
        return Value(std::move(data), Key(0));
    }

    /// A handle without data, for a place whose value is not there. It never leaves the library.
    template <class Value>
    static Value none() noexcept {
        return Value({}, Key(0));
    }
    template <class Value>
    static bool isNone(const Value& value) noexcept {
        return !shared(value);
    }
    /// Puts a value in a place without touching its count: handles can only be copied, lest others see one without
    /// data.
    template <class Value>
    static void put(Value&& value, Value& place) noexcept {
        shared(place) = std::move(shared(value));
    }

    static StringsView view(const char* characters, std::uint32_t begin, const std::uint32_t* ends,
                            std::size_t size) noexcept {
        return {characters, begin, ends, size};
    }

private:
    template <class Value>
    static constexpr bool hasCore = requires(const Value& value) {
        value.core_;
    };
};

/// Returns a copy of what is shown, or nothing where there is nothing.
template <class Value>
std::optional<Value> copyOf(const Value* shown) noexcept {
    return shown != nullptr ? std::optional(*shown) : std::nullopt;
}

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
