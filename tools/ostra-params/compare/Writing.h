#pragma once

#include "catalogue/Source.h"
#include "compare/Content.h"
#include "edit/Syntax.h"

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace Tool {

namespace Language {
struct Form;
} // namespace Language

namespace Compare {

/// Tells where the author of a sound schema wrote what it says.
class Writing {
public:
    /// Reads the text of a source, which must outlive this.
    explicit Writing(const Source& source);
    Writing(const Writing&) = delete;
    Writing& operator=(const Writing&) = delete;

    /// Returns the place of the typeid, which stands for the schema as a whole.
    Place ofTypeId() { return placeOf(typeId_); }
    /// Returns the place of a constant's value. What another object says has the place where that is named, and what is
    /// left out that of the typeid.
    Place of(const Constant& constant) { return placeOf(nodeOf(constant)); }
    /// Returns the place of an element of a constant's list, by its number, or of a choice.
    /// @{
    Place ofElement(const Constant& list, std::size_t number);
    Place ofChoice(const Constant& list, const std::string& id);
    /// @}

private:
    static constexpr std::size_t none = Syntax::none;

    std::size_t definition(std::string_view table, std::string_view id) const;
    std::size_t valueOf(std::string_view table, std::string_view id) const;
    std::size_t within(std::string_view id) const;
    std::size_t nodeOf(const Constant& constant) const;
    std::string pointerOf(std::size_t node) const;
    Place placeOf(std::size_t node);

    const Source& source_;
    Syntax syntax_;
    std::vector<std::size_t> numbers_; // of each node among those beside it
    const Language::Form* form_;
    std::size_t typeId_;
    Positions positions_;
    std::size_t list_ = none; // the one whose elements were asked for last
    std::vector<std::size_t> elements_;
    std::map<std::string, std::size_t> choices_;
};

} // namespace Compare
} // namespace Tool
