#pragma once

#include "grid_fixture.h"
#include "test_database.h"

#include "bag/property_bag.h"

#include "print_qt.h"

#include <QFile>
#include <QTemporaryDir>

namespace zkp::test {

/// A text constant with Greek in it.
/// The lines of a golden file, without its comments.
QStringList goldenLines(const char* name);

/// The bag's entries in the order of writing, one a line: key, type, value.
QStringList bagLines(const PropertyBag& bag);

/// One value of a control as a line of a golden file shows it. Names are those of properties, with the
/// indexes behind them in brackets, and `Columns(1).Caption`, `Columns.Count`, `lbltemplate`, `lblfilter`.
QString shownValue(ZkpGrid& grid, const QString& name);
void setShownValue(ZkpGrid& grid, const QString& name, const QString& shown);

/// Sets each value that a golden file names.
void applyGolden(ZkpGrid& grid, const char* name);
/// The lines of a golden file with the values that the control has.
QStringList linesLike(ZkpGrid& grid, const char* name);

inline PropertyBagPtr newBag() {
    return std::make_shared<PropertyBag>();
}

/// The shape of a control.
inline PropertyBagPtr shapeOf(ZkpGrid& grid) {
    PropertyBagPtr bag = newBag();
    grid.UserControl_WriteProperties(bag);
    return bag;
}

/// A control and a database with the template tables: `frms` has the rows 0, 7 and 12.
class TemplateTest : public GridTest {
protected:
    TemplateTest();
    ~TemplateTest() override;

    ado::RecordsetPtr open(const QString& statement) { return cn->Execute(statement); }
    QVariant one(const QString& statement) { return open(statement)->Fields().Item(0).Value(); }
    /// A control of its own that has read a template.
    std::unique_ptr<ZkpGrid> opened(const QString& name);
    /// Writes a file with the head of a byte array, or as it is.
    void writeFile(const QString& path, const QByteArray& bytes);
    static QByteArray variantOf(const QByteArray& bytes);

    QTemporaryDir dir;
    QString file = dir.filePath(QStringLiteral("templates.db"));
    TestDatabase database{file};
    ado::ConnectionPtr cn = database.connect();
};

} // namespace zkp::test
