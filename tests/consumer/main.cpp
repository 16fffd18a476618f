// Starts the way every tool of the suite starts, using headers by class name
// and the umbrella header, and prints what it found.
#include <orq.h>
#include <orq_actions.h>
#include <orq_app.h>
#include <orq_main_window.h>
#include <orq_tcl_action.h>

#include <gen_undo_redo_mgr.h>

#include <cstdio>

class CONSUMER_WINDOW : public ORQ_MAIN_WINDOW {
  Q_OBJECT
public:
  CONSUMER_WINDOW() { setWindowTitle(QStringLiteral("consumer")); }
};

int main(int argc, char** argv)
{
  char** qt_argv = ORQ_APP::copy_argv_for_qt(argc, const_cast<const char**>(argv));
  int qt_argc = argc;
  ORQ_APP app(qt_argc, qt_argv);
  app.init_instance(argc, const_cast<const char**>(argv));
  CONSUMER_WINDOW window;
  // The catalogue's texts are data of the installed library, usable as is.
  QAction* copy = orq_create_action(ORQ_COPY_ACTION, &window);
  const bool ok =
      orq_get_app() == &app && app.get_main_window() == &window && app.get_undo_redo_mgr() &&
      qobject_cast<ORQ_PROXY_STYLE*>(QApplication::style()) &&
      copy->text() == QLatin1String(ORQ_ACTION_MENU_TEXT_COPY) && !copy->icon().isNull() &&
      qobject_cast<ORQ_TCL_ACTION*>(orq_create_action(ORQ_START_PARTITION_PLANNER_ACTION, &window)) &&
      orq_get_file_type_icon(FIO_VHDL_FILE).pixmap(16).toImage() ==
          orq_get_icon(ORQ_VHDL_FILE_ICON).pixmap(16).toImage();
  std::printf("consumer %s\n", ok ? "ok" : "broken");
  app.exit_instance();
  return ok ? 0 : 1;
}

#include "main.moc"
