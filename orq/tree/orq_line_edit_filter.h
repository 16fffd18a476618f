#pragma once
// The line edit in which a filter expression is typed: a clear button that
// shows while there is text, an option button for the owner to connect, and
// "Examples..." in the context menu for the expression forms. The owner
// connects the text to ORQ_TREE_FILTER_PROXY_MODEL::start_filter itself.
#include "orq_export.h"

#include <QLineEdit>

class QToolButton;

class ORQ_EXPORT ORQ_LINE_EDIT_FILTER : public QLineEdit {
  Q_OBJECT
public:
  explicit ORQ_LINE_EDIT_FILTER(QWidget* parent = nullptr);
  ~ORQ_LINE_EDIT_FILTER() override;

  QToolButton* get_clear_button() const;
  QToolButton* get_option_button() const;

public slots:
  void update_close_button(const QString& text);
  void show_examples();

protected:
  void resizeEvent(QResizeEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

private:
  QToolButton* m_clear_button;
  QToolButton* m_option_button;
};
