// The main window's reports: the hierarchy written to a text file, and the
// Block Variants report beside the plan.
#include "floorplan_window.h"

#include "block_variants_report.h"

#include <orq_message_box.h>

#include <gen_message_service.h>

#include <orq_dialog.h>

#include <QAction>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QMenu>
#include <QVBoxLayout>

void FLOORPLAN_WINDOW::build_report_actions(QMenu* file_menu)
{
  // No catalogue entry exports a tree: a plain action, named like the others.
  auto* export_hierarchy = new QAction(QStringLiteral("Export &Hierarchy..."), this);
  export_hierarchy->setObjectName(QStringLiteral("FPV_EXPORT_HIERARCHY_ACTION"));
  export_hierarchy->setStatusTip(
      QStringLiteral("Writes the rows the Hierarchy panel shows, its visible columns, to a text file"));
  export_hierarchy->setEnabled(m_hierarchy != nullptr);
  file_menu->addAction(export_hierarchy);
  connect(export_hierarchy, &QAction::triggered, this, &FLOORPLAN_WINDOW::export_hierarchy_dialog);
}

QString FLOORPLAN_WINDOW::export_hierarchy(const QString& file_name)
{
  if (!m_hierarchy)
    return QStringLiteral("Cannot write %1: there is no hierarchy").arg(file_name);
  QString problem;
  QMetaObject::invokeMethod(m_hierarchy, "export_hierarchy", Q_RETURN_ARG(QString, problem),
                            Q_ARG(QString, file_name));
  return problem;
}

void FLOORPLAN_WINDOW::export_hierarchy_dialog()
{
  // Qt's own dialog, not the platform's: the same on every desktop, and one
  // that the demo can fill in as a user does.
  QFileDialog dialog(this, QStringLiteral("Export Hierarchy"));
  dialog.setObjectName(QStringLiteral("export_hierarchy_dialog"));
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setNameFilters({QStringLiteral("Text files (*.txt)"), QStringLiteral("All files (*)")});
  dialog.setDefaultSuffix(QStringLiteral("txt"));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
    return;
  const QString problem = export_hierarchy(dialog.selectedFiles().first());
  if (problem.isEmpty())
    return;
  // In the Messages panel as well, where it stays after the box is gone.
  gen_message_service().warning(problem);
  orq_message_box(problem, GEN_PROMPT_TYPE::ERROR, this);
}

void FLOORPLAN_WINDOW::build_variants_action(QMenu* tools_menu)
{
  auto* variants = new QAction(QStringLiteral("Block &Variants..."), this);
  variants->setObjectName(QStringLiteral("FPV_BLOCK_VARIANTS_ACTION"));
  variants->setStatusTip(QStringLiteral("Picks the implementation each macro is built from"));
  tools_menu->addAction(variants);
  connect(variants, &QAction::triggered, this, &FLOORPLAN_WINDOW::open_block_variants);
}

ORQ_DIALOG* FLOORPLAN_WINDOW::open_block_variants()
{
  // One report for the window's life, beside the plan rather than over it:
  // the user watches the macros change while picking.
  if (!m_variants) {
    m_variants = new ORQ_DIALOG(this);
    m_variants->setObjectName(QStringLiteral("block_variants_dialog"));
    m_variants->setWindowTitle(QStringLiteral("Block Variants"));
    auto* report = new BLOCK_VARIANTS_REPORT(m_view, m_variants);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, m_variants);
    auto* layout = new QVBoxLayout(m_variants);
    layout->addWidget(report);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::rejected, m_variants, &QDialog::close);
    m_variants->resize(560, 440);
    m_variants->move(geometry().topRight() - QPoint(m_variants->width() + 40, -120));
  }
  m_variants->show();
  m_variants->raise();
  m_variants->activateWindow();
  return m_variants;
}
