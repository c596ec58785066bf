#pragma once

#include <QString>

#include <cstdint>
#include <exception>

namespace zkp {

/// Error numbers as hosts know them.
enum ErrorNumber : std::uint32_t {
    kErrInvalidCall = 5,             ///< an argument that the operation cannot work with
    kErrOverflow = 6,                ///< a number outside its type's range
    kErrSubscript = 9,               ///< an index outside its collection
    kErrTypeMismatch = 13,           ///< a value that cannot become the wanted type
    kErrInvalidNull = 94,            ///< a null where a text or number is needed
    kErrObjectNotSet = 91,           ///< an object that was never given
    kErrNoSuchMember = 438,          ///< a name that the object does not have
    kErrArgumentMissing = 449,       ///< a call without an argument that it needs
    kErrArgumentCount = 450,         ///< a call with too many arguments
    kErrInvalidArrayIndex = 381,     ///< a row or column outside the surface
    kErrInvalidRow = 30009,          ///< `Rows`, `Row` or a row argument outside the surface
    kErrInvalidColumn = 30010,       ///< `Cols`, `Col` or a column argument outside the surface
    kErrBadArgument = 3001,          ///< data access: an argument of the wrong kind or range
    kErrNoCurrentRecord = 3021,      ///< data access: at BOF or EOF
    kErrIllegalOperation = 3219,     ///< data access: not allowed in this state
    kErrNotSupported = 3251,         ///< data access: the provider cannot do it
    kErrItemNotFound = 3265,         ///< data access: a field that is not there
    kErrObjectClosed = 3704,         ///< data access: the object is closed
    kErrObjectOpen = 3705,           ///< data access: the object is already open
    kErrNoConnection = 3709,         ///< data access: no connection, or a closed one
    kErrBadStatement = 0x80040E14,   ///< a statement that the database cannot take
    kErrTimeout = 0x80040E31,        ///< a statement ended by `CommandTimeout`
    kErrDatabase = 0x80004005,       ///< any other failure of the database, in its own words
    kErrPropertyNotSet = 0x8004000A, ///< `refresh`: the source lacks a property
    kErrCommandNotSet = 0x80040014,  ///< `refresh`: the command was never given
};

/// The one exception of the system: what failed, as number, description and source.
class Error : public std::exception {
public:
    Error(std::uint32_t number, QString description, QString source = {})
        : number_(number)
        , description_(std::move(description))
        , source_(std::move(source))
        , utf8_(description_.toUtf8()) {}

    std::uint32_t number() const { return number_; }
    const QString& description() const { return description_; }
    const QString& source() const { return source_; }
    const char* what() const noexcept override { return utf8_.constData(); }

private:
    std::uint32_t number_;
    QString description_;
    QString source_;
    QByteArray utf8_;
};

} // namespace zkp
