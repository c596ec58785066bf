#pragma once

#include <QString>

namespace zkp {

/// The condition that a person typed, while `Filter` holds it: as it is, at the end of a filter that a host
/// put conditions of its own in front of, or in what the builders have made of either.
class TypedFilter {
public:
    void take(const QString& condition) {
        condition_ = condition;
        front_.clear();
        written_ = condition;
    }

    bool isIn(const QString& filter) const {
        return !condition_.isEmpty() && (filter == written_ || filter.endsWith(condition_));
    }

    /// A builder has written a filter in place of one that holds the condition.
    void overwrite(const QString& filter) { written_ = filter; }

    /// A filter that holds the condition, as it was before the builders wrote over it.
    QString begin(const QString& filter) {
        if (filter != written_)
            front_ = filter.chopped(condition_.size());
        return front_ + condition_;
    }

    /// The host's part of that filter.
    const QString& front() const { return front_; }
    const QString& condition() const { return condition_; }

private:
    QString condition_;
    QString front_;
    QString written_;
};

} // namespace zkp
