#pragma once

#include "catalogue/Describe.h"
#include "catalogue/Loader.h"
#include "catalogue/Sections.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace Tool {

/// A dependency, with the property that makes it one.
struct Link {
    std::string_view property;
    std::string typeId; ///< At the other end; perhaps of a built-in object, which no catalogue holds.
};

/// A catalogue with descriptions of its sound objects.
class Catalogue : public Loader {
public:
    /// Reads it as Loader does.
    /// @throws Loss if a sound schema is not among the objects.
    explicit Catalogue(const std::vector<std::string>& paths);
    explicit Catalogue(const std::vector<KnownFile>& files);

    /// Returns the objects by section, then by typeid.
    const std::vector<Object>& objects() const { return objects_; }
    const Object* find(std::string_view typeId) const;
    /// Returns what a typeid goes by: the name of its object, or nothing.
    std::string nameOf(const std::string& typeId) const;

    /// Returns what an object names, in the order of its properties.
    std::vector<Link> dependencies(const Object& object) const;
    /// Returns what names an object, in the order of the objects.
    std::vector<Link> dependents(const std::string& typeId) const;

    /// Returns the text of an object as the library writes it; that of a unit as it was given, without blanks.
    std::string schemaOf(const Object& object) const;
    const Source& sourceOf(const Object& object) const { return source(*headings().find(object.typeId)); }

private:
    void describe();

    std::vector<Object> objects_;
    std::unordered_map<std::string_view, const Object*> index_;
};

} // namespace Tool
