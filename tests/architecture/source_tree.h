#pragma once

#include <string>
#include <vector>

namespace zkp::architecture {

/// A file of the project: path from its root with "/", and its bytes.
struct SourceFile {
    std::string path;
    std::string text;
};

/// Something that breaks a rule, where it stands.
struct Finding {
    std::string file;
    int line = 0;
    std::string problem;

    bool operator==(const Finding&) const = default;
};

/// The files below the named folders of the project whose names end in one of the endings. A folder
/// that is not there has none.
std::vector<SourceFile> readTree(const std::string& root, const std::vector<std::string>& folders,
                                 const std::vector<std::string>& endings);

/// Lines without their ends, the first one first.
std::vector<std::string> linesOf(const std::string& text);

/// One finding a line, for a reader; empty when there are none.
std::string describe(const std::vector<Finding>& findings);

} // namespace zkp::architecture
