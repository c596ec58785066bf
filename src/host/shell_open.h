#pragma once

#include "base/error.h"
#include "host/host.h"

#include <QString>

namespace zkp {

/// Opens a file through the system's shell. The window mode and the two texts behind it only count
/// when parameters or a folder are given; otherwise the mode is 1. A file with ".EXE" in its name,
/// wherever it stands, has mode 0. False after a failure, which has been shown in the error box;
/// no error gets out.
bool ShellOpen(Host& host, const QString& file, int windowMode, const QString& parameters,
               const QString& directory, const QString& verb);

/// The error that a shell's answer of 0 to 32 stands for.
Error shellError(int answer);

} // namespace zkp
