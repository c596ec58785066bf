#pragma once

#include "ado/connection.h"

#include <QStringList>

#include <vector>

namespace zkp::app {

/// A field that a dictionary offers.
struct DictionaryField {
    QString key;
    QString caption;
    QString table;    ///< the table it comes from; empty for a calculated one that names none
    double width = 0; ///< twips
    int alignment = 0;
    bool isGroup = false;
    bool isTotal = false;
    // The aggregates that it allows.
    bool hasSum = false;
    bool hasAverage = false;
    bool hasMinimum = false;
    bool hasMaximum = false;
    bool isCount = false; ///< a whole number, not an amount

    /// An amount that a report adds up.
    bool isAmount() const { return isTotal && hasSum && !isCount; }
};

/// The fields that a dictionary offers, in the order of its table: the visible ones, and of them only
/// those for everybody when a user with restricted rights is looking. Failures are Error.
std::vector<DictionaryField> readFields(const ado::ConnectionPtr& connection, const QString& dictionary,
                                        bool isRestricted);

/// Marks the fields that are whole numbers in a report's source. A source that can't be asked leaves
/// all unmarked; its load will tell why.
void markCounts(std::vector<DictionaryField>& fields, const ado::ConnectionPtr& connection,
                const QString& source);

/// The field with that key; null when there is none.
const DictionaryField* findField(const std::vector<DictionaryField>& fields, const QString& key);

/// How many group factors a report may have.
constexpr int kMostFactors = 4;
/// Of the keys of group factors those that the fields have, as the dictionary spells them, each once.
QStringList offeredFactors(const std::vector<DictionaryField>& fields, const QStringList& factors);

} // namespace zkp::app
