#include "include_order.h"

#include <algorithm>
#include <map>
#include <regex>

namespace zkp::architecture {

namespace {

const std::string kFrontDoor = "grid";
const std::string kFrontDoorHeader = "zkp_grid.h";

/// Folders from low to high; those of one rank stand side by side.
const std::map<std::string, int>& ranks() {
    static const std::map<std::string, int> ranks{
        {"base", 0},     {"store", 1},   {"ado", 2},    {"surface", 2},     {"menu", 2},
        {"bag", 2},      {"host", 2},    {"core", 3},   {"sql", 4},         {"load", 5},
        {"template", 6}, {"output", 6},  {"chart", 6},  {"interaction", 6}, {kFrontDoor, 7},
        {"drawing", 8},  {"widgets", 9}, {"script", 9}, {"apps", 10},       {"designer", 10}};
    return ranks;
}

std::string firstFolder(const std::string& path) {
    return path.substr(0, path.find('/'));
}

/// The folder that a file belongs to: "ado" for src/ado/..., the front door for what stands in src/.
std::string layerOf(const std::string& path) {
    if (!path.starts_with("src/"))
        return firstFolder(path);
    const std::string below = path.substr(4);
    return below.find('/') == std::string::npos ? kFrontDoor : firstFolder(below);
}

/// The folder that an include names; empty for a header that is none of the project's.
std::string layerOfInclude(const std::string& header) {
    if (header.find('/') == std::string::npos)
        return header == kFrontDoorHeader ? kFrontDoor : std::string();
    const std::string folder = firstFolder(header);
    return ranks().contains(folder) || folder == "demo" ? folder : std::string();
}

bool mayInclude(const std::string& from, const std::string& to) {
    if (from == to)
        return true;
    if (from == "demo")
        return to == "base";
    if (to == "demo")
        return from == "apps";
    return ranks().contains(from) && ranks().contains(to) && ranks().at(to) < ranks().at(from);
}

struct Include {
    int line;
    bool quoted;
    std::string header;
};

std::vector<Include> includesOf(const SourceFile& file) {
    static const std::regex pattern(R"re(^\s*#\s*include\s*(["<])([^">]+)[">])re");
    std::vector<Include> includes;
    int number = 0;
    for (const std::string& line : linesOf(file.text)) {
        ++number;
        std::smatch match;
        if (std::regex_search(line, match, pattern))
            includes.push_back({number, match[1] == "\"", match[2]});
    }
    return includes;
}

} // namespace

std::vector<Finding> includesAgainstTheOrder(const std::vector<SourceFile>& files) {
    std::vector<Finding> findings;
    for (const SourceFile& file : files) {
        const std::string from = layerOf(file.path);
        if (from != "demo" && !ranks().contains(from)) {
            findings.push_back({file.path, 1, "the folder " + from + " has no place in the order"});
            continue;
        }
        for (const Include& include : includesOf(file)) {
            const std::string to = layerOfInclude(include.header);
            if (!to.empty() && !mayInclude(from, to))
                findings.push_back({file.path, include.line, from + " may not include " + include.header});
            else if (to.empty() && include.quoted && file.path.starts_with("src/"))
                findings.push_back({file.path, include.line, include.header + " is not rooted at src/"});
        }
    }
    return findings;
}

std::vector<Finding> includesBeyondQtCore(const std::vector<SourceFile>& files,
                                          const std::function<bool(const std::string&)>& isCore,
                                          const std::vector<std::string>& allowed) {
    std::vector<Finding> findings;
    for (const SourceFile& file : files) {
        const auto layer = ranks().find(layerOf(file.path));
        if (!file.path.starts_with("src/") || layer == ranks().end() ||
            layer->second > ranks().at(kFrontDoor))
            continue;
        for (const Include& include : includesOf(file)) {
            const bool isQt = include.header.starts_with('Q') || include.header.starts_with("qt");
            const bool isAllowed =
                std::count(allowed.begin(), allowed.end(), file.path + " " + include.header);
            if (!include.quoted && isQt && !isCore(include.header) && !isAllowed)
                findings.push_back({file.path, include.line, include.header + " is not of Qt Core"});
        }
    }
    return findings;
}

} // namespace zkp::architecture
