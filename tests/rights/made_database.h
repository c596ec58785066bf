#pragma once

#include "demo/sqlite_reader.h"

#include <QString>

#include <string>
#include <vector>

namespace zkp::rights {

/// A made database of 2,000 policies, the same for all tests of the program: for reading only.
const QString& madeFile();
/// The same database as SQLite itself shows it.
const demo::test::Reader& madeDatabase();
/// A copy at the given place, for a test to spoil.
void copyMadeDatabase(const QString& file);

/// One identity that may look at reports.
struct User {
    std::string id;
    std::string level;
    std::string identity; ///< at that level
};

/// All users of the database, in the order of their levels.
const std::vector<User>& users();

/// What a user may see, written by hand over the identity columns: "1 = 1" for a level of no meaning.
std::string rightsOf(const User& user);

} // namespace zkp::rights
