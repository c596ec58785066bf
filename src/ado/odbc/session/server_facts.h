#pragma once

#include "ado/dialect/catalogue.h"

namespace zkp::ado::odbc {

class Session;

/// Settings of a new session that the dialects rest on.
void prepareServer(Session& session);
/// From the next transaction on; a server that can't be told so is left to its own rights.
void allowWriting(Session& session, bool writable);
/// What the dialect needs of the server's catalogue; empty where names are found in any case.
dialect::Catalogue readCatalogue(Session& session);
/// A collation that takes no notice of case but of accents and of blanks at the end; empty where the
/// server has none to offer. Error kErrDatabase where one can't be made: reports would lose records, and
/// nobody be told.
QString chooseCollation(Session& session);

/// Whether PostgreSQL's database has the sigma of a word's end among its signs: a statement with one is an
/// error elsewhere.
bool postgresHasSigma(Session& session);

} // namespace zkp::ado::odbc
