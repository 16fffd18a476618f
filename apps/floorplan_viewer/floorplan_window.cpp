#include "floorplan_window.h"

#include "floorplan_widget.h"

#include <orq.h>

#include <gen_machine_info.h>
#include <gen_settings.h>
#include <gen_tcl.h>
#include <gen_undo_redo_mgr.h>

#include <QAction>
#include <QDialogButtonBox>
#include <QVBoxLayout>
#include <QCloseEvent>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QStatusBar>
#include <QUndoCommand>

namespace {
const QString k_settings_key = QStringLiteral("FloorplanViewer");

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
}  // namespace

FLOORPLAN_WINDOW::FLOORPLAN_WINDOW(unsigned seed, int block_count)
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
  statusBar()->addPermanentWidget(new QLabel(
      QStringLiteral("Cores %1 | logical %2 | Tcl %3")
          .arg(gen_processor_mgr().cores())
          .arg(gen_processor_mgr().logical_processors())
          .arg(tcl_version),
      this));
  m_hover->setText(QStringLiteral("Ready"));
  orq_safe_connect(m_view, SIGNAL(block_hovered(QString)), m_hover, SLOT(setText(QString)),
                   Qt::AutoConnection, __FILE__, __LINE__);
  restore_geometry();
}

FLOORPLAN_WINDOW::~FLOORPLAN_WINDOW() = default;

unsigned FLOORPLAN_WINDOW::seed() const
{
  return m_seed;
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

void FLOORPLAN_WINDOW::build_menus()
{
  QMenu* file = menuBar()->addMenu(QStringLiteral("&File"));
  QAction* quit = file->addAction(QStringLiteral("E&xit"), this, &QWidget::close);
  quit->setShortcut(QKeySequence::Quit);

  QMenu* edit = menuBar()->addMenu(QStringLiteral("&Edit"));
  if (ORQ_APP* app = orq_get_app(); app && app->get_undo_redo_mgr()) {
    QAction* undo = app->get_undo_redo_mgr()->create_undo_action(this, QStringLiteral("&Undo"));
    undo->setShortcut(QKeySequence::Undo);
    QAction* redo = app->get_undo_redo_mgr()->create_redo_action(this, QStringLiteral("&Redo"));
    redo->setShortcut(QKeySequence::Redo);
    edit->addAction(undo);
    edit->addAction(redo);
  }

  QMenu* view = menuBar()->addMenu(QStringLiteral("&View"));
  QAction* regenerate = view->addAction(QStringLiteral("&Regenerate Floor Plan"), this,
                                        &FLOORPLAN_WINDOW::regenerate);
  regenerate->setShortcut(QKeySequence(QStringLiteral("Ctrl+R")));

  QMenu* tools = menuBar()->addMenu(QStringLiteral("&Tools"));
  tools->addAction(QStringLiteral("&Options..."), this, &FLOORPLAN_WINDOW::open_options);

  QMenu* help = menuBar()->addMenu(QStringLiteral("&Help"));
  help->addAction(QStringLiteral("&About Floor Plan Viewer"), this, [this] {
    QMessageBox::about(this, QStringLiteral("About Floor Plan Viewer"),
                       QStringLiteral("Floor Plan Viewer\nThe sample tool of the ORQ framework."));
  });
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
  const QByteArray geometry =
      gen_settings().value(k_settings_key, QStringLiteral("geometry")).toByteArray();
  // restoreGeometry refuses data it cannot read; the default size stands then.
  if (geometry.isEmpty() || !restoreGeometry(geometry))
    resize(1100, 760);
}

void FLOORPLAN_WINDOW::closeEvent(QCloseEvent* event)
{
  gen_settings().set_value(k_settings_key, QStringLiteral("geometry"), saveGeometry());
  gen_settings().sync();
  ORQ_MAIN_WINDOW::closeEvent(event);
}
