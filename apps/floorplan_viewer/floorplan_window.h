#pragma once
// The viewer's main window: the floor plan in the middle, menus, a status bar
// that tells what the process found at start-up, and undoable re-generation.
#include "orq_action_enum.h"
#include "orq_main_window.h"

#include <QList>

class FLOORPLAN_WIDGET;
class HIERARCHY_PANEL;
class ORQ_DIALOG;
class QAction;
class QLabel;
class QMenu;

class FLOORPLAN_WINDOW : public ORQ_MAIN_WINDOW {
  Q_OBJECT
public:
  // hierarchy_rows 0 leaves the design-hierarchy panel out.
  FLOORPLAN_WINDOW(unsigned seed, int block_count, int hierarchy_rows = 0);
  ~FLOORPLAN_WINDOW() override;

  unsigned seed() const;
  // What the left of the status bar says.
  QString status_text() const;
  HIERARCHY_PANEL* hierarchy_panel() const;
  void set_seed(unsigned seed);

public slots:
  void regenerate();
  // Tools > Options: the theme colours and fonts. Returns the dialog result.
  int open_options();
  // The Options dialog, built but not run (for screenshots and tests).
  ORQ_DIALOG* make_options_dialog();

protected:
  void closeEvent(QCloseEvent* event) override;

private:
  void build_menus();
  void register_tcl_commands();
  QAction* add_standard_action(QMenu* menu, ORQ_ACTION_ENUM id);
  void restore_geometry();

  FLOORPLAN_WIDGET* m_view;
  HIERARCHY_PANEL* m_hierarchy = nullptr;
  QLabel* m_hover;
  QList<QAction*> m_undo_redo;
  unsigned m_seed;
  int m_block_count;
};
