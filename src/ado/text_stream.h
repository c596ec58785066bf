#pragma once

#include "ado/connection.h"
#include "ado/provider.h"

#include <QHash>

namespace zkp::ado {

using Procedures = QHash<QString, Connection::Procedure>;

/// The results of a text of one or more statements. Each statement starts when its result is
/// asked for; a registered procedure is called in place of the provider.
class TextStream final : public ResultStream {
public:
    TextStream(std::weak_ptr<Provider> provider, Procedures procedures, std::vector<QString> statements,
               RunOptions options);
    std::optional<Result> next() override;
    bool isAtEnd() const override;

private:
    std::optional<Result> callRegistered(const QString& statement, dialect::Dialect dialect) const;

    std::weak_ptr<Provider> provider_;
    Procedures procedures_;
    std::vector<QString> statements_;
    RunOptions options_;
    std::size_t started_ = 0;
    std::unique_ptr<ResultStream> current_;
};

} // namespace zkp::ado
