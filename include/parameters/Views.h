#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string_view>

namespace Parameters {

namespace Internal {

struct Access;

/// Walks what has an operator[] that returns values. Iterators do not refer to the view that they came from.
template <class View>
class ViewIterator {
public:
    using value_type = typename View::value_type;
    using reference = value_type;
    using pointer = void;
    using difference_type = std::ptrdiff_t;
    using iterator_category =
        std::input_iterator_tag; // what it refers to is a value, which is all that keeps it from more
    using iterator_concept = std::random_access_iterator_tag;

    constexpr ViewIterator() noexcept = default;
    constexpr ViewIterator(const View& view, std::size_t place) noexcept : view_(view), place_(place) {}

    constexpr value_type operator*() const noexcept { return view_[place_]; }
    constexpr value_type operator[](difference_type offset) const noexcept { return *(*this + offset); }
    constexpr ViewIterator& operator+=(difference_type offset) noexcept {
        place_ += static_cast<std::size_t>(offset);
        return *this;
    }
    constexpr ViewIterator& operator-=(difference_type offset) noexcept { return *this += -offset; }
    constexpr ViewIterator& operator++() noexcept { return *this += 1; }
    constexpr ViewIterator& operator--() noexcept { return *this -= 1; }
    constexpr ViewIterator operator++(int) noexcept {
        const ViewIterator before = *this;
        ++*this;
        return before;
    }
    constexpr ViewIterator operator--(int) noexcept {
        const ViewIterator before = *this;
        --*this;
        return before;
    }
    friend constexpr ViewIterator operator+(ViewIterator one, difference_type offset) noexcept { return one += offset; }
    friend constexpr ViewIterator operator+(difference_type offset, ViewIterator one) noexcept { return one += offset; }
    friend constexpr ViewIterator operator-(ViewIterator one, difference_type offset) noexcept { return one -= offset; }
    friend constexpr difference_type operator-(const ViewIterator& one, const ViewIterator& other) noexcept {
        return static_cast<difference_type>(one.place_ - other.place_);
    }
    friend constexpr bool operator==(const ViewIterator& one, const ViewIterator& other) noexcept {
        return one.place_ == other.place_;
    }
    friend constexpr bool operator!=(const ViewIterator& one, const ViewIterator& other) noexcept {
        return !(one == other);
    }
    friend constexpr bool operator<(const ViewIterator& one, const ViewIterator& other) noexcept {
        return one.place_ < other.place_;
    }
    friend constexpr bool operator>(const ViewIterator& one, const ViewIterator& other) noexcept { return other < one; }
    friend constexpr bool operator<=(const ViewIterator& one, const ViewIterator& other) noexcept {
        return !(other < one);
    }
    friend constexpr bool operator>=(const ViewIterator& one, const ViewIterator& other) noexcept {
        return !(one < other);
    }

private:
    View view_;
    std::size_t place_ = 0;
};

} // namespace Internal

/// Values that lie side by side and belong to another: to an object, or to an engine. Copies cost nothing.
/// @ingroup values
template <class Value>
class ArrayView {
public:
    using value_type = Value;            ///< What it shows.
    using const_iterator = const Value*; ///< What walks it.
    using iterator = const_iterator;     ///< The same: nothing can be changed through a view.
    using size_type = std::size_t;       ///< What counts its elements.

    /// Shows nothing.
    constexpr ArrayView() noexcept = default;
    /// Shows so many values from the first on.
    constexpr ArrayView(const Value* first, std::size_t size) noexcept : first_(first), size_(size) {}

    /// Returns where the first value is.
    [[nodiscard]] constexpr const Value* begin() const noexcept { return first_; }
    /// Returns where the values end.
    [[nodiscard]] constexpr const Value* end() const noexcept { return first_ + size_; }
    /// Returns how many values there are.
    [[nodiscard]] constexpr std::size_t size() const noexcept { return size_; }
    /// Returns whether there is none.
    [[nodiscard]] constexpr bool empty() const noexcept { return size_ == 0; }
    /// Returns one of them, counted from 0.
    [[nodiscard]] constexpr const Value& operator[](std::size_t place) const noexcept { return first_[place]; }

private:
    const Value* first_ = nullptr;
    std::size_t size_ = 0;
};

/// Strings that belong to an object, to be walked in their order. Copies cost nothing.
/// @ingroup values
class StringsView {
public:
    using value_type = std::string_view;                        ///< What it shows.
    using const_iterator = Internal::ViewIterator<StringsView>; ///< What walks it.
    using iterator = const_iterator;                            ///< The same: nothing can be changed through a view.
    using size_type = std::size_t;                              ///< What counts its elements.

    /// Shows nothing.
    constexpr StringsView() noexcept = default;

    /// Returns where the first string is.
    [[nodiscard]] constexpr const_iterator begin() const noexcept { return {*this, 0}; }
    /// Returns where the strings end.
    [[nodiscard]] constexpr const_iterator end() const noexcept { return {*this, size_}; }
    /// Returns how many strings there are.
    [[nodiscard]] constexpr std::size_t size() const noexcept { return size_; }
    /// Returns whether there is none.
    [[nodiscard]] constexpr bool empty() const noexcept { return size_ == 0; }
    /// Returns one of them, counted from 0.
    [[nodiscard]] constexpr std::string_view operator[](std::size_t place) const noexcept {
        const std::uint32_t begin = place == 0 ? begin_ : ends_[place - 1];
        return {characters_ + begin, ends_[place] - begin};
    }

private:
    friend struct Internal::Access;
    constexpr StringsView(const char* characters, std::uint32_t begin, const std::uint32_t* ends,
                          std::size_t size) noexcept
        : characters_(characters), ends_(ends), size_(size), begin_(begin) {}

    const char* characters_ = nullptr;
    const std::uint32_t* ends_ = nullptr; // of each string, counted like begin_ in characters
    std::size_t size_ = 0;
    std::uint32_t begin_ = 0; // of the first
};

/// A choice of an enumeration.
/// @ingroup values
struct EnumerationValue {
    std::string_view identifier; ///< What it is called.
    std::int64_t integer;        ///< What documents hold.
};

/// The choices of an enumeration, to be walked in its order. Copies cost nothing.
/// @ingroup values
class EnumerationValues {
public:
    using value_type = EnumerationValue;                              ///< What it shows.
    using const_iterator = Internal::ViewIterator<EnumerationValues>; ///< What walks it.
    using iterator = const_iterator; ///< The same: nothing can be changed through a view.
    using size_type = std::size_t;   ///< What counts its elements.

    /// Shows nothing.
    constexpr EnumerationValues() noexcept = default;
    /// Shows identifiers and as many integers.
    constexpr EnumerationValues(StringsView identifiers, const std::int64_t* integers) noexcept
        : identifiers_(identifiers), integers_(integers) {}

    /// Returns where the first choice is.
    [[nodiscard]] constexpr const_iterator begin() const noexcept { return {*this, 0}; }
    /// Returns where the choices end.
    [[nodiscard]] constexpr const_iterator end() const noexcept { return {*this, size()}; }
    /// Returns how many choices there are.
    [[nodiscard]] constexpr std::size_t size() const noexcept { return identifiers_.size(); }
    /// Returns whether there is none.
    [[nodiscard]] constexpr bool empty() const noexcept { return identifiers_.empty(); }
    /// Returns one of them, counted from 0.
    [[nodiscard]] constexpr EnumerationValue operator[](std::size_t place) const noexcept {
        return {identifiers_[place], integers_[place]};
    }
    /// Returns what the choices are called.
    [[nodiscard]] constexpr StringsView identifiers() const noexcept { return identifiers_; }

private:
    StringsView identifiers_;
    const std::int64_t* integers_ = nullptr;
};

} // namespace Parameters
