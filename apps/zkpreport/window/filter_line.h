#pragma once

#include <QLineEdit>

namespace zkp::app {

/// The line for a filter in dictionary keys. Enter applies what stands there; Escape brings back what is
/// in force.
class FilterLine : public QLineEdit {
    Q_OBJECT

public:
    explicit FilterLine(QWidget* parent = nullptr);

    /// The filter that the rows on screen come from.
    const QString& inForce() const { return inForce_; }
    /// Puts a filter into the line and in force.
    void setInForce(const QString& filter);

Q_SIGNALS:
    void applied(const QString& filter);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QString inForce_;
};

} // namespace zkp::app
