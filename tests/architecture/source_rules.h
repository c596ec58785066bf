#pragma once

#include "source_tree.h"

#include <cstddef>

namespace zkp::architecture {

/// Files with more lines than `most`.
std::vector<Finding> filesLongerThan(std::size_t most, const std::vector<SourceFile>& files);

/// Greek text between quotation marks outside base/texts/, in files below src/.
/// Comments and single characters may be Greek.
std::vector<Finding> greekTextsOutsideTexts(const std::vector<SourceFile>& files);

/// Lines of build files (CMakeLists.txt, *.cmake) and test sources that compile sources of src/, apps/,
/// designer/ or demo/ a second time instead of linking the libraries.
std::vector<Finding> recompiledSources(const std::vector<SourceFile>& files);

} // namespace zkp::architecture
