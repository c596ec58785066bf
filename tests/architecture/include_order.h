#pragma once

#include "source_tree.h"

#include <functional>

namespace zkp::architecture {

/// Includes that break the order of the folders, of files below src/, apps/, designer/ and demo/:
///
///     base ◄ store ◄ ado, surface, menu, bag, host ◄ core ◄ sql ◄ load ◄ template, interaction, output, chart
///          ◄ grid ◄ drawing ◄ widgets, script ◄ apps, designer
///
/// Folders side by side don't know each other. The demonstration data stand beside the engine and
/// use base alone.
std::vector<Finding> includesAgainstTheOrder(const std::vector<SourceFile>& files);

/// Qt headers that a file below widgets/ includes though they are not of Qt Core. `isCore` tells of a
/// header's name; `allowed` holds "path header" for those that a part can't do without.
std::vector<Finding> includesBeyondQtCore(const std::vector<SourceFile>& files,
                                          const std::function<bool(const std::string&)>& isCore,
                                          const std::vector<std::string>& allowed);

} // namespace zkp::architecture
