#pragma once

#include "catalogue/Source.h"
#include "compare/Content.h"

#include <array>
#include <cstddef>
#include <string_view>
#include <vector>

namespace Tool::Compare {

/// What became of an object, in the order in which changes are told.
enum class Fate {
    removed,
    added,
    succeeded, ///< Removed, and added in another, greater version of the typeid.
    renamed,   ///< Removed, and added with the same content under another typeid.
    changed,
    broken, ///< Sound before, faulty now.
    mended  ///< Faulty before, sound now.
};

inline constexpr std::array fates{Fate::removed, Fate::added,  Fate::succeeded, Fate::renamed,
                                  Fate::changed, Fate::broken, Fate::mended};

/// Returns what a fate is called in words and in data: "removed" and the like.
std::string_view wordOf(Fate fate);

/// An element of a list that was removed (there is nothing after), added (nothing before) or became another one: a
/// choice whose integer or whose id alone is another, a reference to an object that was renamed or succeeded.
struct ElementChange {
    Value before = {}; ///< A text, a reference or a choice.
    Value after = {};
    Place placeBefore = {}; ///< Of an element that is not there on this side, that of the list.
    Place placeAfter = {};
    bool isAmbiguous = false; ///< It is a choice that has now the integer of another one.
};

/// A constant that says something else than before.
struct ConstantChange {
    std::string_view id;        ///< As in Constant.
    std::string_view from = {}; ///< As in Constant; after the change or, if that is empty, before.
    Value before = {};
    Value after = {};
    Place placeBefore = {}; ///< Of the value or, where that is left out, of the typeid.
    Place placeAfter = {};
    std::vector<ElementChange> elements = {}; ///< Where both sides have a list: what differs, apart from the order.
    bool isReordered = false;                 ///< What both lists have comes in another order.
    /// It names the same object as before, which was renamed or succeeded.
    bool isFollowing = false;
    /// It is a limit in another storage unit, so that the two numbers cannot be compared.
    bool isInOtherUnit = false;
};

/// What happened to one object.
struct Change {
    Fate fate;
    const Object* before;                       ///< In the old catalogue; nullptr when it has none, or a faulty one.
    const Object* after;                        ///< In the new catalogue; likewise.
    Place placeBefore = {};                     ///< Of the typeid; no file where the object is not there.
    Place placeAfter = {};                      ///< Likewise. Of faulty schemas, where the text begins.
    std::vector<ConstantChange> constants = {}; ///< Of objects that changed or were succeeded.

    /// The object as it is now or, if it is gone, was.
    const Object& object() const { return after != nullptr ? *after : *before; }
};

/// Compares two catalogues, which must outlive the result. Objects are known by their typeids; then by typeids that
/// differ in their versions alone; then by their content. The changes come by fate, then in the order of the objects.
///
/// What is faulty is in no catalogue: it is neither removed nor added, but broken or mended. An object that is faulty
/// on both sides is not compared. The time grows with the size of the catalogues, whatever they hold.
std::vector<Change> compare(const Catalogue& before, const Catalogue& after);

/// Returns how many changes there are of a fate.
std::size_t count(const std::vector<Change>& changes, Fate fate);

} // namespace Tool::Compare
