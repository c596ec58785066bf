#pragma once

#include "ado/connection.h"
#include "bag/property_bag.h"

#include <QAbstractListModel>

#include <optional>
#include <vector>

namespace zkp::app {

/// A saved shape of the database.
struct TemplateEntry {
    QString name;       ///< that it is opened and saved under
    QString dictionary; ///< of the report that it is a shape of; empty where it can't be read
    QString tip = {};
};

/// The templates of both tables in the order of their names; nothing where the database has neither table.
/// One that is addressed by number goes by the name it gives itself, or by "frms" and its number. Failures
/// are Error.
std::optional<std::vector<TemplateEntry>> readTemplates(const ado::ConnectionPtr& connection);

/// What a template holds. Failures are Error, as are one that is not there any more and a damaged one.
PropertyBag readTemplate(const ado::ConnectionPtr& connection, const QString& name);

/// Whether two names mean one template. False for a name that can't be one.
bool isSameTemplate(const QString& a, const QString& b);

/// What the list of templates shows: names, the open one in bold.
class TemplateListModel : public QAbstractListModel {
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    void setTemplates(std::vector<TemplateEntry> templates);
    void setCurrent(const QString& name);
    const TemplateEntry& entry(int row) const { return templates_[static_cast<std::size_t>(row)]; }
    /// The row of that template; -1 when there is none.
    int find(const QString& name) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    std::vector<TemplateEntry> templates_;
    QString current_;
};

} // namespace zkp::app
