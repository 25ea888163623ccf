#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace Parameters::Internal {

/// The typeid of something that a record names.
struct Name {
    static constexpr std::uint32_t noEntry = 0xFFFFFFFF;

    Name(std::string_view itsTypeId) noexcept // NOLINT(google-explicit-constructor): any typeid is a name
        : typeId(itsTypeId), place(itsTypeId.data()) {}
    Name(std::string_view itsTypeId, const void* itsPlace, std::uint32_t itsEntry) noexcept
        : typeId(itsTypeId), place(itsPlace), entry(itsEntry) {}

    std::string_view typeId;
    const void* place;             // where the record has it, since it may name the same twice
    std::uint32_t entry = noEntry; // in a registry, which then need not look for the typeid
};

/// What a parameter names: group, spec, and what its kind adds. The typeids are in the document, the object or the
/// registry that this was made of.
class References {
public:
    References(Name group, Name spec, std::optional<Name> added = {}) noexcept
        : names_{group, spec, added ? *added : group}, size_(added ? most : most - 1) {}

    static constexpr std::size_t most = 3;

    const Name& group() const noexcept { return names_[0]; }
    const Name& spec() const noexcept { return names_[1]; }
    const Name* added() const noexcept { return size_ == most ? &names_[2] : nullptr; }

    std::size_t size() const noexcept { return size_; }
    const Name* begin() const noexcept { return names_.data(); }
    const Name* end() const noexcept { return begin() + size_; }

private:
    std::array<Name, most> names_;
    std::size_t size_;
};

} // namespace Parameters::Internal
