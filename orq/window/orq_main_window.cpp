#include "orq_main_window.h"

#include "orq_dialog.h"
#include "orq_safe_connect.h"

#include "gen_help.h"

#include <QAction>
#include <QApplication>

ORQ_MAIN_WINDOW::ORQ_MAIN_WINDOW(QWidget* parent, Qt::WindowFlags flags)
    : QMainWindow(parent, flags)
{
  setDockNestingEnabled(true);
  setStyleSheet(QStringLiteral("QMainWindow::separator:hover { background: darkgray; }"));
  auto* help = new QAction(QStringLiteral("F1 Help"), this);
  help->setShortcut(QKeySequence(QStringLiteral("F1")));
  help->setShortcutContext(Qt::WidgetWithChildrenShortcut);
  addAction(help);
  orq_safe_connect(help, SIGNAL(triggered()), this, SLOT(f1_help()), Qt::AutoConnection, __FILE__,
                   __LINE__);
}

ORQ_MAIN_WINDOW::~ORQ_MAIN_WINDOW() = default;

void ORQ_MAIN_WINDOW::f1_help()
{
  QWidget* focus = QApplication::focusWidget();
  QWidget* context = focus ? focus : this;
  // The nearest named widget says best what the user is looking at.
  QString topic;
  for (QWidget* w = context; w && topic.isEmpty(); w = w->parentWidget())
    topic = w->objectName();
  if (topic.isEmpty())
    topic = QString::fromLatin1(metaObject()->className());
  gen_help().show_help(context, topic);
}
