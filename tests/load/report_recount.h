#pragma once

#include "random_report.h"
#include "report_case.h"

namespace zkp::reportcases {

/// How the finished grid of a report must look. Figures are read from the texts that the grid shows,
/// in whole cents; no step of the load is repeated.
class ReportRecount {
public:
    explicit ReportRecount(const RandomReport& report)
        : report_(report)
        , groups_(report.shown()) {}

    /// The rows of records, in order.
    TextRows records() const;
    /// Subtotal rows and the totals row put into the rows of records that a grid shows.
    TextRows rebuilt(const TextRows& records) const;

private:
    using Column = RandomReport::Column;

    struct OpenGroups {
        QStringList keys;
        std::vector<std::size_t> starts; ///< the first record of each level's group
        std::vector<std::size_t> within; ///< records that did not break a group
    };

    QString cellOf(const RandomReport::Record& record, const Column& column) const;
    /// How many levels break: in the totals form each record is a group of the innermost factor.
    int levels() const { return report_.totalForm ? report_.factors - 1 : report_.factors; }
    QStringList keysOf(const TextRow& record) const;
    void close(int outermost, const OpenGroups& open, const TextRows& records, std::size_t end,
               TextRows& rows) const;
    TextRow subtotal(int level, const OpenGroups& open, const TextRows& records, std::size_t end) const;
    TextRow innermostRow(const OpenGroups& open, const TextRows& records) const;
    TextRow totals(const TextRows& records) const;
    QString figure(std::int64_t cents, const Column& column) const;
    QString share(const QStringList& keys, int level, const QString& field) const;
    std::int64_t sumOf(const QStringList& keys, int count, const QString& field) const;

    const RandomReport& report_;
    std::vector<RandomReport::Record> groups_;
};

} // namespace zkp::reportcases
