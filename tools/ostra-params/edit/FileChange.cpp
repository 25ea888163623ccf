#include "edit/FileChange.h"

#include "catalogue/Input.h"
#include "output/OutputFile.h"
#include "output/Text.h"
#include "output/UnifiedDiff.h"
#include "system/System.h"

#include <fmt/format.h>

#include <deque>
#include <string_view>

namespace Tool {

namespace {

/// Finds the texts of one file in its bytes, one after the other.
class Finder {
public:
    explicit Finder(const std::string& bytes) : bytes_(bytes) {}

    /// Returns the offset of a source's text; npos when it is not there.
    std::size_t offsetOf(const Source& source) {
        while (line_ < source.line && offset_ != std::string::npos) {
            offset_ = bytes_.find('\n', offset_);
            offset_ += offset_ == std::string::npos ? 0 : 1;
            ++line_;
        }
        const bool hasMark = line_ == 1 && bytes_.starts_with(byteOrderMark);
        const std::size_t begin = hasMark ? byteOrderMark.size() : offset_;
        const bool isThere = begin <= bytes_.size() && bytes_.compare(begin, source.text->size(), *source.text) == 0;
        return isThere ? begin : std::string::npos;
    }

private:
    const std::string& bytes_;
    std::size_t line_ = 1;
    std::size_t offset_ = 0;
};

} // namespace

std::vector<FileChange> changesOf(const Input& input, const std::map<std::size_t, std::string>& texts) {
    std::vector<FileChange> changes;
    for (auto text = texts.begin(); text != texts.end();) {
        const std::string* const file = input.sources()[text->first].file;
        FileChange change{*file, bytesOf(*file), {}};
        Finder finder(change.before);
        std::size_t copied = 0;
        for (; text != texts.end() && input.sources()[text->first].file == file; ++text) {
            const Source& source = input.sources()[text->first];
            const std::size_t offset = finder.offsetOf(source);
            if (offset == std::string::npos) {
                throw InputError(fmt::format("{} has changed while it was read.", printable(*file)));
            }
            change.after.append(change.before, copied, offset - copied).append(text->second);
            copied = offset + source.text->size();
        }
        change.after.append(change.before, copied);
        if (change.after != change.before) {
            changes.push_back(std::move(change));
        }
    }
    return changes;
}

std::string asDiff(const std::vector<FileChange>& changes) {
    std::string text;
    for (const FileChange& change : changes) {
        text += unifiedDiff(change.file, change.before, change.after);
    }
    return text;
}

void apply(const std::vector<FileChange>& changes) {
    std::deque<OutputFile> files;
    for (const FileChange& change : changes) {
        files.emplace_back(System::pathOf(change.file)).write(change.after);
    }
    for (std::size_t i = 0; i < files.size(); ++i) {
        try {
            files[i].commit();
        } catch (const OutputError&) {
            for (std::size_t done = 0; done < i; ++done) {
                writeTo(changes[done].file, changes[done].before);
            }
            throw;
        }
    }
}

} // namespace Tool
