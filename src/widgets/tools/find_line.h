#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;

namespace zkp {

/// The line at the bottom in which a text to look for is typed. Enter, F3 and the arrows go to the next
/// hit, with Shift to the one before; Escape closes it.
class FindLine : public QWidget {
    Q_OBJECT

public:
    explicit FindLine(QWidget* parent = nullptr);

    QString text() const;
    /// Takes the keys, with its text selected.
    void takeFocus();
    /// What has come of the search: a word for the user.
    void setNote(const QString& note);

Q_SIGNALS:
    void typed(const QString& text);
    void nextWanted();
    void previousWanted();
    void closeWanted();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QLineEdit* edit_;
    QLabel* note_;
};

} // namespace zkp
