#pragma once

#include "ado/command.h"
#include "ado/field.h"
#include "store/table.h"

#include <QString>
#include <QVariant>

#include <cstdint>
#include <memory>

namespace zkp::ado {

struct Result;

/// The fields of an open recordset, by position from 0 or by name without regard to case.
class FieldList {
public:
    explicit FieldList(Recordset& owner)
        : owner_(&owner) {}
    int Count() const;
    /// Error 3265 when there is no such field.
    Field Item(int index) const;
    Field Item(QStringView name) const;
    Field operator[](int index) const { return Item(index); }
    Field operator[](QStringView name) const { return Item(name); }
    /// -1 when there is none.
    int indexOf(QStringView name) const;

private:
    Recordset* owner_;
};

/// A client-side static cursor over immutable typed columns. Clones, filters and sorts are row
/// indexes over the same columns. The records outlast their connection (see Connection::Close). Made with
/// std::make_shared. The published `BOF` and `EOF` are Bof() and Eof() here, since C headers own the name
/// EOF.
class Recordset : public std::enable_shared_from_this<Recordset> {
public:
    Recordset();
    ~Recordset();

    /// Runs a statement and fetches every record. Error 3705 when open already, 3709 without an open
    /// connection, kErrBadStatement for a text that the database cannot take (the empty one too).
    void Open(const QString& source, const ConnectionPtr& connection, int cursorType = -1, int lockType = -1,
              int options = -1);
    /// Runs a command on its own connection; the further results are reached by NextRecordset.
    void Open(const CommandPtr& command, int cursorType = -1, int lockType = -1, int options = -1);
    void Close();
    int State() const;

    bool Bof() const;
    bool Eof() const;
    void MoveFirst();
    void MoveNext();
    void MovePrevious();
    void MoveLast();
    std::int64_t RecordCount() const;
    /// From 1; -2 at BOF (adPosBOF), -3 at EOF (adPosEOF).
    std::int64_t AbsolutePosition() const;
    void setAbsolutePosition(std::int64_t position);

    FieldList Fields();
    QVariant Collect(const QString& field);
    void setCollect(const QString& field, const QVariant& value);

    /// Comparisons of fields with numbers, texts in apostrophes or Convert(Datetime,'mm/dd/yyyy',102),
    /// joined by and, or and brackets; empty (or 0, the constant for none) shows all records. Goes to the
    /// first record left.
    QString Filter() const;
    void setFilter(const QString& condition);
    /// Field names with ASC or DESC, joined by ","; empty restores the fetched order.
    QString Sort() const;
    void setSort(const QString& order);

    /// Another cursor over the same records, unfiltered, on the first of them.
    RecordsetPtr Clone();
    void Requery();
    /// The next result of a command; this recordset then closes. Nothing after the last result, which
    /// stays open.
    RecordsetPtr NextRecordset();

    void AddNew();
    void Update();
    void CancelUpdate();

    QString Source() const;
    CommandPtr ActiveCommand() const;
    ConnectionPtr ActiveConnection() const;

    // What the load reads instead of one Field at a time.

    /// The shared columns; field i is column i.
    const store::Table& table() const;
    /// The column row that the record at a position (from 0) of this cursor stands in.
    std::uint32_t tableRow(std::int64_t position) const;
    /// The column row of the current record; Error 3021 at BOF or EOF.
    std::uint32_t currentTableRow() const;
    /// Grows whenever the set or the order of records changes (Open, Close, Filter, Sort, Requery, Update).
    std::uint64_t revision() const;

    /// How many rows filters have looked at one by one, over all clones; for tests of the index.
    std::uint64_t rowsWalked() const;

private:
    friend class Field;
    friend class FieldList;
    friend class Connection;
    struct Data;

    /// Becomes the open recordset of a result, or a closed one for a result without fields.
    void adopt(Result result, const ConnectionPtr& connection);
    void openText(const QString& text, const ConnectionPtr& connection, bool several);
    void arrange();
    void moveTo(std::int64_t position);
    QVariant fieldValue(int field) const;
    void setFieldValue(int field, const QVariant& value);
    void setPending(const QString& name, const QVariant& value);
    void openEdit(bool isNew);
    void insertRecord();
    void updateRecord();

    std::unique_ptr<Data> d;
};

} // namespace zkp::ado
