#pragma once

#include <QString>

namespace zkp::app {

/// Why a file can't be shown, in words for the user; empty for one that looks like a SQLite database. An
/// empty file is one without tables.
QString whyNoDatabase(const QString& file);

} // namespace zkp::app
