#include "floorplan_window.h"

#include "floorplan_widget.h"
#include "hierarchy_panel.h"

#include <orq.h>

#include <gen_help.h>
#include <gen_machine_info.h>
#include <gen_settings.h>
#include <gen_tcl.h>
#include <gen_undo_redo_mgr.h>

#include <QAction>
#include <QClipboard>
#include <QCloseEvent>
#include <QDialogButtonBox>
#include <QDockWidget>
#include <QFileDialog>
#include <QGuiApplication>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QStatusBar>
#include <QToolBar>
#include <QUndoCommand>
#include <QVBoxLayout>

#include <tcl.h>

namespace {
const QString k_settings_key = QStringLiteral("FloorplanViewer");

// ::fpv::status text: shows text in the status bar, so that Tcl commands of
// the suite can talk back to the viewer.
int status_command(ClientData data, Tcl_Interp* interp, int objc, Tcl_Obj* const objv[])
{
  if (objc != 2) {
    Tcl_WrongNumArgs(interp, 1, objv, "text");
    return TCL_ERROR;
  }
  static_cast<QLabel*>(data)->setText(QString::fromUtf8(Tcl_GetString(objv[1])));
  return TCL_OK;
}

// Re-generating the floor plan is undoable, so the undo manager of the
// application object has something real to do.
class SEED_COMMAND : public QUndoCommand {
public:
  SEED_COMMAND(FLOORPLAN_WINDOW* window, unsigned from, unsigned to)
      : QUndoCommand(QStringLiteral("Regenerate Floor Plan"))
      , m_window(window)
      , m_from(from)
      , m_to(to)
  {
  }
  void redo() override { m_window->set_seed(m_to); }
  void undo() override { m_window->set_seed(m_from); }

private:
  FLOORPLAN_WINDOW* m_window;
  unsigned m_from;
  unsigned m_to;
};
} // namespace

FLOORPLAN_WINDOW::FLOORPLAN_WINDOW(unsigned seed, int block_count, int hierarchy_rows)
    : m_view(new FLOORPLAN_WIDGET(this))
    , m_hover(new QLabel(this))
    , m_seed(seed)
    , m_block_count(block_count)
{
  setObjectName(QStringLiteral("floorplan_viewer"));
  setWindowTitle(QStringLiteral("Floor Plan Viewer"));
  setCentralWidget(m_view);
  m_view->set_floorplan(make_floorplan(m_seed, m_block_count));
  build_menus();

  statusBar()->addWidget(m_hover, 1);
  QString tcl_version;
  gen_tcl().eval(QStringLiteral("info patchlevel"), &tcl_version);
  statusBar()->addPermanentWidget(new QLabel(QStringLiteral("Cores %1 | logical %2 | Tcl %3")
                                                 .arg(gen_processor_mgr().cores())
                                                 .arg(gen_processor_mgr().logical_processors())
                                                 .arg(tcl_version),
                                             this));
  m_hover->setText(QStringLiteral("Ready"));
  if (hierarchy_rows > 0) {
    // A plain dock for now; the design's instances, filtered as one types.
    auto* dock = new QDockWidget(QStringLiteral("Design Hierarchy"), this);
    dock->setObjectName(QStringLiteral("hierarchy_dock"));
    m_hierarchy = new HIERARCHY_PANEL(hierarchy_rows, seed, dock);
    dock->setWidget(m_hierarchy);
    addDockWidget(Qt::LeftDockWidgetArea, dock);
    auto* count = new QLabel(m_hierarchy->status_text(), this);
    count->setObjectName(QStringLiteral("hierarchy_status"));
    statusBar()->addPermanentWidget(count);
    connect(m_hierarchy, &HIERARCHY_PANEL::status_changed, count, &QLabel::setText);
  }
  register_tcl_commands();
  orq_safe_connect(m_view, SIGNAL(block_hovered(QString)), m_hover, SLOT(setText(QString)),
                   Qt::AutoConnection, __FILE__, __LINE__);
  restore_geometry();
}

FLOORPLAN_WINDOW::~FLOORPLAN_WINDOW()
{
  Tcl_DeleteCommand(gen_tcl().interp(), "::fpv::status");
}

void FLOORPLAN_WINDOW::register_tcl_commands()
{
  // The suite's partition planner is not part of this sample; its start
  // command here reports what it would plan, through the status bar.
  Tcl_CreateObjCommand(gen_tcl().interp(), "::fpv::status", status_command, m_hover, nullptr);
  gen_tcl().set_var(QStringLiteral("::fpv::block_count"), QString::number(m_block_count));
  gen_tcl().eval(QStringLiteral(
      "namespace eval ::vantor::partition_planner {\n"
      "  proc start {} {\n"
      "    set n $::fpv::block_count\n"
      "    ::fpv::status \"Partition planner: $n blocks in [expr {($n + 3) / 4}] partitions\"\n"
      "  }\n"
      "}"));
}

unsigned FLOORPLAN_WINDOW::seed() const
{
  return m_seed;
}

QString FLOORPLAN_WINDOW::status_text() const
{
  return m_hover->text();
}

HIERARCHY_PANEL* FLOORPLAN_WINDOW::hierarchy_panel() const
{
  return m_hierarchy;
}

void FLOORPLAN_WINDOW::set_seed(unsigned seed)
{
  m_seed = seed;
  m_view->set_floorplan(make_floorplan(m_seed, m_block_count));
}

void FLOORPLAN_WINDOW::regenerate()
{
  ORQ_APP* app = orq_get_app();
  if (app && app->get_undo_redo_mgr())
    app->get_undo_redo_mgr()->push(new SEED_COMMAND(this, m_seed, m_seed * 1103515245u + 12345u));
  else
    set_seed(m_seed + 1);
}

QAction* FLOORPLAN_WINDOW::add_standard_action(QMenu* menu, ORQ_ACTION_ENUM id)
{
  QAction* action = orq_create_action(id, this);
  action->setObjectName(orq_get_action_enum_string(id));
  menu->addAction(action);
  return action;
}

void FLOORPLAN_WINDOW::build_menus()
{
  // Every command comes from the standard catalogue, so its words, icon and
  // shortcut are those of every other tool of the suite.
  QMenu* file = menuBar()->addMenu(QStringLiteral("&File"));
  QAction* export_image = add_standard_action(file, ORQ_EXPORT_IMAGE_ACTION);
  connect(export_image, &QAction::triggered, this, [this] {
    const QString name = QFileDialog::getSaveFileName(this, QStringLiteral("Export Image"), QString(),
                                                      QStringLiteral("PNG images (*.png)"));
    if (!name.isEmpty() && !m_view->grab().save(name, "PNG"))
      orq_message_box(QStringLiteral("Cannot write %1").arg(name), GEN_PROMPT_TYPE::ERROR, this);
  });
  file->addSeparator();
  connect(add_standard_action(file, ORQ_EXIT_ACTION), &QAction::triggered, this, &QWidget::close);

  QMenu* edit = menuBar()->addMenu(QStringLiteral("&Edit"));
  if (ORQ_APP* app = orq_get_app(); app && app->get_undo_redo_mgr()) {
    // The undo stack's actions keep their own enabled state; they take the
    // catalogue's looks.
    for (ORQ_ACTION_ENUM id : {ORQ_UNDO_ACTION, ORQ_REDO_ACTION}) {
      QAction* action =
          id == ORQ_UNDO_ACTION
              ? app->get_undo_redo_mgr()->create_undo_action(this, QString::fromUtf8(orq_get_menu_text(id)))
              : app->get_undo_redo_mgr()->create_redo_action(this, QString::fromUtf8(orq_get_menu_text(id)));
      QAction* model = orq_create_action(id, action);
      action->setObjectName(orq_get_action_enum_string(id));
      action->setIcon(model->icon());
      action->setShortcuts(model->shortcuts());
      action->setStatusTip(model->statusTip());
      action->setToolTip(model->toolTip());
      edit->addAction(action);
      m_undo_redo.append(action);
    }
  }
  edit->addSeparator();
  QAction* copy = add_standard_action(edit, ORQ_COPY_ACTION);
  copy->setStatusTip(QStringLiteral("Copies a picture of the floor plan to the Clipboard"));
  connect(copy, &QAction::triggered, this,
          [this] { QGuiApplication::clipboard()->setImage(m_view->grab().toImage()); });

  QMenu* view = menuBar()->addMenu(QStringLiteral("&View"));
  QAction* regenerate = add_standard_action(view, ORQ_REGENERATE_FLOORPLAN_ACTION);
  regenerate->setShortcut(QKeySequence(QStringLiteral("Ctrl+R")));
  connect(regenerate, &QAction::triggered, this, &FLOORPLAN_WINDOW::regenerate);
  view->addSeparator();
  for (ORQ_ACTION_ENUM id : {ORQ_SHOW_PADS_ACTION, ORQ_SHOW_BLOCK_NAMES_ACTION}) {
    QAction* toggle = add_standard_action(view, id);
    toggle->setCheckable(true);
    toggle->setChecked(true);
    connect(toggle, &QAction::toggled, m_view,
            id == ORQ_SHOW_PADS_ACTION ? &FLOORPLAN_WIDGET::set_show_pads
                                       : &FLOORPLAN_WIDGET::set_show_block_names);
  }

  QMenu* tools = menuBar()->addMenu(QStringLiteral("&Tools"));
  QAction* planner = add_standard_action(tools, ORQ_START_PARTITION_PLANNER_ACTION);
  QAction* options = add_standard_action(tools, ORQ_OPTIONS_ACTION);
  connect(options, &QAction::triggered, this, &FLOORPLAN_WINDOW::open_options);

  QMenu* help = menuBar()->addMenu(QStringLiteral("&Help"));
  QAction* topics = add_standard_action(help, ORQ_VANTOR_HELP_ACTION);
  connect(topics, &QAction::triggered, this,
          [this] { gen_help().show_help(this, QStringLiteral("floorplan_viewer")); });
  help->addSeparator();
  QAction* about = add_standard_action(help, ORQ_ABOUT_VANTOR_ACTION);
  connect(about, &QAction::triggered, this, [this] {
    QMessageBox box(this);
    box.setWindowTitle(QStringLiteral("About Vantor"));
    box.setIconPixmap(
        orq_get_pixmap(ORQ_FPV_SPLASH_SCREEN_PIXMAP).scaledToWidth(320, Qt::SmoothTransformation));
    box.setText(QStringLiteral("Floor Plan Viewer\nThe sample tool of the ORQ framework."));
    box.exec();
  });

  QToolBar* bar = addToolBar(QStringLiteral("Standard"));
  bar->setObjectName(QStringLiteral("standard_tool_bar"));
  bar->addAction(export_image);
  bar->addSeparator();
  bar->addActions(m_undo_redo);
  bar->addAction(copy);
  bar->addSeparator();
  bar->addAction(regenerate);
  bar->addAction(planner);
  bar->addSeparator();
  bar->addAction(options);
  bar->addAction(topics);
}

ORQ_DIALOG* FLOORPLAN_WINDOW::make_options_dialog()
{
  auto* dialog = new ORQ_DIALOG(this);
  dialog->setObjectName(QStringLiteral("floorplan_options"));
  dialog->setWindowTitle(QStringLiteral("Options"));
  auto* page = new ORQ_THEME_OPTIONS_PAGE(dialog);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, dialog);
  auto* layout = new QVBoxLayout(dialog);
  layout->addWidget(page);
  layout->addWidget(buttons);
  dialog->resize(640, 520);
  connect(buttons, &QDialogButtonBox::accepted, dialog, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
  // Changes show at once; OK keeps them for the next start, Cancel undoes them.
  connect(page, &ORQ_THEME_OPTIONS_PAGE::theme_changed, m_view, QOverload<>::of(&QWidget::update));
  connect(dialog, &QDialog::accepted, page, &ORQ_THEME_OPTIONS_PAGE::apply);
  connect(dialog, &QDialog::rejected, page, &ORQ_THEME_OPTIONS_PAGE::revert);
  return dialog;
}

int FLOORPLAN_WINDOW::open_options()
{
  ORQ_DIALOG* dialog = make_options_dialog();
  const int result = dialog->exec();
  delete dialog;
  return result;
}

void FLOORPLAN_WINDOW::restore_geometry()
{
  const QByteArray geometry = gen_settings().value(k_settings_key, QStringLiteral("geometry")).toByteArray();
  // restoreGeometry refuses data it cannot read; the default size stands then.
  if (geometry.isEmpty() || !restoreGeometry(geometry))
    resize(1280, 800);
}

void FLOORPLAN_WINDOW::closeEvent(QCloseEvent* event)
{
  gen_settings().set_value(k_settings_key, QStringLiteral("geometry"), saveGeometry());
  gen_settings().sync();
  ORQ_MAIN_WINDOW::closeEvent(event);
}
