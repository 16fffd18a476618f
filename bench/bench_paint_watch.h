#pragma once
// Prints "painted" after a window's first paint has been handled and quits,
// so that the parent of a start-up benchmark can stop its clock. A watch
// made with a description function prints what it returns on the next line,
// after the clock has stopped, so the parent can check both children built
// the same window.
#include <QAction>
#include <QByteArray>
#include <QCoreApplication>
#include <QEvent>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>

#include <cstdio>
#include <functional>
#include <utility>

class BENCH_PAINT_WATCH : public QObject {
public:
  explicit BENCH_PAINT_WATCH(std::function<QByteArray()> describe = {})
      : m_describe(std::move(describe))
  {
  }

  bool eventFilter(QObject* watched, QEvent* event) override
  {
    if (event->type() == QEvent::Paint && !m_seen) {
      m_seen = true;
      QTimer::singleShot(0, [this] {
        std::printf("painted\n");
        std::fflush(stdout);
        if (m_describe) {
          std::printf("%s\n", m_describe().constData());
          std::fflush(stdout);
        }
        QCoreApplication::quit();
      });
    }
    return QObject::eventFilter(watched, event);
  }

private:
  std::function<QByteArray()> m_describe;
  bool m_seen = false;
};

// The menus of a main window in one line: per menu its title, its number of
// actions and how many of them have an icon, then a hash of every action text.
inline QByteArray bench_menu_shape(const QMainWindow& window)
{
  QByteArray shape;
  QString texts;
  int actions = 0;
  const QList<QAction*> menus = window.menuBar()->actions();
  for (QAction* entry : menus) {
    int icons = 0;
    const QList<QAction*> items = entry->menu()->actions();
    for (QAction* item : items) {
      icons += item->icon().isNull() ? 0 : 1;
      texts += item->text() + QLatin1Char('\n');
    }
    actions += items.size();
    shape += entry->text().toUtf8() + ':' + QByteArray::number(items.size()) + ':' +
             QByteArray::number(icons) + ' ';
  }
  return "menus " + QByteArray::number(menus.size()) + " actions " + QByteArray::number(actions) + " texts " +
         QByteArray::number(qHash(texts)) + " | " + shape.trimmed();
}
