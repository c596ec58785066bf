#include "source_rules.h"

#include <algorithm>
#include <regex>
#include <string_view>

namespace zkp::architecture {

namespace {

/// The Greek blocks of Unicode in UTF-8: U+0370 to U+03FF and U+1F00 to U+1FFF.
bool hasGreek(std::string_view text) {
    for (std::size_t i = 0; i + 1 < text.size(); ++i) {
        const auto first = static_cast<unsigned char>(text[i]);
        const auto second = static_cast<unsigned char>(text[i + 1]);
        if ((first == 0xCD && second >= 0xB0) || first == 0xCE || first == 0xCF)
            return true;
        if (first == 0xE1 && second >= 0xBC && second <= 0xBF)
            return true;
    }
    return false;
}

/// Where a piece of C++ ends that begins at `start`: a comment, a text, a character or one other byte.
std::size_t endOfPiece(std::string_view code, std::size_t start) {
    const auto behind = [&](std::string_view mark, std::size_t from) {
        const std::size_t found = code.find(mark, from);
        return found == std::string_view::npos ? code.size() : found + mark.size();
    };
    if (code.substr(start, 2) == "//")
        return behind("\n", start);
    if (code.substr(start, 2) == "/*")
        return behind("*/", start + 2);
    if (code.substr(start, 2) == "R\"") {
        const std::size_t bracket = code.find('(', start);
        if (bracket == std::string_view::npos)
            return code.size();
        return behind(")" + std::string(code.substr(start + 2, bracket - start - 2)) + "\"", bracket);
    }
    const char quote = code[start];
    if (quote != '"' && quote != '\'')
        return start + 1;
    for (std::size_t i = start + 1; i < code.size(); ++i) {
        if (code[i] == '\\')
            ++i;
        else if (code[i] == quote || code[i] == '\n') // the line's end: a digit separator such as 1'000
            return i + 1;
    }
    return code.size();
}

} // namespace

std::vector<Finding> filesLongerThan(std::size_t most, const std::vector<SourceFile>& files) {
    std::vector<Finding> findings;
    for (const SourceFile& file : files) {
        const std::size_t lines = linesOf(file.text).size();
        if (lines > most)
            findings.push_back({file.path, static_cast<int>(lines),
                                "longer than " + std::to_string(most) + " lines; one file holds one idea"});
    }
    return findings;
}

std::vector<Finding> greekTextsOutsideTexts(const std::vector<SourceFile>& files) {
    std::vector<Finding> findings;
    for (const SourceFile& file : files) {
        const bool holdsTexts = file.path.starts_with("src/base/texts/");
        if (!file.path.starts_with("src/") || holdsTexts)
            continue;
        const std::string_view code = file.text;
        for (std::size_t at = 0; at < code.size();) {
            const std::size_t end = endOfPiece(code, at);
            const std::string_view piece = code.substr(at, end - at);
            if ((piece.front() == '"' || piece.starts_with("R\"")) && hasGreek(piece)) {
                const auto line =
                    1 + std::count(code.begin(), code.begin() + static_cast<std::ptrdiff_t>(at), '\n');
                findings.push_back(
                    {file.path, static_cast<int>(line), std::string(piece) + " belongs in base/texts/"});
            }
            at = end;
        }
    }
    return findings;
}

std::vector<Finding> recompiledSources(const std::vector<SourceFile>& files) {
    static const std::regex named(R"((^|[\s/"(])(src|apps|designer|demo)/[^\s")]*\.cpp\b)");
    static const std::regex included(R"(^\s*#\s*include\s*["<][^">]*\.cpp[">])");
    std::vector<Finding> findings;
    for (const SourceFile& file : files) {
        const bool isBuildFile = file.path.ends_with("CMakeLists.txt") || file.path.ends_with(".cmake");
        int number = 0;
        for (const std::string& line : linesOf(file.text)) {
            ++number;
            if (std::regex_search(line, isBuildFile ? named : included))
                findings.push_back({file.path, number, "compiles a library's source again: " + line});
        }
    }
    return findings;
}

} // namespace zkp::architecture
