#pragma once

#include <QLabel>

#include <functional>

namespace zkp::app {

/// The line under the choices that tells what came of them. It has its room when it is empty too, so that
/// nothing moves under the user's pointer when words come or go.
class MessageStrip : public QLabel {
    Q_OBJECT

public:
    explicit MessageStrip(QWidget* parent = nullptr);
    ~MessageStrip() override;

    /// Empty for none.
    void tell(const QString& text);

    /// Whether the words go with the user's next key or click; those that stand in a report's place stay.
    std::function<bool()> mayGo = [] { return true; };

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isUserAction(QObject* watched, const QEvent& event) const;
};

} // namespace zkp::app
