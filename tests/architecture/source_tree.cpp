#include "source_tree.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

namespace fs = std::filesystem;

namespace zkp::architecture {

namespace {

bool endsInOneOf(const std::string& name, const std::vector<std::string>& endings) {
    return std::any_of(endings.begin(), endings.end(),
                       [&](const std::string& ending) { return name.ends_with(ending); });
}

std::string readFile(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace

std::vector<SourceFile> readTree(const std::string& root, const std::vector<std::string>& folders,
                                 const std::vector<std::string>& endings) {
    std::vector<SourceFile> files;
    for (const std::string& folder : folders) {
        const fs::path start = fs::path(root) / folder;
        if (!fs::is_directory(start))
            continue;
        for (const auto& entry : fs::recursive_directory_iterator(start)) {
            if (entry.is_regular_file() && endsInOneOf(entry.path().filename().string(), endings))
                files.push_back({fs::relative(entry.path(), root).generic_string(), readFile(entry.path())});
        }
    }
    std::sort(files.begin(), files.end(),
              [](const SourceFile& a, const SourceFile& b) { return a.path < b.path; });
    return files;
}

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

std::string describe(const std::vector<Finding>& findings) {
    std::string text;
    for (const Finding& finding : findings)
        text += finding.file + ":" + std::to_string(finding.line) + ": " + finding.problem + "\n";
    return text;
}

} // namespace zkp::architecture
