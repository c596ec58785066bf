#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

namespace zkp {

// Failures of files, under the numbers that hosts know.
constexpr std::uint32_t kErrFileNotFound = 53;
constexpr std::uint32_t kErrFileExists = 58;
constexpr std::uint32_t kErrFileAccess = 75;

// Folders and paths are texts with "\" between their parts, as they are stored and shown everywhere; only
// the calls into the file system turn them into the platform's own form.

/// The names of the template files in a folder ("*.Zkp", in whatever case), in alphabetical order.
QStringList templateFileNames(const QString& folder);

/// True for a file; False for a folder.
bool isTemplateFile(const QString& folder, const QString& name);

/// The bytes that a template file holds: one stored variant, a byte array. Nothing for an empty variant and
/// for an empty file. Error kErrFileNotFound, kErrFileAccess, or kErrInvalidFormat for anything else in it.
std::optional<QByteArray> readTemplateFile(const QString& folder, const QString& name);

/// Puts "OLD_" before the name of a file that has been taken into the database. Error kErrFileExists when a
/// file of that name stands there already.
void retireTemplateFile(const QString& folder, const QString& name);

} // namespace zkp
