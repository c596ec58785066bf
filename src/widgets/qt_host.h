#pragma once

#include "host/whole_host.h"

#include <QPointer>
#include <QWidget>

namespace zkp {

/// The host with a screen: boxes and dialogs over a parent's window, modal to it; the pointer is the
/// application's. A dialog whose parent goes away while it is open counts as cancelled.
class QtHost : public WholeHost {
public:
    explicit QtHost(QWidget* parent = nullptr);
    ~QtHost() override;

    int msgBox(const QString& text, int style, const QString& title) override;
    std::optional<QString> inputBox(const QString& prompt, const QString& title,
                                    const QString& text) override;
    std::optional<std::uint32_t> colorDialog(std::uint32_t start) override;
    std::optional<FontChoice> fontDialog(const FontChoice& start) override;
    std::optional<QString> saveDialog(const QString& title, const QString& filter,
                                      const QString& fileName) override;
    std::optional<QString> openDialog(const QString& title, const QString& filter,
                                      const QString& fileName) override;
    void beep() override;
    int shellOpen(const QString& file, const QString& verb, const QString& parameters,
                  const QString& directory, int windowMode) override;
    int pointer() const override { return pointer_; }
    void setPointer(int pointer) override;
    void runPendingEvents() override;

private:
    QPointer<QWidget> parent_;
    int pointer_ = kPointerDefault;
};

} // namespace zkp
