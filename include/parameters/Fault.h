#pragma once

#include <parameters/Export.h>
#include <parameters/Ref.h>
#include <parameters/Value.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace Parameters {

namespace Internal {
struct Access;
struct FaultData;
} // namespace Internal

/// Something wrong with a schema text among several, or something in it that its author cannot have meant.
///
/// A handle to data that never changes; what it hands out as a reference or a view is good as long as the fault or a
/// copy of it.
/// @ingroup values
class PARAMETERS_EXPORT Fault {
public:
    /// Whether a fault keeps a text from being registered.
    enum class Severity {
        error,  ///< The text cannot be registered, or what it describes cannot be built.
        warning ///< The text can be registered, but says something that is passed over.
    };

    /// A value in one of the texts.
    struct Place {
        std::string text;    ///< The key of the text.
        std::string pointer; ///< The JSON Pointer of the value (RFC 6901); "" is the whole text.
        std::size_t begin;   ///< The offset of the value's first byte in the text.
        std::size_t end;     ///< The offset behind its last byte.
    };

    /// Copies share their data; moving copies.
    /// @{
    Fault(const Fault&) noexcept = default;
    Fault& operator=(const Fault&) noexcept = default;
    /// @}

    /// Returns the short name of the rule that is broken, such as "constant-undefined". It stays the same for good;
    /// @ref md_docs_errors "Errors" lists all.
    std::string_view code() const noexcept;
    /// Returns whether this is an error or a warning.
    Severity severity() const noexcept;
    /// Returns whether this is an error.
    bool isError() const noexcept { return severity() == Severity::error; }
    /// Returns a sentence; that of an error is the message of the exception with which it would be thrown.
    const std::string& message() const noexcept;

    /// Returns the type identifier of the schema; empty where it could not be read.
    const std::string& typeId() const noexcept;
    /// Returns where the fault is: the value that is wrong; for something that is missing, what stands there misspelt,
    /// else the object or array that lacks it; for a text that is no JSON, where it ceases to be, up to its end.
    const Place& place() const noexcept;

    /// Returns what the fault is about, as far as it has a name: the type identifier that is missing or taken, the
    /// constant that is undefined or wrong, the member that nothing reads; else empty.
    const std::string& name() const noexcept;
    /// Returns what an object that is named had to be, in the words of messages: "group", "integer range", "unit";
    /// empty where no object is named.
    std::string_view expectedKind() const noexcept;
    /// Returns, for something that nothing reads, the name nearest to its own that would be read there, and for
    /// something that is undefined, the name under which it seems to be there; empty where none is near.
    const std::string& nearestName() const noexcept;

    /// Returns where the other side stands: of a repeated typeid, constant or member the one that counts or, where that
    /// is the place, the one that does not; of a type identifier that is missing, the schema among the texts that has
    /// it. Nothing where there is none.
    const std::optional<Place>& otherPlace() const noexcept;
    /// Returns, for an error that is but the consequence of others, the place of the first of those: the fault goes
    /// when they are mended. Nothing for an error of its own.
    const std::optional<Place>& root() const noexcept;

private:
    friend struct Internal::Access;
    Fault(Internal::Ref<const Internal::FaultData> data, Internal::Key) noexcept : data_(std::move(data)) {}

    Internal::Ref<const Internal::FaultData> data_;
};

} // namespace Parameters
