// Dock description elements as tools write them, and as a damaged file or a
// hostile plug-in could hand them over: the dock takes what it understands
// and keeps its title and features otherwise; the manager never loads a
// library the text does not name.
#include "orq_dock_mgr.h"
#include "orq_dock_widget.h"
#include "orq_main_window.h"

#include <QApplication>
#include <QLoggingCategory>

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
  static int argc = 1;
  static char name[] = "fuzz_dock_description";
  static char* argv[] = {name, nullptr};
  static QApplication* app = [] {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLoggingCategory::setFilterRules(QStringLiteral("orq.dock.warning=false"));
    return new QApplication(argc, argv);
  }();
  Q_UNUSED(app)
  static ORQ_MAIN_WINDOW window;
  const std::string xml(reinterpret_cast<const char*>(data), size);
  ORQ_DOCK_WIDGET dock(&window, Qt::WindowFlags(), xml);
  if (int(dock.features()) & ~0xf)
    std::abort();
  // Only names the manager may try; a library of the fuzzer's choosing is
  // never on the path, so every load fails cleanly.
  if (ORQ_DOCK_WIDGET* made = window.get_dock_mgr()->create_dock_widget(xml, &window))
    delete made;
  return 0;
}
