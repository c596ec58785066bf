#pragma once

#include <QComboBox>

namespace zkp::app {

/// A list that would like a width of its own, and makes do with a few letters where there is no room.
class ShrinkingList : public QComboBox {
public:
    explicit ShrinkingList(int width)
        : width_(width) {
        setMinimumContentsLength(kFewestLetters);
        setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
        setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
        setMaximumWidth(width);
    }

    QSize sizeHint() const override { return {width_, QComboBox::sizeHint().height()}; }

private:
    static constexpr int kFewestLetters = 6;
    int width_;
};

} // namespace zkp::app
