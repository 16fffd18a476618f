// The main window's reports: the hierarchy written to a text file.
#include "floorplan_window.h"

#include <orq_message_box.h>

#include <gen_message_service.h>

#include <QAction>
#include <QFileDialog>
#include <QMenu>

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
