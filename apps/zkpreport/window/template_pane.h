#pragma once

#include "window/template_list.h"

#include <QWidget>

class QAction;
class QListView;

namespace zkp::app {

/// The templates of the database under the list of reports, and what saves one.
class TemplatePane : public QWidget {
    Q_OBJECT

public:
    TemplatePane(QAction* save, QAction* saveAs, QWidget* parent = nullptr);

    /// Shows other templates; the chosen one stays chosen where it is still there.
    void setTemplates(std::vector<TemplateEntry> templates);
    /// The one that is open, which becomes the chosen one; empty for none.
    void setCurrent(const QString& name);
    /// Whether there is a template of that name.
    bool has(const QString& name) const { return model_->find(name) >= 0; }
    void focusList();

Q_SIGNALS:
    /// Enter or a double click.
    void opened(const QString& name);

private:
    void choose(const QString& name);

    TemplateListModel* model_;
    QListView* list_;
};

} // namespace zkp::app
