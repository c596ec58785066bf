#pragma once

#include "ado/command.h"
#include "ado/field.h"
#include "ado/recordset.h"
#include "script/script_object.h"

#include <QVariantList>

namespace zkp::script {

class Bridge;

/// `new Connection()`.
class ConnectionObject : public ScriptObject {
    Q_OBJECT
    Q_PROPERTY(int State READ State)
    Q_PROPERTY(QString ConnectionString READ ConnectionString WRITE setConnectionString)
    Q_PROPERTY(int CommandTimeout READ CommandTimeout WRITE setCommandTimeout)
    Q_PROPERTY(int Mode READ Mode WRITE setMode)
    Q_PROPERTY(QString LastStatementSent READ LastStatementSent)

public:
    explicit ConnectionObject(ado::ConnectionPtr connection)
        : connection_(std::move(connection)) {}
    /// The object for a connection of the engine; null for null.
    static ScriptObjectPtr of(Bridge& bridge, const ado::ConnectionPtr& connection);

    QString className() const override { return QStringLiteral("Connection"); }
    QVariant engineValue() const override { return QVariant::fromValue(connection_); }

    int State() const { return connection_->State(); }
    QString ConnectionString() const { return connection_->ConnectionString(); }
    void setConnectionString(const QString& text) { connection_->setConnectionString(text); }
    int CommandTimeout() const { return connection_->CommandTimeout(); }
    void setCommandTimeout(int seconds) { connection_->setCommandTimeout(seconds); }
    int Mode() const { return connection_->Mode(); }
    void setMode(int mode) { connection_->setMode(mode); }
    QString LastStatementSent() const { return connection_->LastStatementSent(); }

    Q_INVOKABLE void Open(const QString& connectionString = {}) { connection_->Open(connectionString); }
    Q_INVOKABLE void Close() { connection_->Close(); }
    Q_INVOKABLE zkp::ado::RecordsetPtr Execute(const QString& statement) {
        return connection_->Execute(statement);
    }
    Q_INVOKABLE void BeginTrans() { connection_->BeginTrans(); }
    Q_INVOKABLE void CommitTrans() { connection_->CommitTrans(); }
    Q_INVOKABLE void RollbackTrans() { connection_->RollbackTrans(); }
    Q_INVOKABLE zkp::ado::RecordsetPtr OpenSchema(int schema, const QVariantList& restrictions = {}) {
        return connection_->OpenSchema(schema, restrictions);
    }

private:
    ado::ConnectionPtr connection_;
};

/// `new Command()`.
class CommandObject : public ScriptObject {
    Q_OBJECT
    Q_PROPERTY(QString CommandText READ CommandText WRITE setCommandText)
    Q_PROPERTY(zkp::ado::ConnectionPtr ActiveConnection READ ActiveConnection WRITE setActiveConnection)

public:
    explicit CommandObject(ado::CommandPtr command)
        : command_(std::move(command)) {}
    static ScriptObjectPtr of(Bridge& bridge, const ado::CommandPtr& command);

    QString className() const override { return QStringLiteral("Command"); }
    QVariant engineValue() const override { return QVariant::fromValue(command_); }

    QString CommandText() const { return command_->CommandText; }
    void setCommandText(const QString& text) { command_->CommandText = text; }
    ado::ConnectionPtr ActiveConnection() const { return command_->ActiveConnection; }
    void setActiveConnection(const ado::ConnectionPtr& connection) {
        command_->ActiveConnection = connection;
    }

private:
    ado::CommandPtr command_;
};

/// One field of a recordset, at its current record.
class FieldObject : public ScriptObject {
    Q_OBJECT
    Q_PROPERTY(QString Name READ Name)
    Q_PROPERTY(int Type READ Type)
    Q_PROPERTY(int DefinedSize READ DefinedSize)
    Q_PROPERTY(QVariant Value READ Value WRITE setValue)

public:
    FieldObject(ado::RecordsetPtr recordset, int index)
        : recordset_(std::move(recordset))
        , index_(index) {}

    QString className() const override { return QStringLiteral("Field"); }

    QString Name() const { return field().Name(); }
    int Type() const { return field().Type(); }
    int DefinedSize() const { return field().DefinedSize(); }
    QVariant Value() const { return field().Value(); }
    void setValue(const QVariant& value) { field().setValue(value); }

private:
    ado::Field field() const { return recordset_->Fields().Item(index_); }

    ado::RecordsetPtr recordset_;
    int index_;
};

/// `rs.Fields`: by position from 0 or by name.
class FieldsObject : public ScriptObject {
    Q_OBJECT
    Q_PROPERTY(int Count READ Count)

public:
    explicit FieldsObject(ado::RecordsetPtr recordset)
        : recordset_(std::move(recordset)) {}

    QString className() const override { return QStringLiteral("Fields"); }
    bool isCallable() const override { return true; }

    int Count() const { return recordset_->Fields().Count(); }
    Q_INVOKABLE zkp::script::ScriptObjectPtr Item(const QVariant& nameOrIndex);

private:
    ado::RecordsetPtr recordset_;
    std::vector<std::weak_ptr<FieldObject>> fields_; ///< the same field is the same object
};

/// `new Recordset()`.
class RecordsetObject : public ScriptObject {
    Q_OBJECT
    Q_PROPERTY(int State READ State)
    Q_PROPERTY(bool BOF READ Bof)
    Q_PROPERTY(bool Eof READ Eof)
    Q_CLASSINFO("EOF", "Eof") // a C macro owns the name
    Q_PROPERTY(qlonglong RecordCount READ RecordCount)
    Q_PROPERTY(qlonglong AbsolutePosition READ AbsolutePosition WRITE setAbsolutePosition)
    Q_PROPERTY(QString Filter READ Filter WRITE setFilter)
    Q_PROPERTY(QString Sort READ Sort WRITE setSort)
    Q_PROPERTY(QString Source READ Source)
    Q_PROPERTY(zkp::ado::CommandPtr ActiveCommand READ ActiveCommand)
    Q_PROPERTY(zkp::ado::ConnectionPtr ActiveConnection READ ActiveConnection)
    Q_PROPERTY(zkp::script::ScriptObjectPtr Fields READ Fields)

public:
    explicit RecordsetObject(ado::RecordsetPtr recordset)
        : recordset_(std::move(recordset)) {}
    static ScriptObjectPtr of(Bridge& bridge, const ado::RecordsetPtr& recordset);

    QString className() const override { return QStringLiteral("Recordset"); }
    QVariant engineValue() const override { return QVariant::fromValue(recordset_); }

    int State() const { return recordset_->State(); }
    bool Bof() const { return recordset_->Bof(); }
    bool Eof() const { return recordset_->Eof(); }
    qlonglong RecordCount() const { return recordset_->RecordCount(); }
    qlonglong AbsolutePosition() const { return recordset_->AbsolutePosition(); }
    void setAbsolutePosition(qlonglong position) { recordset_->setAbsolutePosition(position); }
    QString Filter() const { return recordset_->Filter(); }
    void setFilter(const QString& condition) { recordset_->setFilter(condition); }
    QString Sort() const { return recordset_->Sort(); }
    void setSort(const QString& order) { recordset_->setSort(order); }
    QString Source() const { return recordset_->Source(); }
    ado::CommandPtr ActiveCommand() const { return recordset_->ActiveCommand(); }
    ado::ConnectionPtr ActiveConnection() const { return recordset_->ActiveConnection(); }
    ScriptObjectPtr Fields();

    /// A text with its connection, or a Command, which brings its own.
    Q_INVOKABLE void Open(const QVariant& source, const zkp::ado::ConnectionPtr& connection = {},
                          const QVariant& cursorType = {}, const QVariant& lockType = {},
                          const QVariant& options = {});
    Q_INVOKABLE void Close() { recordset_->Close(); }
    Q_INVOKABLE void MoveFirst() { recordset_->MoveFirst(); }
    Q_INVOKABLE void MoveNext() { recordset_->MoveNext(); }
    Q_INVOKABLE void MovePrevious() { recordset_->MovePrevious(); }
    Q_INVOKABLE void MoveLast() { recordset_->MoveLast(); }
    Q_INVOKABLE QVariant Collect(const QVariant& nameOrIndex);
    Q_INVOKABLE void setCollect(const QVariant& nameOrIndex, const QVariant& value);
    Q_INVOKABLE zkp::ado::RecordsetPtr Clone() { return recordset_->Clone(); }
    Q_INVOKABLE void Requery() { recordset_->Requery(); }
    Q_INVOKABLE zkp::ado::RecordsetPtr NextRecordset() { return recordset_->NextRecordset(); }
    Q_INVOKABLE void AddNew() { recordset_->AddNew(); }
    Q_INVOKABLE void Update() { recordset_->Update(); }
    Q_INVOKABLE void CancelUpdate() { recordset_->CancelUpdate(); }

private:
    ado::RecordsetPtr recordset_;
    std::weak_ptr<FieldsObject> fields_;
};

} // namespace zkp::script
