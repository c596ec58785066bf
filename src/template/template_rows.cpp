#include "template/template_rows.h"

#include "base/error.h"

#include <QDateTime>

namespace zkp {

namespace {

const QString kBytes = QStringLiteral("ZKP_");

/// Ends in a rollback unless it was committed. Where the host has a transaction open already, that one is
/// left to the host.
class Transaction {
public:
    explicit Transaction(const ado::ConnectionPtr& connection)
        : connection_(connection) {
        try {
            connection_->BeginTrans();
            open_ = true;
        } catch (const Error&) {
            // A connection that is no longer good for anything tells so with the first statement.
        }
    }
    ~Transaction() {
        if (!open_)
            return;
        try {
            connection_->RollbackTrans();
        } catch (...) {
            // The database has rolled it back itself.
        }
    }
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    void commit() {
        if (open_)
            connection_->CommitTrans();
        open_ = false;
    }

private:
    ado::ConnectionPtr connection_;
    bool open_ = false;
};

QString statementFor(const TemplatePlace& place) {
    if (place.number)
        return QStringLiteral("select * from frms where lstCode = ") + QString::number(*place.number);
    return QStringLiteral("select * from frms2 where lstCode = '") + place.name + u'\'';
}

} // namespace

/// Some names with quotes make a statement that a database can take, and that finds another row.
ado::RecordsetPtr TemplateRows::open(const TemplatePlace& place, int cursorType) const {
    if (!place.number && place.name.contains(u'\''))
        throw Error(kErrBadStatement,
                    QStringLiteral("A template's name can't have a quote: %1").arg(place.name));
    auto rows = std::make_shared<ado::Recordset>();
    rows->Open(statementFor(place), connection_, cursorType, ado::adLockOptimistic, -1);
    return rows;
}

QVariant TemplateRows::read(const TemplatePlace& place) const {
    const ado::RecordsetPtr rows = open(place, ado::adOpenStatic);
    if (!place.number && rows->Eof())
        return {};
    return rows->Collect(kBytes);
}

void TemplateRows::store(const TemplatePlace& place, const QVariant& bytes) const {
    if (!connection_)
        throw Error(kErrNoConnection, QStringLiteral("There is no connection to store a template through."));
    Transaction transaction(connection_);
    const ado::RecordsetPtr rows = open(place, ado::adOpenDynamic);
    if (!place.number) {
        if (rows->Eof())
            rows->AddNew();
        rows->setCollect(QStringLiteral("lstCode"), place.name);
        rows->setCollect(QStringLiteral("datein"), QDateTime::currentDateTime());
    }
    rows->setCollect(kBytes, bytes);
    rows->Update();
    transaction.commit();
}

} // namespace zkp
