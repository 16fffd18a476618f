#pragma once
// The viewer's main window: the floor plan in the middle, menus, a status bar
// that tells what the process found at start-up, and undoable re-generation.
#include "orq_action_enum.h"
#include "orq_main_window.h"

#include <QList>
#include <QPointer>

class FLOORPLAN_VIEW;
class ORQ_DIALOG;
class ORQ_DOCK_WIDGET;
class ORQ_MDI_AREA;
class ORQ_ZOOM_SCROLL_AREA;
class QAction;
class QActionGroup;
class QLabel;
class QMenu;
class QPlainTextEdit;

class FLOORPLAN_WINDOW : public ORQ_MAIN_WINDOW {
  Q_OBJECT
public:
  // shape_count is the size of the generated design. hierarchy_rows 0
  // leaves the design-hierarchy panel out. The panels come from the
  // viewer's panel library; restore_layout false starts from the default
  // arrangement whatever was saved.
  FLOORPLAN_WINDOW(unsigned seed, int block_count, int shape_count, int hierarchy_rows = 0,
                   bool restore_layout = true);
  ~FLOORPLAN_WINDOW() override;

  unsigned seed() const;
  // What the left of the status bar says.
  QString status_text() const;
  // What the status bar says is selected, and its zoom.
  QString selection_status() const;
  QString zoom_status() const;
  // What the mouse does in the current mode, as the status bar says it.
  QString mode_hint() const;
  FLOORPLAN_VIEW* view() const;
  ORQ_ZOOM_SCROLL_AREA* zoom_area() const;
  // Writes the whole drawing to a PDF file; false when it cannot.
  bool export_pdf(const QString& file_name);
  // The hierarchy panel of the panel library, or null.
  QWidget* hierarchy_panel() const;
  // Writes the hierarchy as File > Export Hierarchy... does; why it could
  // not, or an empty string.
  QString export_hierarchy(const QString& file_name);
  // The panels by object name or title, or null.
  ORQ_DOCK_WIDGET* panel(const QString& name) const;
  QList<ORQ_DOCK_WIDGET*> panels() const;
  // Pin, unpin, slide out, float, close or open a panel as the user does;
  // false for an unknown panel or verb.
  bool change_panel(const QString& verb, const QString& name);
  // The window with its floating panels, as they stand on the screen.
  QImage grab_with_floating_panels();
  void set_seed(unsigned seed);

public slots:
  // The zoom area's, for the suite's commands that reach a tool through
  // its main window.
  void set_zoom(float factor) override;
  void open_set_zoom_dlg() override;
  void regenerate();
  // File > Print..., Print Preview... and Export PDF..., with their dialogs.
  void print();
  void print_preview();
  void export_pdf_dialog();
  // File > Export Hierarchy...: asks for a file, tells what went wrong.
  void export_hierarchy_dialog();
  // Tools > Block Variants...: the report, shown beside the window.
  ORQ_DIALOG* open_block_variants();
  // View > Reset Layout: panels docked, pinned and open where they started.
  void reset_layout();
  // Tools > Options: the theme colours and fonts. Returns the dialog result.
  int open_options();
  // The Options dialog, built but not run (for screenshots and tests).
  ORQ_DIALOG* make_options_dialog();

protected:
  void closeEvent(QCloseEvent* event) override;
  // A press anywhere else in the window slides the slid-out panels back.
  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  void build_menus();
  void register_tcl_commands();
  QAction* add_standard_action(QMenu* menu, ORQ_ACTION_ENUM id);
  void restore_geometry();
  void create_panels(int hierarchy_rows);
  void restore_panel_layout();
  void save_panel_layout();
  void fall_back_to_default_layout(const QString& why);
  QAction* add_panel_action(QMenu* menu, ORQ_ACTION_ENUM id, ORQ_DOCK_WIDGET* dock);

  void build_zoom_actions(QMenu* view_menu);
  void build_report_actions(QMenu* file_menu);
  void build_variants_action(QMenu* tools_menu);
  void show_mode_hint();
  void fill_block_list();
  void fit_while_untouched();
  // After View > Zoom Selection: the selection flashes where it now is.
  void flash_selection();

  ORQ_MDI_AREA* m_mdi;
  ORQ_ZOOM_SCROLL_AREA* m_zoom_area;
  // The zoom, magnifying and pan tools; none checked is selection mode.
  QActionGroup* m_modes = nullptr;
  // The mode a temporary pan interrupted; null for selection mode.
  QPointer<QAction> m_mode_before_pan;
  FLOORPLAN_VIEW* m_view;
  QPlainTextEdit* m_block_list;
  QWidget* m_hierarchy = nullptr;
  QPointer<ORQ_DIALOG> m_variants;
  QList<ORQ_DOCK_WIDGET*> m_panels;
  QByteArray m_default_layout;
  QLabel* m_hover;
  QLabel* m_selection_label;
  QLabel* m_zoom_label;
  QList<QAction*> m_undo_redo;
  unsigned m_seed;
  int m_block_count;
  int m_shape_count;
  // Until the user zooms, the plan is fitted to the area whenever its size
  // settles (start-up, first layout, window resizes).
  bool m_keep_fitted = true;
  bool m_fitting = false;
};
