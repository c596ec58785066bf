#pragma once

#include <QStringView>

namespace zkp {

/// Whether a word can only belong to a question to another table: SELECT, UNION, EXISTS and the like, in
/// any case, also right behind a number. IN is one unless a bracket follows.
bool asksATable(QStringView word, QStringView behind);

/// Whether a quote right behind the word opens a constant that ends in another way (q'[...]').
bool opensForeignQuote(QStringView word);

} // namespace zkp
