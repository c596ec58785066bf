#pragma once

#include "script/script_control.h"
#include "script/script_object.h"

namespace zkp::script {

/// `grid.cmdHide`.
class ButtonObject : public ScriptObject {
    Q_OBJECT
    Q_PROPERTY(QString Caption READ Caption WRITE setCaption)
    Q_PROPERTY(bool Visible READ Visible WRITE setVisible)
    Q_PROPERTY(bool Enabled READ Enabled WRITE setEnabled)

public:
    explicit ButtonObject(ScriptControlPtr control)
        : control_(std::move(control)) {}

    QString className() const override { return QStringLiteral("Button"); }

    QString Caption() const { return button().Caption; }
    void setCaption(const QString& text) { button().Caption = text; }
    bool Visible() const { return button().Visible; }
    void setVisible(bool on) { button().Visible = on; }
    bool Enabled() const { return button().Enabled; }
    void setEnabled(bool on) { button().Enabled = on; }
    Q_INVOKABLE void press() { button().press(); }

private:
    Button& button() const { return control_->grid().cmdHide(); }

    ScriptControlPtr control_;
};

/// `grid.lbltemplate` and `grid.lblfilter`.
class LabelObject : public ScriptObject {
    Q_OBJECT
    Q_PROPERTY(QString Caption READ Caption WRITE setCaption)
    Q_PROPERTY(bool Visible READ Visible WRITE setVisible)

public:
    LabelObject(ScriptControlPtr control, Label& (ZkpGrid::*which)())
        : control_(std::move(control))
        , which_(which) {}

    QString className() const override { return QStringLiteral("Label"); }

    QString Caption() const { return label().Caption; }
    void setCaption(const QString& text) { label().Caption = text; }
    bool Visible() const { return label().Visible; }
    void setVisible(bool on) { label().Visible = on; }

private:
    Label& label() const { return (control_->grid().*which_)(); }

    ScriptControlPtr control_;
    Label& (ZkpGrid::*which_)();
};

} // namespace zkp::script
