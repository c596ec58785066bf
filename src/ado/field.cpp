#include "ado/field.h"

#include "ado/records/recordset_data.h"
#include "base/error.h"

namespace zkp::ado {

namespace {

Error notThere(const QString& which) {
    return Error(kErrItemNotFound,
                 QStringLiteral("Item cannot be found in the collection corresponding to the "
                                "requested name or ordinal: %1")
                     .arg(which));
}

} // namespace

QString Field::Name() const {
    return owner_->d->open().fields[static_cast<std::size_t>(index_)].name;
}
int Field::Type() const {
    return owner_->d->open().fields[static_cast<std::size_t>(index_)].type;
}
int Field::DefinedSize() const {
    return owner_->d->open().fields[static_cast<std::size_t>(index_)].definedSize;
}
QVariant Field::Value() const {
    return owner_->fieldValue(index_);
}
void Field::setValue(const QVariant& value) {
    owner_->setFieldValue(index_, value);
}

int FieldList::Count() const {
    return static_cast<int>(owner_->d->open().fields.size());
}

Field FieldList::Item(int index) const {
    if (index < 0 || index >= Count())
        throw notThere(QString::number(index));
    return Field(*owner_, index);
}

Field FieldList::Item(QStringView name) const {
    const int index = indexOf(name);
    if (index < 0)
        throw notThere(name.toString());
    return Field(*owner_, index);
}

int FieldList::indexOf(QStringView name) const {
    return owner_->d->open().indexOf(name);
}

} // namespace zkp::ado
