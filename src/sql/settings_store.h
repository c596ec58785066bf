#pragma once

#include "ado/connection.h"

#include <QString>

namespace zkp {

/// The application's general settings: table `QRN_Main` of the report database, a text for each pair
/// of two small numbers. No operation shows a message or lets an error out.
class SettingsStore {
public:
    /// Works on whatever connection the variable holds at the time of a call, so it is referred to.
    explicit SettingsStore(const ado::ConnectionPtr& connection)
        : connection_(connection) {}
    explicit SettingsStore(ado::ConnectionPtr&&) = delete;

    /// The setting's text, as the result and in `description`. A pair that is not there reads as the
    /// four letters "NULL". A failure, a null in the table included, gives an empty result and leaves
    /// `description` alone.
    QString GETGeneral(int key, int subKey, QString& description);
    /// Stores a setting, over the one that is there or as a new row. False on failure.
    bool SETGeneral(int key, int subKey, const QString& description);

private:
    const ado::ConnectionPtr& connection_;
};

} // namespace zkp
