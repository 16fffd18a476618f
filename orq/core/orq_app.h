#pragma once
// The one application object of a tool process. Start-up is
//   char** qt_argv = ORQ_APP::copy_argv_for_qt(argc, argv);
//   ORQ_APP app(argc, qt_argv);
//   app.init_instance(argc, argv);
//   ... app.exec() ...
//   app.exit_instance();
#include "orq_export.h"

#include <QApplication>

class GEN_UNDO_REDO_MGR;
class ORQ_MAIN_WINDOW;

class ORQ_EXPORT ORQ_APP : public QApplication {
  Q_OBJECT
public:
  ORQ_APP(int& argc, char** argv);
  ~ORQ_APP() override;

  // Before the constructor: message filtering, allocator release rate,
  // environment, style. Returns the argument vector for the constructor
  // (null when argc is 0 or argv is null); it lives as long as the process.
  static char** copy_argv_for_qt(int argc, const char** argv);

  // Second phase: event filter, message service, undo/redo manager, Tcl
  // queue pump, memory and profiling, processor limits.
  virtual bool init_instance(int argc, const char** argv);
  virtual void exit_instance();

  // The tool's main window; by default the first top-level ORQ_MAIN_WINDOW.
  virtual ORQ_MAIN_WINDOW* get_main_window();
  ORQ_MAIN_WINDOW* get_main_frame();

  // Owned from init_instance to exit_instance, null outside.
  GEN_UNDO_REDO_MGR* get_undo_redo_mgr();

protected slots:
  void flush_tcl_queue();

private:
  GEN_UNDO_REDO_MGR* m_undo_redo_mgr = nullptr;
};

// The application object, or null when there is none or it is of another class.
ORQ_EXPORT ORQ_APP* orq_get_app();
