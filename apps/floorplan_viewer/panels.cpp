// The viewer's panels as a tool library of the suite builds them: a shared
// library the dock manager loads by name, with one entry point per view.
// The main window passes its choices as properties (fpv_hierarchy_rows,
// fpv_seed), so the library needs nothing from the viewer's own code.
#include "hierarchy_panel.h"

#include <orq.h>

#include <gen_message_service.h>
#include <gen_tcl.h>

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QVBoxLayout>

namespace {

ORQ_DOCK_WIDGET* make_dock(ORQ_MAIN_WINDOW* window, const QString& title, const char* name, QWidget* content)
{
  auto* dock = new ORQ_DOCK_WIDGET(title, window);
  dock->setObjectName(QString::fromLatin1(name));
  dock->setWidget(content);
  return dock;
}

// Shows what the suite's message service posts while the panel lives.
class MESSAGES_PANEL : public QPlainTextEdit {
public:
  MESSAGES_PANEL()
  {
    setObjectName(QStringLiteral("messages_view"));
    setReadOnly(true);
    setMaximumBlockCount(5000);
    QPointer<MESSAGES_PANEL> self(this);
    m_listener = gen_message_service().add_listener([self](const GEN_MESSAGE& message) {
      // Messages may come from worker threads; the text is appended on ours.
      const QString line = message.number ? QStringLiteral("%1 (%2)").arg(message.text).arg(message.number)
                                          : message.text;
      if (self)
        QMetaObject::invokeMethod(self, [self, line] {
          if (self)
            self->appendPlainText(line);
        });
    });
    appendPlainText(QStringLiteral("Messages of this session appear here."));
  }
  ~MESSAGES_PANEL() override { gen_message_service().remove_listener(m_listener); }

private:
  int m_listener;
};

// A console on the application's own Tcl interpreter.
class TCL_CONSOLE : public QWidget {
public:
  TCL_CONSOLE()
      : m_output(new QPlainTextEdit(this))
      , m_input(new QLineEdit(this))
  {
    setObjectName(QStringLiteral("tcl_console"));
    m_output->setObjectName(QStringLiteral("tcl_output"));
    m_output->setReadOnly(true);
    m_input->setObjectName(QStringLiteral("tcl_input"));
    m_input->setPlaceholderText(QStringLiteral("Tcl command"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(2, 2, 2, 2);
    layout->addWidget(m_output, 1);
    layout->addWidget(m_input);
    QString version;
    gen_tcl().eval(QStringLiteral("info patchlevel"), &version);
    m_output->appendPlainText(QStringLiteral("Tcl %1").arg(version));
    connect(m_input, &QLineEdit::returnPressed, this, &TCL_CONSOLE::run);
  }

  void run()
  {
    const QString command = m_input->text();
    if (command.trimmed().isEmpty())
      return;
    QString result;
    const int code = gen_tcl().eval(command, &result);
    m_output->appendPlainText(QStringLiteral("% ") + command);
    if (!result.isEmpty() || code != 0)
      m_output->appendPlainText(code == 0 ? result : QStringLiteral("error: ") + result);
    m_input->clear();
  }

private:
  QPlainTextEdit* m_output;
  QLineEdit* m_input;
};

} // namespace

extern "C" {

Q_DECL_EXPORT ORQ_DOCK_WIDGET* fpv_panels_hierarchy_create_dock_widget(ORQ_MAIN_WINDOW* window)
{
  const int rows = window->property("fpv_hierarchy_rows").toInt();
  if (rows <= 0)
    return nullptr;
  auto* panel = new HIERARCHY_PANEL(rows, window->property("fpv_seed").toUInt(), nullptr);
  panel->setObjectName(QStringLiteral("hierarchy_panel"));
  return make_dock(window, QStringLiteral("Hierarchy"), "hierarchy_dock", panel);
}

Q_DECL_EXPORT ORQ_DOCK_WIDGET* fpv_panels_messages_create_dock_widget(ORQ_MAIN_WINDOW* window)
{
  return make_dock(window, QStringLiteral("Messages"), "messages_dock", new MESSAGES_PANEL);
}

Q_DECL_EXPORT ORQ_DOCK_WIDGET* fpv_panels_tcl_console_create_dock_widget(ORQ_MAIN_WINDOW* window)
{
  return make_dock(window, QStringLiteral("Tcl Console"), "tcl_console_dock", new TCL_CONSOLE);
}
}
