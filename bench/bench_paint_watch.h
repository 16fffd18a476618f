#pragma once
// Prints "painted" after a window's first paint has been handled and quits,
// so that the parent of a start-up benchmark can stop its clock.
#include <QCoreApplication>
#include <QEvent>
#include <QTimer>

#include <cstdio>

class BENCH_PAINT_WATCH : public QObject {
public:
  bool eventFilter(QObject* watched, QEvent* event) override
  {
    if (event->type() == QEvent::Paint && !m_seen) {
      m_seen = true;
      QTimer::singleShot(0, [] {
        std::printf("painted\n");
        std::fflush(stdout);
        QCoreApplication::quit();
      });
    }
    return QObject::eventFilter(watched, event);
  }

private:
  bool m_seen = false;
};
