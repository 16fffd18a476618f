// Starts the way every tool of the suite starts, using headers by class name
// and the umbrella header, and prints what it found.
#include <orq.h>
#include <orq_app.h>
#include <orq_main_window.h>

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
  const bool ok = orq_get_app() == &app && app.get_main_window() == &window && app.get_undo_redo_mgr()
                  && qobject_cast<ORQ_PROXY_STYLE*>(QApplication::style());
  std::printf("consumer %s\n", ok ? "ok" : "broken");
  app.exit_instance();
  return ok ? 0 : 1;
}

#include "main.moc"
