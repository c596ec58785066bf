#pragma once

#include "ado/connection.h"

#include <QAbstractListModel>

#include <optional>
#include <vector>

namespace zkp::app {

/// One report of the database: a row of its table `Reports`.
struct ReportEntry {
    QString source;       ///< the table or view that it reads
    QString dictionary;   ///< its `clmns`
    QString title;        ///< as the list shows it
    QString masterTable;  ///< blank: its statements are not composed at run time
    QString masterFilter; ///< the condition that always applies
};

/// The reports in the order of the table; nothing where the database has no such table. Columns that
/// the table lacks read as empty, a missing title as the source. Failures are Error.
std::optional<std::vector<ReportEntry>> readReports(const ado::ConnectionPtr& connection);

/// What the list of reports shows: titles, with the source as the tip.
class ReportListModel : public QAbstractListModel {
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    void setReports(std::vector<ReportEntry> reports);
    const ReportEntry& report(int row) const { return reports_[static_cast<std::size_t>(row)]; }
    /// The row of the report with that source or title; -1 when there is none.
    int find(const QString& name) const;
    /// The first row with that dictionary, `preferred` before the others; -1 when there is none.
    int findDictionary(const QString& dictionary, int preferred = -1) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    std::vector<ReportEntry> reports_;
};

} // namespace zkp::app
