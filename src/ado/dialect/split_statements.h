#pragma once

#include "ado/dialect/dialect.h"

#include <QString>

#include <vector>

namespace zkp::ado::dialect {

/// The statements of a text, cut as the server of the dialect cuts it: at each ";" outside constants, names,
/// comments and the body of a trigger or routine. Pieces of nothing but blanks and comments are left out.
std::vector<QString> splitStatements(const QString& text, Dialect dialect);

} // namespace zkp::ado::dialect
