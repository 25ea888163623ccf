#pragma once

#include "catalogue/Input.h"
#include "catalogue/Source.h"

#include <parameters/Fault.h>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace Tool {

/// Something wrong with a catalogue, or something in it that is probably not meant.
struct Finding {
    std::string code;
    bool isError = true;
    std::string message;
    std::size_t source = 0; ///< The number of the text; of a file that cannot be read, that of the next one.
    Place place = {};
    std::string typeId = {}; ///< Of the schema, as far as it is known.
    std::string name = {};   ///< What the finding is about.
    std::string expected = {};
    std::string nearest = {};
    std::optional<Place> other = {};
    std::optional<Place> root = {}; ///< Of what is but a consequence.
    std::optional<std::size_t> rootSource = {};
    std::string hint = {};     ///< What may help to mend it; often empty.
    std::string misspelt = {}; ///< As in the hint, if that offers one text alone.
    std::string meant = {};
};

/// Tells the order of reading.
inline bool isReadBefore(const Finding& one, const Finding& other) { return one.source < other.source; }

/// The code of texts that are no UTF-8.
constexpr const char* encodingInvalid = "encoding-invalid";

/// Returns what is wrong with the input: what cannot be read, and the faults that the library found in the texts, with
/// hints. They are in the order of reading.
std::vector<Finding> findingsOf(const Input& input, const Headings& headings,
                                const std::vector<Parameters::Fault>& faults);

/// Puts findings, each list in the order of reading, into one such list.
void addTo(std::vector<Finding>& findings, std::vector<Finding> more);

/// A finding that is shown, and those that are folded into a line below it.
struct Fold {
    const Finding* shown;
    std::size_t alike = 0;        ///< Which are of one cause or one kind with it.
    std::size_t consequences = 0; ///< Which go when they are mended.
    std::vector<const Finding*> folded = {};
};

/// Folds findings, which must outlive the result: consequences into their roots; what names one thing that is missing
/// into the first of it; warnings into the third of those of one code and name, or the tenth of one code.
std::vector<Fold> fold(const std::vector<Finding>& findings);

/// Returns the line that stands for what is folded; empty when nothing is.
std::string summaryOf(const Fold& fold);

} // namespace Tool
