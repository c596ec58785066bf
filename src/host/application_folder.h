#pragma once

#include <QString>

namespace zkp {

/// The folder of the application, where the folders of older template files stand: the running program's
/// own, or the one that was set. One for the process.
QString applicationFolder();
/// An empty text goes back to the program's own.
void setApplicationFolder(const QString& folder);

} // namespace zkp
