#pragma once

#include "script/script_control.h"
#include "script/script_object.h"

namespace zkp::script {

/// One tool of the bar, by its name.
class ToolObject : public ScriptObject {
    Q_OBJECT
    Q_PROPERTY(QString Name READ Name)
    Q_PROPERTY(QString Category READ Category)
    Q_PROPERTY(QString Caption READ Caption WRITE setCaption)
    Q_PROPERTY(bool Enabled READ Enabled WRITE setEnabled)
    Q_PROPERTY(bool Visible READ Visible WRITE setVisible)
    Q_PROPERTY(bool Checked READ Checked WRITE setChecked)
    Q_PROPERTY(QString Text READ Text WRITE setText)
    Q_PROPERTY(int ListIndex READ ListIndex WRITE setListIndex)
    Q_PROPERTY(int ListCount READ ListCount)

public:
    ToolObject(ScriptControlPtr control, QString name)
        : control_(std::move(control))
        , name_(std::move(name)) {}

    QString className() const override { return QStringLiteral("Tool"); }

    QString Name() const { return tool().Name; }
    QString Category() const { return tool().Category; }
    QString Caption() const { return tool().Caption; }
    void setCaption(const QString& text) { tool().Caption = text; }
    bool Enabled() const { return tool().Enabled; }
    void setEnabled(bool on) { tool().Enabled = on; }
    bool Visible() const { return tool().Visible; }
    void setVisible(bool on) { tool().Visible = on; }
    bool Checked() const { return tool().Checked; }
    void setChecked(bool on) { tool().Checked = on; }
    QString Text() const { return tool().Text; }
    void setText(const QString& text) { tool().Text = text; }
    int ListIndex() const { return tool().ListIndex; }
    /// Error kErrSubscript outside -1 to ListCount - 1.
    void setListIndex(int index);
    int ListCount() const { return tool().ListCount(); }
    Q_INVOKABLE QString List(int index) const;

private:
    Tool& tool() const { return control_->grid().Picture1().Tools(name_); }

    ScriptControlPtr control_;
    QString name_;
};

/// One band of the bar, by its name.
class BandObject : public ScriptObject {
    Q_OBJECT
    Q_PROPERTY(QString Name READ Name)
    Q_PROPERTY(double Height READ Height WRITE setHeight)

public:
    BandObject(ScriptControlPtr control, QString name)
        : control_(std::move(control))
        , name_(std::move(name)) {}

    QString className() const override { return QStringLiteral("Band"); }

    QString Name() const { return band().Name; }
    double Height() const { return band().Height; }
    void setHeight(double twips) { band().Height = twips; }
    Q_INVOKABLE zkp::script::ScriptObjectPtr Tools(const QString& name);

private:
    Band& band() const { return control_->grid().Picture1().Bands(name_); }

    ScriptControlPtr control_;
    QString name_;
};

/// `grid.Picture1`.
class MenuBarObject : public ScriptObject {
    Q_OBJECT
    Q_PROPERTY(bool Visible READ Visible WRITE setVisible)
    Q_PROPERTY(QString lastPopup READ lastPopup)

public:
    explicit MenuBarObject(ScriptControlPtr control)
        : control_(std::move(control)) {}

    QString className() const override { return QStringLiteral("MenuBar"); }

    bool Visible() const { return bar().Visible; }
    void setVisible(bool on) { bar().Visible = on; }
    QString lastPopup() const { return bar().lastPopup(); }

    Q_INVOKABLE zkp::script::ScriptObjectPtr Bands(const QString& name);
    Q_INVOKABLE zkp::script::ScriptObjectPtr Tools(const QString& name);
    Q_INVOKABLE void Refresh() { bar().Refresh(); }
    Q_INVOKABLE void click(const QString& name) { bar().click(name); }
    Q_INVOKABLE void changeList(const QString& name, int index) { bar().changeList(name, index); }
    Q_INVOKABLE void changeText(const QString& name, const QString& text) { bar().changeText(name, text); }

private:
    MenuBar& bar() const { return control_->grid().Picture1(); }

    ScriptControlPtr control_;
};

} // namespace zkp::script
