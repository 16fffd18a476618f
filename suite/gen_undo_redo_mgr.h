#pragma once
// The undo/redo manager of a tool process, on Qt's undo framework: commands
// are pushed once, done at once, and undone and redone in order.
#include "gen_export.h"

#include <QObject>
#include <QString>

class QAction;
class QUndoCommand;
class QUndoStack;

class GEN_EXPORT GEN_UNDO_REDO_MGR : public QObject {
  Q_OBJECT
public:
  explicit GEN_UNDO_REDO_MGR(QObject* parent = nullptr);
  ~GEN_UNDO_REDO_MGR() override;

  // Takes ownership and runs command->redo().
  void push(QUndoCommand* command);
  void begin_macro(const QString& text);
  void end_macro();

  bool can_undo() const;
  bool can_redo() const;
  QString undo_text() const;
  QString redo_text() const;
  int count() const;
  void set_undo_limit(int limit);
  void set_clean();
  bool is_clean() const;
  void clear();

  // Actions that follow the stack (enabled state and text).
  QAction* create_undo_action(QObject* parent, const QString& prefix = QString()) const;
  QAction* create_redo_action(QObject* parent, const QString& prefix = QString()) const;
  QUndoStack* stack() const;

public slots:
  void undo();
  void redo();

signals:
  void changed();

private:
  QUndoStack* m_stack;
};
