#pragma once

#include <QString>
#include <QVariant>

namespace zkp::ado {

class Recordset;

/// One field of a recordset, at its current record. A light handle: valid while the recordset is open.
class Field {
public:
    Field(Recordset& owner, int index) : owner_(&owner), index_(index) {}

    QString Name() const;
    /// DataTypeEnum.
    int Type() const;
    int DefinedSize() const;
    /// The current record's value; an invalid QVariant is null. Error 3021 at BOF or EOF.
    QVariant Value() const;
    void setValue(const QVariant& value);
    /// Position in the recordset, from 0.
    int index() const { return index_; }

private:
    Recordset* owner_;
    int index_;
};

} // namespace zkp::ado
