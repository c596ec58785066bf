#include "window/report_list.h"

#include "ado/recordset.h"
#include "base/text.h"
#include "sql/query_exists.h"
#include "window/table_text.h"

namespace zkp::app {

std::optional<std::vector<ReportEntry>> readReports(const ado::ConnectionPtr& connection) {
    const QString table = QStringLiteral("Reports");
    if (!QueryExists(connection, table))
        return std::nullopt;
    std::vector<ReportEntry> reports;
    const auto rows = connection->Execute(QStringLiteral("SELECT * FROM ") + table);
    for (; !rows->Eof(); rows->MoveNext()) {
        ReportEntry report;
        report.source = columnText(*rows, u"RecSource");
        report.dictionary = columnText(*rows, u"Dictionary");
        report.title = columnText(*rows, u"Title");
        report.masterTable = columnText(*rows, u"MasterTable");
        report.masterFilter = columnText(*rows, u"MasterFilter");
        if (report.source.isEmpty())
            continue;
        if (report.title.isEmpty())
            report.title = report.source;
        reports.push_back(std::move(report));
    }
    return reports;
}

void ReportListModel::setReports(std::vector<ReportEntry> reports) {
    beginResetModel();
    reports_ = std::move(reports);
    endResetModel();
}

int ReportListModel::find(const QString& name) const {
    for (int row = 0; row < rowCount(); ++row)
        if (sameName(report(row).source, name) || sameName(report(row).title, name))
            return row;
    return -1;
}

int ReportListModel::findDictionary(const QString& dictionary, int preferred) const {
    const auto has = [&](int row) {
        return !isBlank(dictionary) && sameName(report(row).dictionary, dictionary);
    };
    if (preferred >= 0 && has(preferred))
        return preferred;
    for (int row = 0; row < rowCount(); ++row)
        if (has(row))
            return row;
    return -1;
}

int ReportListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(reports_.size());
}

QVariant ReportListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    if (role == Qt::DisplayRole)
        return report(index.row()).title;
    if (role == Qt::ToolTipRole)
        return report(index.row()).source;
    return {};
}

} // namespace zkp::app
