#pragma once
// The demos' input: mouse and key events sent to widgets the way the window
// system delivers them, and a wait for what they start.
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTimer>
#include <QWidget>

#include <functional>

inline void demo_send_mouse(QWidget* widget, QEvent::Type type, const QPoint& pos, Qt::MouseButton button,
                            Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
  QMouseEvent event(type, pos, widget->mapToGlobal(pos), button, buttons, modifiers);
  QCoreApplication::sendEvent(widget, &event);
}

inline void demo_click(QWidget* widget, const QPoint& pos, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
  demo_send_mouse(widget, QEvent::MouseButtonPress, pos, Qt::LeftButton, Qt::LeftButton, modifiers);
  demo_send_mouse(widget, QEvent::MouseButtonRelease, pos, Qt::LeftButton, Qt::NoButton, modifiers);
}

inline void demo_double_click(QWidget* widget, const QPoint& pos)
{
  demo_click(widget, pos);
  demo_send_mouse(widget, QEvent::MouseButtonDblClick, pos, Qt::LeftButton, Qt::LeftButton);
  demo_send_mouse(widget, QEvent::MouseButtonRelease, pos, Qt::LeftButton, Qt::NoButton);
}

inline void demo_type(QWidget* widget, const QString& text)
{
  for (const QChar c : text) {
    const int key = c.isLetter() ? Qt::Key_A + (c.toUpper().unicode() - 'A') : c.unicode();
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, QString(c));
    QCoreApplication::sendEvent(widget, &press);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, QString(c));
    QCoreApplication::sendEvent(widget, &release);
  }
}

// Runs the event loop until done says so or timeout_ms pass; false then.
inline bool demo_wait_until(const std::function<bool()>& done, int timeout_ms = 10000)
{
  QElapsedTimer clock;
  clock.start();
  // Wakes the loop now and then, so a wait never outlasts its timeout.
  QTimer tick;
  tick.start(10);
  while (!done()) {
    if (clock.elapsed() > timeout_ms)
      return false;
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  }
  return true;
}
