#include "script/ado_objects.h"

#include "base/error.h"
#include "script/bridge.h"

namespace zkp::script {

namespace {

ado::Field fieldOf(ado::Recordset& recordset, const QVariant& nameOrIndex) {
    if (nameOrIndex.typeId() == QMetaType::QString)
        return recordset.Fields().Item(nameOrIndex.toString());
    if (nameOrIndex.typeId() == QMetaType::LongLong)
        return recordset.Fields().Item(nameOrIndex.toInt());
    throw Error(kErrTypeMismatch, QStringLiteral("a field is named by a text or a whole number"));
}

/// A number of the ADO enumerations that a caller may leave out.
int choice(const QVariant& value, const char* what) {
    if (!value.isValid())
        return -1;
    if (value.typeId() != QMetaType::LongLong)
        throw Error(kErrTypeMismatch, QStringLiteral("%1 must be a number").arg(QLatin1String(what)));
    return value.toInt();
}

} // namespace

ScriptObjectPtr ConnectionObject::of(Bridge& bridge, const ado::ConnectionPtr& connection) {
    return connection ? bridge.shared<ConnectionObject>(connection.get(), nullptr, connection) : nullptr;
}

ScriptObjectPtr CommandObject::of(Bridge& bridge, const ado::CommandPtr& command) {
    return command ? bridge.shared<CommandObject>(command.get(), nullptr, command) : nullptr;
}

ScriptObjectPtr RecordsetObject::of(Bridge& bridge, const ado::RecordsetPtr& recordset) {
    return recordset ? bridge.shared<RecordsetObject>(recordset.get(), nullptr, recordset) : nullptr;
}

ScriptObjectPtr FieldsObject::Item(const QVariant& nameOrIndex) {
    const int index = fieldOf(*recordset_, nameOrIndex).index();
    const auto place = static_cast<std::size_t>(index);
    if (fields_.size() <= place)
        fields_.resize(place + 1);
    if (const auto known = fields_[place].lock())
        return known;
    const auto made = std::make_shared<FieldObject>(recordset_, index);
    fields_[place] = made;
    return made;
}

ScriptObjectPtr RecordsetObject::Fields() {
    if (const auto known = fields_.lock())
        return known;
    const auto made = std::make_shared<FieldsObject>(recordset_);
    fields_ = made;
    return made;
}

void RecordsetObject::Open(const QVariant& source, const ado::ConnectionPtr& connection,
                           const QVariant& cursorType, const QVariant& lockType, const QVariant& options) {
    const int cursor = choice(cursorType, "the cursor type");
    const int lock = choice(lockType, "the lock type");
    const int option = choice(options, "the options");
    if (source.metaType() == QMetaType::fromType<ado::CommandPtr>()) {
        const auto command = source.value<ado::CommandPtr>();
        if (connection)
            command->ActiveConnection = connection;
        recordset_->Open(command, cursor, lock, option);
    } else if (source.typeId() == QMetaType::QString) {
        recordset_->Open(source.toString(), connection, cursor, lock, option);
    } else {
        throw Error(kErrTypeMismatch, QStringLiteral("a recordset is opened with a text or a Command"));
    }
}

QVariant RecordsetObject::Collect(const QVariant& nameOrIndex) {
    return fieldOf(*recordset_, nameOrIndex).Value();
}

void RecordsetObject::setCollect(const QVariant& nameOrIndex, const QVariant& value) {
    fieldOf(*recordset_, nameOrIndex).setValue(value);
}

} // namespace zkp::script
