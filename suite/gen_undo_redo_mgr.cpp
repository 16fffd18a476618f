#include "gen_undo_redo_mgr.h"

#include <QUndoStack>

GEN_UNDO_REDO_MGR::GEN_UNDO_REDO_MGR(QObject* parent)
    : QObject(parent)
    , m_stack(new QUndoStack(this))
{
  connect(m_stack, &QUndoStack::indexChanged, this, &GEN_UNDO_REDO_MGR::changed);
  connect(m_stack, &QUndoStack::cleanChanged, this, &GEN_UNDO_REDO_MGR::changed);
}

GEN_UNDO_REDO_MGR::~GEN_UNDO_REDO_MGR() = default;

void GEN_UNDO_REDO_MGR::push(QUndoCommand* command) { m_stack->push(command); }
void GEN_UNDO_REDO_MGR::begin_macro(const QString& text) { m_stack->beginMacro(text); }
void GEN_UNDO_REDO_MGR::end_macro() { m_stack->endMacro(); }
bool GEN_UNDO_REDO_MGR::can_undo() const { return m_stack->canUndo(); }
bool GEN_UNDO_REDO_MGR::can_redo() const { return m_stack->canRedo(); }
QString GEN_UNDO_REDO_MGR::undo_text() const { return m_stack->undoText(); }
QString GEN_UNDO_REDO_MGR::redo_text() const { return m_stack->redoText(); }
int GEN_UNDO_REDO_MGR::count() const { return m_stack->count(); }
void GEN_UNDO_REDO_MGR::set_undo_limit(int limit) { m_stack->setUndoLimit(limit); }
void GEN_UNDO_REDO_MGR::set_clean() { m_stack->setClean(); }
bool GEN_UNDO_REDO_MGR::is_clean() const { return m_stack->isClean(); }
void GEN_UNDO_REDO_MGR::clear() { m_stack->clear(); }
void GEN_UNDO_REDO_MGR::undo() { m_stack->undo(); }
void GEN_UNDO_REDO_MGR::redo() { m_stack->redo(); }
QUndoStack* GEN_UNDO_REDO_MGR::stack() const { return m_stack; }

QAction* GEN_UNDO_REDO_MGR::create_undo_action(QObject* parent, const QString& prefix) const
{
  return m_stack->createUndoAction(parent, prefix);
}

QAction* GEN_UNDO_REDO_MGR::create_redo_action(QObject* parent, const QString& prefix) const
{
  return m_stack->createRedoAction(parent, prefix);
}
