#include "include_order.h"
#include "source_rules.h"
#include "source_tree.h"

#include <gtest/gtest.h>

#include <filesystem>

using namespace zkp::architecture;

namespace {

const std::vector<std::string> kCode{".h", ".cpp", ".def"};

std::vector<SourceFile> tree(const std::vector<std::string>& folders,
                             const std::vector<std::string>& endings) {
    return readTree(ZKP_SOURCE_DIR, folders, endings);
}

std::vector<Finding> orderOf(const std::string& path, const std::string& text) {
    return includesAgainstTheOrder({{path, text}});
}

bool isCoreHeader(const std::string& header) {
    const std::string name = header.starts_with("QtCore/") ? header.substr(7) : header;
    return std::filesystem::exists(std::filesystem::path(ZKP_QT_CORE_HEADERS) / name);
}

/// "path header": headers beyond Qt Core that a part below widgets/ can't do without. None so far.
const std::vector<std::string> kNeededBeyondCore{};

} // namespace

// The project itself.

TEST(Architecture, TheProjectsSourcesAreFound) {
    EXPECT_GT(tree({"src"}, kCode).size(), 50u);
    EXPECT_GT(tree({"tests"}, {"CMakeLists.txt"}).size(), 2u);
}

TEST(Architecture, IncludesFollowTheOrderOfTheFolders) {
    EXPECT_EQ(describe(includesAgainstTheOrder(tree({"src", "apps", "designer", "demo"}, kCode))), "");
}

TEST(Architecture, NothingBelowWidgetsKnowsMoreOfQtThanCore) {
    EXPECT_EQ(describe(includesBeyondQtCore(tree({"src"}, kCode), isCoreHeader, kNeededBeyondCore)), "");
}

TEST(Architecture, NoFilePassesSixHundredLines) {
    EXPECT_EQ(
        describe(filesLongerThan(600, tree({"src", "apps", "designer", "demo", "tests", "bench"}, kCode))),
        "");
}

TEST(Architecture, GreekTextsStandInOnePlace) {
    EXPECT_EQ(describe(greekTextsOutsideTexts(tree({"src"}, kCode))), "");
}

TEST(Architecture, TestsAndBenchmarksLinkTheLibraries) {
    auto files = tree({"tests", "bench"}, {"CMakeLists.txt", ".cmake", ".cpp", ".h"});
    // This file holds such lines as examples.
    std::erase_if(files, [](const SourceFile& file) {
        return file.path == "tests/architecture/architecture_test.cpp";
    });
    EXPECT_EQ(describe(recompiledSources(files)), "");
}

// The rules, on made-up files.

TEST(IncludeOrder, AHigherFolderSeesALowerOne) {
    EXPECT_TRUE(orderOf("src/load/a.cpp", "#include \"base/error.h\"\n#include \"load/b.h\"\n").empty());
    EXPECT_TRUE(
        orderOf("src/grid/zkp_grid.cpp", "#include \"zkp_grid.h\"\n#include \"interaction/a.h\"\n").empty());
    EXPECT_TRUE(orderOf("src/widgets/a.h", "#include \"zkp_grid.h\"\n").empty());
    EXPECT_TRUE(orderOf("apps/zkpreport/a.cpp", "#include \"widgets/a.h\"\n#include \"demo/b.h\"\n").empty());
}

TEST(IncludeOrder, ALowerFolderSeesNoHigherOne) {
    const std::vector<Finding> findings =
        orderOf("src/base/a.h", "#pragma once\n#include \"core/enums.h\"\n");
    EXPECT_EQ(findings, (std::vector<Finding>{{"src/base/a.h", 2, "base may not include core/enums.h"}}));
    EXPECT_EQ(orderOf("src/load/a.cpp", "#include \"zkp_grid.h\"\n").size(), 1u);
    EXPECT_EQ(orderOf("src/zkp_grid.cpp", "#include \"widgets/a.h\"\n").size(), 1u);
    EXPECT_EQ(orderOf("src/load/a.cpp", "  #  include <interaction/a.h>\n").size(), 1u);
}

TEST(IncludeOrder, FoldersSideBySideDoNotKnowEachOther) {
    EXPECT_EQ(orderOf("src/ado/a.h", "#include \"surface/a.h\"\n").size(), 1u);
    EXPECT_EQ(orderOf("src/host/a.h", "#include \"ado/recordset.h\"\n").size(), 1u);
    EXPECT_EQ(orderOf("src/chart/a.h", "#include \"output/b.h\"\n").size(), 1u);
    EXPECT_EQ(orderOf("designer/a.cpp", "#include \"apps/zkpreport/b.h\"\n").size(), 1u);
}

TEST(IncludeOrder, TheDemonstrationDataStandBesideTheEngine) {
    EXPECT_TRUE(orderOf("demo/a.cpp", "#include \"demo/b.h\"\n#include \"base/error.h\"\n").empty());
    EXPECT_EQ(orderOf("demo/a.cpp", "#include \"ado/connection.h\"\n").size(), 1u);
    EXPECT_EQ(orderOf("src/core/a.cpp", "#include \"demo/b.h\"\n").size(), 1u);
}

TEST(IncludeOrder, IncludesAreRootedAtTheSourceFolder) {
    EXPECT_EQ(orderOf("src/ado/a.cpp", "#include \"recordset.h\"\n").size(), 1u);
    EXPECT_EQ(orderOf("src/ado/a.cpp", "#include \"../base/error.h\"\n").size(), 1u);
    EXPECT_TRUE(orderOf("src/ado/a.cpp", "#include <sqlite3.h>\n#include <sys/stat.h>\n").empty());
}

TEST(IncludeOrder, AFolderWithoutAPlaceIsFound) {
    EXPECT_EQ(orderOf("src/misc/a.cpp", "").size(), 1u);
}

TEST(QtModules, OnlyWidgetsMayUseMoreThanCore) {
    const auto isCore = [](const std::string& header) { return header == "QString"; };
    const SourceFile engine{"src/core/a.h", "#include <QString>\n#include <vector>\n#include <QColor>\n"};
    const SourceFile face{"src/widgets/a.h", "#include <QWidget>\n"};
    EXPECT_EQ(includesBeyondQtCore({engine, face}, isCore, {}),
              (std::vector<Finding>{{"src/core/a.h", 3, "QColor is not of Qt Core"}}));
    EXPECT_TRUE(includesBeyondQtCore({engine}, isCore, {"src/core/a.h QColor"}).empty());
}

TEST(QtModules, QtsOwnFoldersTellTheModule) {
    EXPECT_TRUE(isCoreHeader("QString"));
    EXPECT_TRUE(isCoreHeader("QtCore/QString"));
    EXPECT_FALSE(isCoreHeader("QColor"));
    EXPECT_FALSE(isCoreHeader("QWidget"));
}

TEST(FileLength, OnlyLinesBeyondTheBoundCount) {
    EXPECT_TRUE(filesLongerThan(3, {{"a.cpp", "1\n2\n3\n"}}).empty());
    EXPECT_EQ(filesLongerThan(3, {{"a.cpp", "1\n2\n3\n4\n"}}).size(), 1u);
}

TEST(GreekTexts, ATextIsFoundAndACommentIsNot) {
    const std::string code =
        "// \"σχόλιο\"\nauto a = u'Σ'; /* \"ένα\nδύο\" */\nauto b = QStringLiteral(\"Άθροισμα\");\n";
    const std::vector<Finding> findings = greekTextsOutsideTexts({{"src/core/a.cpp", code}});
    EXPECT_EQ(findings, (std::vector<Finding>{{"src/core/a.cpp", 4, "\"Άθροισμα\" belongs in base/texts/"}}));
}

TEST(GreekTexts, RawTextsAndEscapedQuotationMarksAreUnderstood) {
    EXPECT_EQ(greekTextsOutsideTexts({{"src/a/a.cpp", "R\"x(ab\" ὅ)x\""}}).size(), 1u);
    EXPECT_EQ(greekTextsOutsideTexts({{"src/a/a.cpp", "f(\"a\\\"β\")"}}).size(), 1u);
    EXPECT_TRUE(
        greekTextsOutsideTexts({{"src/a/a.cpp", "f(\"a\\\\\"); // β\nint n = 1'000;\nf(\"\"); // \"β\""}})
            .empty());
}

TEST(GreekTexts, TheTextsThemselvesTestsAndProgramsAreFree) {
    EXPECT_TRUE(greekTextsOutsideTexts({{"src/base/texts/rows.h", "\"Λάθος\""}}).empty());
    EXPECT_TRUE(greekTextsOutsideTexts({{"src/base/texts/dialogs.h", "\"Άκυρο\""}}).empty());
    EXPECT_TRUE(greekTextsOutsideTexts({{"apps/zkpreport/a.cpp", "\"Λάθος\""}}).empty());
}

TEST(RecompiledSources, ASourceNamedInATestsBuildFileIsFound) {
    const std::string path = "tests/a/CMakeLists.txt";
    EXPECT_TRUE(
        recompiledSources({{path, "zkp_test(a_tests SOURCES a_test.cpp ../helper.cpp LINKS zkp_base)\n"}})
            .empty());
    EXPECT_EQ(
        recompiledSources({{path, "zkp_test(a_tests SOURCES\n  ../../src/base/text.cpp)\n"}}),
        (std::vector<Finding>{{path, 2, "compiles a library's source again:   ../../src/base/text.cpp)"}}));
    EXPECT_EQ(recompiledSources({{path, "${PROJECT_SOURCE_DIR}/apps/zkpreport/main.cpp\n"}}).size(), 1u);
    EXPECT_EQ(recompiledSources({{"tests/a/a_test.cpp", "#include \"base/text.cpp\"\n"}}).size(), 1u);
}
