#pragma once

#include "ado/connection.h"
#include "ado/recordset.h"
#include "template/template_name.h"

#include <QVariant>

namespace zkp {

/// The templates that a database holds: table `frms` by number, table `frms2` by name. Failures are those of
/// the database; a name with a quote is one, since names go into statements as they are.
class TemplateRows {
public:
    explicit TemplateRows(ado::ConnectionPtr connection)
        : connection_(std::move(connection)) {}

    /// `ZKP_`: the template's bytes, or null where there is none yet. A row that `frms` lacks is Error
    /// kErrNoCurrentRecord; one that `frms2` lacks is null.
    QVariant read(const TemplatePlace& place) const;
    /// Stores the bytes in the row, which `frms2` gets when it lacks it, in one transaction: whatever
    /// happens on the way, the row holds what it held or the new bytes whole. Within a transaction of the
    /// host's it becomes a part of that.
    void store(const TemplatePlace& place, const QVariant& bytes) const;

private:
    ado::RecordsetPtr open(const TemplatePlace& place, int cursorType) const;

    ado::ConnectionPtr connection_;
};

} // namespace zkp
