#include "ado/records/filter_match.h"

#include "ado/records/text_compare.h"

#include <algorithm>

namespace zkp::ado {

namespace {

using store::Column;
using store::ValueKind;

template <class T>
int order(const T& a, const T& b) {
    return a < b ? -1 : a == b ? 0 : 1;
}

/// Whether a comparison holds for values that stand in this order (-1, 0, 1).
bool holds(Comparison comparison, int order) {
    switch (comparison) {
    case Comparison::Equal:
        return order == 0;
    case Comparison::NotEqual:
        return order != 0;
    case Comparison::Less:
        return order < 0;
    case Comparison::Greater:
        return order > 0;
    case Comparison::LessOrEqual:
        return order <= 0;
    case Comparison::GreaterOrEqual:
        return order >= 0;
    }
    return false;
}

class CompareMatcher final : public FilterMatcher {
public:
    CompareMatcher(const Condition& condition, std::shared_ptr<const Column> column)
        : column_(std::move(column))
        , comparison_(condition.comparison)
        , literal_(condition.literal)
        , asInteger_(literal_.asIntegerSees())
        , asAmount_(literal_.asAmountSees())
        , answers_(column_->textCodes(), Answer::Unknown) {}

    bool matches(std::size_t row) override {
        switch (column_->kind(row)) {
        case ValueKind::Text:
            return matchesText(row);
        case ValueKind::Integer:
            return literal_.real &&
                   holds(comparison_, order(ExactNumber::fromInteger(column_->integer(row)), asInteger_));
        case ValueKind::Amount:
            return literal_.real &&
                   holds(comparison_, order(ExactNumber::fromAmount(column_->amount(row)), asAmount_));
        case ValueKind::Double:
            return literal_.real && holds(comparison_, order(column_->real(row), *literal_.real));
        case ValueKind::Boolean:
            return literal_.real &&
                   holds(comparison_, order(column_->integer(row) != 0, *literal_.real != 0));
        case ValueKind::Date:
            return literal_.milliseconds &&
                   holds(comparison_, order(column_->milliseconds(row), *literal_.milliseconds));
        case ValueKind::Null:
        case ValueKind::Binary:
            return false;
        }
        return false;
    }

private:
    enum class Answer : std::uint8_t { Unknown, No, Yes };

    bool compareText(std::string_view text) const {
        return holds(comparison_, compareTexts(text, literal_.key));
    }

    bool matchesText(std::size_t row) {
        const std::uint32_t code = column_->textCode(row);
        if (code == Column::kNoTextCode)
            return compareText(column_->bytes(row));
        Answer& answer = answers_[code];
        if (answer == Answer::Unknown)
            answer = compareText(column_->bytes(row)) ? Answer::Yes : Answer::No;
        return answer == Answer::Yes;
    }

    std::shared_ptr<const Column> column_;
    Comparison comparison_;
    FilterLiteral literal_;
    ExactNumber asInteger_;
    ExactNumber asAmount_;
    std::vector<Answer> answers_; ///< by text code
};

class JoinMatcher final : public FilterMatcher {
public:
    JoinMatcher(bool all, std::vector<std::unique_ptr<FilterMatcher>> parts)
        : all_(all)
        , parts_(std::move(parts)) {}

    bool matches(std::size_t row) override {
        const auto part = [row](const auto& matcher) { return matcher->matches(row); };
        return all_ ? std::all_of(parts_.begin(), parts_.end(), part)
                    : std::any_of(parts_.begin(), parts_.end(), part);
    }

private:
    bool all_;
    std::vector<std::unique_ptr<FilterMatcher>> parts_;
};

} // namespace

std::unique_ptr<FilterMatcher> FilterMatcher::compile(const Condition& condition, const store::Table& table) {
    if (condition.kind == Condition::Kind::Compare)
        return std::make_unique<CompareMatcher>(condition,
                                                table.columns[static_cast<std::size_t>(condition.field)]);
    std::vector<std::unique_ptr<FilterMatcher>> parts;
    for (const Condition& part : condition.parts)
        parts.push_back(compile(part, table));
    return std::make_unique<JoinMatcher>(condition.kind == Condition::Kind::And, std::move(parts));
}

} // namespace zkp::ado
