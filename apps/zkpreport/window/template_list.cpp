#include "window/template_list.h"

#include "ado/recordset.h"
#include "base/error.h"
#include "base/text.h"
#include "sql/query_exists.h"
#include "template/template_rows.h"
#include "window/texts.h"

#include <QFont>

#include <algorithm>

namespace zkp::app {

namespace {

const QString kNumbered = QStringLiteral("frms");
const QString kNamed = QStringLiteral("frms2");
/// Other numbers can't be reached by any name.
const QString kReachable = QStringLiteral(" and lstCode between 1 and 32767");

/// A damaged template is listed too: opening it tells what is wrong.
PropertyBag bagOf(const QVariant& bytes) {
    PropertyBag bag;
    try {
        bag.setContents(bytes.toByteArray());
    } catch (const Error&) {
    }
    return bag;
}

QString textOf(const PropertyBag& bag, QStringView key) {
    try {
        return bag.read<QString>(key, QString()).trimmed();
    } catch (const Error&) {
        return {};
    }
}

/// A template that was saved by number and read into another row gives itself the wrong name.
QString nameOf(const PropertyBag& bag, const QString& number) {
    const QString plain = kNumbered + number;
    const QString own = textOf(bag, u"FileName");
    return isSameTemplate(own, plain) ? own : plain;
}

void addTemplates(std::vector<TemplateEntry>& all, const ado::ConnectionPtr& connection,
                  const QString& table) {
    const auto rows =
        connection->Execute(QStringLiteral("select lstCode, ZKP_ from %1 where ZKP_ is not null%2")
                                .arg(table, table == kNumbered ? kReachable : QString()));
    for (; !rows->Eof(); rows->MoveNext()) {
        const PropertyBag bag = bagOf(rows->Collect(QStringLiteral("ZKP_")));
        const QString code = rows->Collect(QStringLiteral("lstCode")).toString();
        all.push_back({table == kNamed ? code : nameOf(bag, code), textOf(bag, u"Clmns")});
    }
}

} // namespace

std::optional<std::vector<TemplateEntry>> readTemplates(const ado::ConnectionPtr& connection) {
    std::vector<TemplateEntry> all;
    bool isThere = false;
    for (const QString& table : {kNamed, kNumbered})
        if (QueryExists(connection, table)) {
            isThere = true;
            addTemplates(all, connection, table);
        }
    if (!isThere)
        return std::nullopt;
    std::sort(all.begin(), all.end(), [](const TemplateEntry& a, const TemplateEntry& b) {
        return nameKey(a.name) < nameKey(b.name);
    });
    return all;
}

PropertyBag readTemplate(const ado::ConnectionPtr& connection, const QString& name) {
    const QVariant bytes = TemplateRows(connection).read(placeToOpen(name));
    if (!bytes.isValid() || bytes.isNull())
        throw Error(kErrNoCurrentRecord, texts::templateGone());
    PropertyBag bag;
    bag.setContents(bytes.toByteArray());
    return bag;
}

bool isSameTemplate(const QString& a, const QString& b) {
    try {
        const TemplatePlace one = placeToOpen(a);
        const TemplatePlace other = placeToOpen(b);
        return one.number || other.number ? one.number == other.number : sameName(one.name, other.name);
    } catch (const Error&) {
        return false;
    }
}

void TemplateListModel::setTemplates(std::vector<TemplateEntry> templates) {
    beginResetModel();
    templates_ = std::move(templates);
    endResetModel();
}

void TemplateListModel::setCurrent(const QString& name) {
    current_ = name;
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0), index(rowCount() - 1), {Qt::FontRole});
}

int TemplateListModel::find(const QString& name) const {
    for (int row = 0; row < rowCount(); ++row)
        if (isSameTemplate(entry(row).name, name))
            return row;
    return -1;
}

int TemplateListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(templates_.size());
}

QVariant TemplateListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    const TemplateEntry& shown = entry(index.row());
    if (role == Qt::DisplayRole)
        return shown.name;
    if (role == Qt::ToolTipRole)
        return shown.tip;
    if (role == Qt::FontRole && !current_.isEmpty() && isSameTemplate(shown.name, current_)) {
        QFont font;
        font.setBold(true);
        return font;
    }
    return {};
}

} // namespace zkp::app
