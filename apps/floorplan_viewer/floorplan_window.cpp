#include "floorplan_window.h"

#include "floorplan_view.h"

#include <orq.h>
#include <orq_zoom_scroll_area.h>

#include <gen_help.h>
#include <gen_machine_info.h>
#include <gen_message_service.h>
#include <gen_settings.h>
#include <gen_tcl.h>
#include <gen_undo_redo_mgr.h>

#include <QAction>
#include <QClipboard>
#include <QCloseEvent>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLabel>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>
#include <QUndoCommand>
#include <QVBoxLayout>

#include <tcl.h>

#include <memory>

namespace {
const QString k_settings_key = QStringLiteral("FloorplanViewer");
// Saved layouts of another version are not restored; raise it when the
// panels change in a way an old layout would get wrong.
constexpr int k_layout_version = 1;
// Settings group of the document area's tab choice.
constexpr int k_mdi_tabs_group = 2;

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

FLOORPLAN_WINDOW::FLOORPLAN_WINDOW(unsigned seed, int block_count, int shape_count, int hierarchy_rows,
                                   bool restore_layout)
    : m_mdi(new ORQ_MDI_AREA(this))
    , m_zoom_area(new ORQ_ZOOM_SCROLL_AREA)
    , m_view(new FLOORPLAN_VIEW(std::make_unique<FLOORPLAN_DATA>(seed, block_count, shape_count)))
    , m_block_list(new QPlainTextEdit)
    , m_hover(new QLabel(this))
    , m_selection_label(new QLabel(this))
    , m_zoom_label(new QLabel(this))
    , m_seed(seed)
    , m_block_count(block_count)
    , m_shape_count(shape_count)
{
  setObjectName(QStringLiteral("floorplan_viewer"));
  setWindowTitle(QStringLiteral("Floor Plan Viewer"));
  m_mdi->setObjectName(QStringLiteral("documents"));
  setCentralWidget(m_mdi);
  m_view->setObjectName(QStringLiteral("floorplan_view"));
  m_zoom_area->setObjectName(QStringLiteral("floorplan_area"));
  m_zoom_area->setFrameShape(QFrame::NoFrame);
  m_zoom_area->set_view(m_view, true);
  // Two documents, so the area has tabs to show: the plan and its blocks.
  m_block_list->setObjectName(QStringLiteral("block_list"));
  m_block_list->setReadOnly(true);
  fill_block_list();
  m_mdi->addSubWindow(m_block_list)->setWindowTitle(QStringLiteral("Blocks"));
  QMdiSubWindow* plan = m_mdi->addSubWindow(m_zoom_area);
  plan->setWindowTitle(QStringLiteral("Floor Plan"));
  plan->setObjectName(QStringLiteral("floorplan_document"));
  // The plan is the tool itself: its tab refuses to close (the commands
  // draw from it); the block list closes for good.
  plan->installEventFilter(this);
  m_zoom_area->installEventFilter(this);

  statusBar()->addWidget(m_hover, 1);
  m_selection_label->setObjectName(QStringLiteral("selection_status"));
  m_selection_label->setText(m_view->selection_text());
  statusBar()->addPermanentWidget(m_selection_label);
  m_zoom_label->setObjectName(QStringLiteral("zoom_status"));
  m_zoom_label->setToolTip(QStringLiteral("Click to set the zoom"));
  m_zoom_label->setCursor(Qt::PointingHandCursor);
  statusBar()->addPermanentWidget(m_zoom_label);
  QString tcl_version;
  gen_tcl().eval(QStringLiteral("info patchlevel"), &tcl_version);
  statusBar()->addPermanentWidget(new QLabel(QStringLiteral("Cores %1 | logical %2 | Tcl %3")
                                                 .arg(gen_processor_mgr().cores())
                                                 .arg(gen_processor_mgr().logical_processors())
                                                 .arg(tcl_version),
                                             this));
  m_hover->setText(QStringLiteral("Ready"));
  create_panels(hierarchy_rows);
  build_menus();
  register_tcl_commands();
  orq_safe_connect(m_view, SIGNAL(block_hovered(QString)), m_hover, SLOT(setText(QString)),
                   Qt::AutoConnection, __FILE__, __LINE__);
  connect(m_view, &FLOORPLAN_VIEW::selection_changed, m_selection_label, &QLabel::setText);
  auto show_zoom = [this](float zoom) {
    m_zoom_label->setText(QStringLiteral("Zoom %1%").arg(double(zoom) * 100.0, 0, 'f', 1));
    if (!m_fitting)
      m_keep_fitted = false;
  };
  connect(m_zoom_area, &ORQ_ZOOM_SCROLL_AREA::zoom_level_changed, this, show_zoom);
  m_zoom_label->setText(QStringLiteral("Zoom %1%").arg(double(m_view->get_zoom()) * 100.0, 0, 'f', 1));
  resize(1280, 800);
  m_default_layout = saveState(k_layout_version);
  restore_geometry();
  if (restore_layout)
    restore_panel_layout();
  m_mdi->setActiveSubWindow(plan);
  qApp->installEventFilter(this);
}

void FLOORPLAN_WINDOW::fill_block_list()
{
  m_block_list->clear();
  for (const FLOORPLAN_BLOCK& block : m_view->floorplan().blocks)
    m_block_list->appendPlainText(QStringLiteral("%1\t%2").arg(block.name, block.cell));
}

void FLOORPLAN_WINDOW::fit_while_untouched()
{
  if (!m_keep_fitted || m_zoom_area->maximumViewportSize().isEmpty())
    return;
  m_fitting = true;
  m_zoom_area->zoom_fit();
  m_fitting = false;
}

void FLOORPLAN_WINDOW::create_panels(int hierarchy_rows)
{
  // The panels live in a library of their own, found and loaded by the
  // dock manager the way the suite's tools contribute theirs.
  setProperty("fpv_hierarchy_rows", hierarchy_rows);
  setProperty("fpv_seed", m_seed);
  ORQ_DOCK_MGR* docks = get_dock_mgr();
  docks->set_module(ORQ_DOCK_PROJECT_HIERARCHY, QStringLiteral("fpv_panels:hierarchy"));
  docks->set_module(ORQ_DOCK_MESSAGES, QStringLiteral("fpv_panels:messages"));
  docks->set_module(ORQ_DOCK_TCL_CONSOLE, QStringLiteral("fpv_panels:tcl_console"));
  const struct {
    ORQ_DOCK_ENUM which;
    Qt::DockWidgetArea area;
  } panels[] = {{ORQ_DOCK_PROJECT_HIERARCHY, Qt::LeftDockWidgetArea},
                {ORQ_DOCK_MESSAGES, Qt::BottomDockWidgetArea},
                {ORQ_DOCK_TCL_CONSOLE, Qt::RightDockWidgetArea}};
  for (const auto& row : panels) {
    if (row.which == ORQ_DOCK_PROJECT_HIERARCHY && hierarchy_rows <= 0)
      continue;
    // A missing library has been reported by the manager; the window goes on
    // without that panel.
    ORQ_DOCK_WIDGET* dock = docks->create_dock_widget(row.which, this);
    if (!dock)
      continue;
    addDockWidget(row.area, dock);
    m_panels.append(dock);
    if (row.which == ORQ_DOCK_PROJECT_HIERARCHY)
      m_hierarchy = dock->widget();
  }
  if (m_hierarchy) {
    QString text;
    QMetaObject::invokeMethod(m_hierarchy, "status_text", Q_RETURN_ARG(QString, text));
    auto* count = new QLabel(text, this);
    count->setObjectName(QStringLiteral("hierarchy_status"));
    statusBar()->addPermanentWidget(count);
    orq_safe_connect(m_hierarchy, SIGNAL(status_changed(QString)), count, SLOT(setText(QString)),
                     Qt::AutoConnection, __FILE__, __LINE__);
  }
}

FLOORPLAN_WINDOW::~FLOORPLAN_WINDOW()
{
  qApp->removeEventFilter(this);
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

QString FLOORPLAN_WINDOW::selection_status() const
{
  return m_selection_label->text();
}

QString FLOORPLAN_WINDOW::zoom_status() const
{
  return m_zoom_label->text();
}

FLOORPLAN_VIEW* FLOORPLAN_WINDOW::view() const
{
  return m_view;
}

ORQ_ZOOM_SCROLL_AREA* FLOORPLAN_WINDOW::zoom_area() const
{
  return m_zoom_area;
}

bool FLOORPLAN_WINDOW::export_pdf(const QString& file_name)
{
  QPrinter printer(QPrinter::HighResolution);
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(file_name);
  printer.setPageOrientation(QPageLayout::Landscape);
  printer.setDocName(QStringLiteral("Floor plan, seed %1").arg(m_seed));
  return m_view->print(&printer) && QFileInfo(file_name).size() > 0;
}

void FLOORPLAN_WINDOW::print()
{
  QPrinter printer(QPrinter::HighResolution);
  printer.setPageOrientation(QPageLayout::Landscape);
  QPrintDialog dialog(&printer, this);
  if (dialog.exec() == QDialog::Accepted && !m_view->print(&printer))
    orq_message_box(QStringLiteral("Cannot print to %1").arg(printer.printerName()), GEN_PROMPT_TYPE::ERROR,
                    this);
}

void FLOORPLAN_WINDOW::print_preview()
{
  QPrinter printer(QPrinter::HighResolution);
  printer.setPageOrientation(QPageLayout::Landscape);
  QPrintPreviewDialog preview(&printer, this);
  connect(&preview, &QPrintPreviewDialog::paintRequested, m_view, &FLOORPLAN_VIEW::print);
  preview.exec();
}

void FLOORPLAN_WINDOW::export_pdf_dialog()
{
  const QString name = QFileDialog::getSaveFileName(this, QStringLiteral("Export PDF"), QString(),
                                                    QStringLiteral("PDF files (*.pdf)"));
  if (!name.isEmpty() && !export_pdf(name))
    orq_message_box(QStringLiteral("Cannot write %1").arg(name), GEN_PROMPT_TYPE::ERROR, this);
}

void FLOORPLAN_WINDOW::flash_selection()
{
  const QRect selected = m_view->get_selected_rect();
  if (!selected.isNull())
    m_view->animate_selection_rect(m_view->get_physical(selected),
                                   ORQ_COLOR(ORQ_WINDOW_HIGHLIGHT_COLOR).get_color(), 600);
}

QWidget* FLOORPLAN_WINDOW::hierarchy_panel() const
{
  return m_hierarchy;
}

ORQ_DOCK_WIDGET* FLOORPLAN_WINDOW::panel(const QString& name) const
{
  for (ORQ_DOCK_WIDGET* dock : m_panels)
    if (dock->objectName() == name || dock->windowTitle() == name)
      return dock;
  return nullptr;
}

QList<ORQ_DOCK_WIDGET*> FLOORPLAN_WINDOW::panels() const
{
  return m_panels;
}

bool FLOORPLAN_WINDOW::change_panel(const QString& verb, const QString& name)
{
  ORQ_DOCK_WIDGET* dock = panel(name);
  if (!dock)
    return false;
  if (verb == QLatin1String("unpin") || verb == QLatin1String("pin")) {
    if (dock->is_pinned() != (verb == QLatin1String("pin")))
      dock->get_titlebar()->toggle_pin(verb == QLatin1String("pin"));
  } else if (verb == QLatin1String("slide-out")) {
    if (dock->is_pinned() || !dock->get_button())
      return false;
    if (!dock->get_button()->isChecked())
      dock->get_button()->click();
  } else if (verb == QLatin1String("float")) {
    dock->setFloating(true);
    dock->resize(380, 260);
    dock->move(geometry().topLeft() + QPoint(width() - 560, 150));
  } else if (verb == QLatin1String("close")) {
    dock->close_widget();
  } else if (verb == QLatin1String("open")) {
    dock->show();
  } else {
    return false;
  }
  return true;
}

QImage FLOORPLAN_WINDOW::grab_with_floating_panels()
{
  QList<ORQ_DOCK_WIDGET*> floating;
  QRect bounds = geometry();
  for (ORQ_DOCK_WIDGET* dock : qAsConst(m_panels)) {
    if (dock->isFloating() && dock->isVisible()) {
      floating << dock;
      bounds |= dock->geometry();
    }
  }
  const QImage window = grab().toImage();
  if (floating.isEmpty())
    return window;
  // Floating panels are windows of their own; they are drawn where they
  // stand over the main window, on the desktop's grey.
  QImage canvas(bounds.size(), QImage::Format_RGB32);
  canvas.fill(QColor(0x50, 0x55, 0x5c));
  QPainter painter(&canvas);
  painter.drawImage(geometry().topLeft() - bounds.topLeft(), window);
  for (ORQ_DOCK_WIDGET* dock : qAsConst(floating)) {
    const QPoint at = dock->geometry().topLeft() - bounds.topLeft();
    painter.fillRect(QRect(at + QPoint(4, 4), dock->size()), QColor(0, 0, 0, 90)); // shadow
    painter.drawImage(at, dock->grab().toImage());
    painter.setPen(QColor(0x30, 0x30, 0x30));
    painter.drawRect(QRect(at, dock->size()).adjusted(0, 0, -1, -1));
  }
  return canvas;
}

void FLOORPLAN_WINDOW::set_seed(unsigned seed)
{
  m_seed = seed;
  m_view->set_data(std::make_unique<FLOORPLAN_DATA>(m_seed, m_block_count, m_shape_count));
  fill_block_list();
}

void FLOORPLAN_WINDOW::regenerate()
{
  ORQ_APP* app = orq_get_app();
  if (app && app->get_undo_redo_mgr())
    app->get_undo_redo_mgr()->push(new SEED_COMMAND(this, m_seed, m_seed * 1103515245u + 12345u));
  else
    set_seed(m_seed + 1);
}

QAction* FLOORPLAN_WINDOW::add_panel_action(QMenu* menu, ORQ_ACTION_ENUM id, ORQ_DOCK_WIDGET* dock)
{
  // Checked while the panel is open, pinned or not; the text is the panel's
  // title, so the panel's bar button finds the same icon.
  QAction* action = add_standard_action(menu, id);
  action->setCheckable(true);
  action->setChecked(!dock->is_closed());
  connect(action, &QAction::toggled, dock, [dock](bool on) {
    if (on && dock->is_closed())
      dock->open_widget();
    else if (!on && !dock->is_closed())
      dock->close_widget();
  });
  connect(dock, &ORQ_DOCK_WIDGET::dock_widget_active_state_changed, action, [action, dock] {
    const QSignalBlocker quiet(action);
    action->setChecked(!dock->is_closed());
  });
  return action;
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
    // What the user sees, not the whole zoomed view, which may be huge.
    if (!name.isEmpty() && !m_zoom_area->viewport()->grab().save(name, "PNG"))
      orq_message_box(QStringLiteral("Cannot write %1").arg(name), GEN_PROMPT_TYPE::ERROR, this);
  });
  // No catalogue entry exports a PDF: a plain action, named like the others.
  auto* export_pdf = new QAction(QStringLiteral("Export P&DF..."), this);
  export_pdf->setObjectName(QStringLiteral("FPV_EXPORT_PDF_ACTION"));
  export_pdf->setStatusTip(QStringLiteral("Writes the whole floor plan to a PDF file"));
  file->addAction(export_pdf);
  connect(export_pdf, &QAction::triggered, this, &FLOORPLAN_WINDOW::export_pdf_dialog);
  build_report_actions(file);
  file->addSeparator();
  QAction* print_action = add_standard_action(file, ORQ_PRINT_ACTION);
  connect(print_action, &QAction::triggered, this, &FLOORPLAN_WINDOW::print);
  connect(add_standard_action(file, ORQ_PRINT_PREVIEW_ACTION), &QAction::triggered, this,
          &FLOORPLAN_WINDOW::print_preview);
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
          [this] { QGuiApplication::clipboard()->setImage(m_zoom_area->viewport()->grab().toImage()); });

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
            id == ORQ_SHOW_PADS_ACTION ? &FLOORPLAN_VIEW::set_show_pads
                                       : &FLOORPLAN_VIEW::set_show_block_names);
  }
  view->addSeparator();
  build_zoom_actions(view);

  view->addSeparator();
  const struct {
    ORQ_ACTION_ENUM id;
    const char* panel;
  } panel_actions[] = {{ORQ_SHOW_HIERARCHY_ACTION, "hierarchy_dock"},
                       {ORQ_SHOW_MESSAGES_ACTION, "messages_dock"},
                       {ORQ_TCL_CONSOLE_ACTION, "tcl_console_dock"}};
  for (const auto& row : panel_actions)
    if (ORQ_DOCK_WIDGET* dock = panel(QString::fromLatin1(row.panel)))
      add_panel_action(view, row.id, dock);
  view->addSeparator();
  QAction* tabbed = add_standard_action(view, ORQ_TABBED_DOCUMENTS_ACTION);
  tabbed->setCheckable(true);
  bool tabs = true;
  gen_settings().get_group_bool(k_mdi_tabs_group, QStringLiteral("mdi_tabs"), &tabs);
  tabbed->setChecked(tabs);
  connect(tabbed, &QAction::toggled, this, [this](bool on) {
    gen_settings().set_group_bool(k_mdi_tabs_group, QStringLiteral("mdi_tabs"), on);
    m_mdi->set_tabs();
    if (!on)
      m_mdi->tileSubWindows();
  });
  connect(add_standard_action(view, ORQ_RESET_LAYOUT_ACTION), &QAction::triggered, this,
          &FLOORPLAN_WINDOW::reset_layout);

  QMenu* tools = menuBar()->addMenu(QStringLiteral("&Tools"));
  QAction* planner = add_standard_action(tools, ORQ_START_PARTITION_PLANNER_ACTION);
  QAction* options = add_standard_action(tools, ORQ_OPTIONS_ACTION);
  connect(options, &QAction::triggered, this, &FLOORPLAN_WINDOW::open_options);
  build_variants_action(tools);

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

  auto* bar = new ORQ_TOOL_BAR(QStringLiteral("Standard"), this);
  addToolBar(Qt::TopToolBarArea, bar);
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
  bar->addSeparator();
  m_zoom_area->add_mode_actions(bar);
  bar->addSeparator();
  bar->addAction(m_zoom_area->get_zoom_fit_action());
  bar->addAction(m_zoom_area->get_zoom_selection_action());
  bar->addAction(m_zoom_area->get_zoom_in_action());
  bar->addAction(m_zoom_area->get_zoom_out_action());
  bar->addSeparator();
  bar->addAction(print_action);
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

void FLOORPLAN_WINDOW::restore_panel_layout()
{
  const QVariant saved = gen_settings().value(k_settings_key, QStringLiteral("layout"));
  if (!saved.isValid())
    return;
  const QByteArray state = saved.toByteArray();
  if (state.isEmpty() || !restoreState(state, k_layout_version)) {
    fall_back_to_default_layout(QStringLiteral("it is damaged or comes from another version"));
    return;
  }
  // Every entry is checked before any is applied: half a layout is worse
  // than the default one.
  struct ENTRY {
    ORQ_DOCK_WIDGET* dock;
    bool pinned;
    bool closed;
  };
  QList<ENTRY> entries;
  const QStringList saved_panels = gen_settings().value(k_settings_key, QStringLiteral("panels")).toStringList();
  for (const QString& line : saved_panels) {
    const QStringList fields = line.split(QLatin1Char('|'));
    bool pinned_ok = false;
    bool closed_ok = false;
    const int pinned = fields.value(1).toInt(&pinned_ok);
    const int closed = fields.value(2).toInt(&closed_ok);
    if (fields.size() != 3 || !pinned_ok || !closed_ok || pinned < 0 || pinned > 1 || closed < 0 || closed > 1) {
      fall_back_to_default_layout(QStringLiteral("it is damaged"));
      return;
    }
    ORQ_DOCK_WIDGET* dock = panel(fields.at(0));
    if (!dock) {
      fall_back_to_default_layout(QStringLiteral("the panel \"%1\" no longer exists").arg(fields.at(0)));
      return;
    }
    entries.append({dock, pinned == 1, closed == 1});
  }
  for (const ENTRY& entry : qAsConst(entries)) {
    if (entry.closed)
      entry.dock->close_widget();
    else if (!entry.pinned && !entry.dock->isFloating())
      entry.dock->get_titlebar()->toggle_pin(false);
  }
  // The state brings back the bars as they were shown; only bars with
  // buttons stay.
  for (ORQ_DOCK_WIDGET_BUTTON_BAR* bar : get_dock_bar_of_area())
    if (bar->get_button_action_map().isEmpty())
      bar->hide();
}

void FLOORPLAN_WINDOW::save_panel_layout()
{
  QStringList panels;
  for (ORQ_DOCK_WIDGET* dock : qAsConst(m_panels))
    panels << QStringLiteral("%1|%2|%3")
                  .arg(dock->objectName())
                  .arg(dock->is_pinned() ? 1 : 0)
                  .arg(dock->is_closed() ? 1 : 0);
  gen_settings().set_value(k_settings_key, QStringLiteral("layout"), saveState(k_layout_version));
  gen_settings().set_value(k_settings_key, QStringLiteral("panels"), panels);
}

void FLOORPLAN_WINDOW::fall_back_to_default_layout(const QString& why)
{
  reset_layout();
  const QString text =
      QStringLiteral("The saved window layout could not be restored (%1); the default layout is used.").arg(why);
  gen_message_service().warning(text);
  m_hover->setText(text);
}

void FLOORPLAN_WINDOW::reset_layout()
{
  for (ORQ_DOCK_WIDGET* dock : qAsConst(m_panels)) {
    if (dock->isFloating())
      dock->setFloating(false);
    if (!dock->is_pinned() && !dock->is_closed())
      dock->get_titlebar()->toggle_pin(true);
    dock->show();
  }
  restoreState(m_default_layout, k_layout_version);
  for (ORQ_DOCK_WIDGET_BUTTON_BAR* bar : get_dock_bar_of_area())
    if (bar->get_button_action_map().isEmpty())
      bar->hide();
}

bool FLOORPLAN_WINDOW::eventFilter(QObject* watched, QEvent* event)
{
  // The area's new size is known once its own handling is done.
  if (watched == m_zoom_area && event->type() == QEvent::Resize && m_keep_fitted)
    QTimer::singleShot(0, this, &FLOORPLAN_WINDOW::fit_while_untouched);
  if (watched == m_zoom_label && event->type() == QEvent::MouseButtonRelease) {
    auto* mouse = static_cast<QMouseEvent*>(event);
    if (mouse->button() == Qt::LeftButton && m_zoom_label->rect().contains(mouse->pos())) {
      // Once the release is delivered: the dialog's loop must not run
      // inside the label's own mouse handling.
      QTimer::singleShot(0, this, &FLOORPLAN_WINDOW::open_set_zoom_dlg);
      return true;
    }
  }
  if (event->type() == QEvent::Close && watched->objectName() == QLatin1String("floorplan_document")) {
    event->ignore();
    return true;
  }
  if (event->type() == QEvent::MouseButtonPress && watched->isWidgetType()) {
    auto* widget = static_cast<QWidget*>(watched);
    // A bar button slides its own panel in and out; it is not "elsewhere".
    if (widget->window() == this && !qobject_cast<ORQ_DOCK_WIDGET_BUTTON*>(widget))
      hide_unpinned_widgets(static_cast<QMouseEvent*>(event));
  }
  return ORQ_MAIN_WINDOW::eventFilter(watched, event);
}

void FLOORPLAN_WINDOW::closeEvent(QCloseEvent* event)
{
  gen_settings().set_value(k_settings_key, QStringLiteral("geometry"), saveGeometry());
  save_panel_layout();
  gen_settings().sync();
  ORQ_MAIN_WINDOW::closeEvent(event);
}
