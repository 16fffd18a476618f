#include "orq_tcl_action.h"

#include "gen_tcl.h"
#include "orq_message_box.h"
#include "orq_require_p.h"

ORQ_TCL_ACTION::ORQ_TCL_ACTION(QObject* parent)
    : QAction(parent)
{
  connect_trigger();
}

ORQ_TCL_ACTION::ORQ_TCL_ACTION(const QString& text, QObject* parent)
    : QAction(text, parent)
{
  connect_trigger();
}

ORQ_TCL_ACTION::ORQ_TCL_ACTION(const QIcon& icon, const QString& text, QObject* parent)
    : QAction(icon, text, parent)
{
  connect_trigger();
}

void ORQ_TCL_ACTION::connect_trigger()
{
  const bool okay = static_cast<bool>(connect(this, SIGNAL(triggered()), this, SLOT(execute_action())));
  ORQ_REQUIRE(okay);
}

void ORQ_TCL_ACTION::set_tcl_function(const char* command)
{
  m_tcl_function = command ? command : "";
}

void ORQ_TCL_ACTION::execute_action()
{
  GEN_TCL& tcl = gen_tcl();
  if (tcl.eval(QString::fromStdString(m_tcl_function)) == GEN_TCL::OK)
    return;
  const QString error_info = tcl.get_var(QStringLiteral("errorInfo"));
  orq_message_box(QStringLiteral("Invalid internal command: \n") + error_info, GEN_PROMPT_TYPE::ERROR);
}
