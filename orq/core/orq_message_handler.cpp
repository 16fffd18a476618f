// The two Qt message handlers of a tool process: the filtering one that
// copy_argv_for_qt installs before Qt starts, and the full one that the
// application object installs, with its optional message window.
#include "orq_app.h"
#include "orq_app_p.h"
#include "orq_dialog.h"
#include "orq_main_window.h"

#include "gen_config_vars.h"
#include "gen_internal_error.h"
#include "gen_message_service.h"
#include "gen_process.h"

#include <QElapsedTimer>
#include <QMetaObject>
#include <QPlainTextEdit>
#include <QPointer>
#include <QThread>
#include <QVBoxLayout>

#include <atomic>
#include <cstdio>
#include <mutex>

namespace {
// The handler that was installed before ours: the one process-wide slot
// both of our handlers use.
std::atomic<QtMessageHandler> g_previous_handler{nullptr};

struct MESSAGE_WINDOW {
  std::mutex mutex;
  QPointer<ORQ_DIALOG> dialog;
  QPointer<QPlainTextEdit> edit;
  QElapsedTimer timer;
};

MESSAGE_WINDOW& message_window()
{
  // Lives until the process ends; Qt deletes the dialog with its parent.
  static auto* window = new MESSAGE_WINDOW;
  return *window;
}

struct QT_MSG_SWITCHES {
  bool print;
  bool with_source;
  bool window;
};

const QT_MSG_SWITCHES& switches()
{
  static const QT_MSG_SWITCHES values{gen_config_vars().get_bool(QStringLiteral("qt_msg"), false),
                                      gen_config_vars().get_bool(QStringLiteral("qt_msg_with_source"), false),
                                      gen_config_vars().get_bool(QStringLiteral("qt_msg_wnd"), false)};
  return values;
}

void filtering_handler(QtMsgType type, const QMessageLogContext& context, const QString& msg)
{
  const QtMessageHandler previous = g_previous_handler.load();
  if ((qEnvironmentVariableIsSet("VANTOR_SHOW_QT_MESSAGES") ||
       qEnvironmentVariableIsSet("VANTOR_ENABLE_QT_MESSAGES")) &&
      previous)
    previous(type, context, msg);
}

// Creating the window may itself produce Qt messages; they must not try to
// create it again.
thread_local bool t_creating_window = false;

void ensure_message_window()
{
  ORQ_APP* app = orq_get_app();
  // Widgets belong to the GUI thread; a message from a worker thread before
  // the window exists is printed only.
  if (!app || QThread::currentThread() != app->thread() || t_creating_window)
    return;
  ORQ_MAIN_WINDOW* main_window = app->get_main_window();
  MESSAGE_WINDOW& window = message_window();
  if (!main_window || window.dialog)
    return;
  t_creating_window = true;
  {
    std::lock_guard<std::mutex> lock(window.mutex);
    window.timer.start();
  }
  auto* dialog = new ORQ_DIALOG(main_window);
  dialog->setObjectName(QStringLiteral("orq_qt_message_window"));
  dialog->setWindowTitle(QStringLiteral("qt_msg for %1").arg(gen_process().module_file_name()));
  auto* layout = new QVBoxLayout(dialog);
  auto* edit = new QPlainTextEdit(dialog);
  layout->addWidget(edit);
  window.dialog = dialog;
  window.edit = edit;
  dialog->show();
  t_creating_window = false;
}

void full_handler(QtMsgType type, const QMessageLogContext& context, const QString& msg)
{
  const QT_MSG_SWITCHES& on = switches();
  const char* type_name = "qUnknown";
  const char* colour = "cyan";
  switch (type) {
  case QtDebugMsg:
    type_name = "qDebug";
    colour = "black";
    break;
  case QtWarningMsg:
    type_name = "qWarning";
    colour = "blue";
    break;
  case QtCriticalMsg:
    type_name = "qCritical";
    colour = "orange";
    break;
  case QtFatalMsg:
    type_name = "qFatal";
    colour = "red";
    break;
  default:
    break;
  }

  if (on.print)
    gen_message_service().debug_log(QLatin1String(type_name), QString::fromLocal8Bit(msg.toLocal8Bit()));

#ifndef ORQ_CUSTOMER_BUILD
  if (on.print) {
    const QString text =
        // One arg() call each: a message may itself hold "%1" (Qt's own
        // warnings about arg() do), which a second call would replace.
        on.with_source ? QStringLiteral("%1 (%2:%3): %4\n")
                             .arg(QLatin1String(type_name), QString::fromUtf8(context.file),
                                  QString::number(context.line), msg)
                       : QStringLiteral("%1: %2\n").arg(QLatin1String(type_name), msg);
    gen_process().debugger_output(text);
    std::fprintf(stderr, "%s", text.toLocal8Bit().constData());
    std::fflush(stderr);
    if (qEnvironmentVariableIsSet("KESTREL_QT_DEBUG_BREAK_ON_QT_MSG"))
      gen_process().debug_break();

    if (on.window)
      ensure_message_window();
    MESSAGE_WINDOW& window = message_window();
    QPointer<QPlainTextEdit> edit;
    qint64 elapsed = 0;
    {
      std::lock_guard<std::mutex> lock(window.mutex);
      edit = window.edit;
      if (edit)
        elapsed = window.timer.restart();
    }
    if (edit) {
      const QString html = QStringLiteral("<font face=\"monospace\" color=\"%1\">%2: %3</font>"
                                          "<font color=\"brown\">(%4 ms elapsed)</font>")
                               .arg(QLatin1String(colour), QLatin1String(type_name), msg.toHtmlEscaped(),
                                    QString::number(elapsed));
      QMetaObject::invokeMethod(edit.data(), "appendHtml", Qt::QueuedConnection, Q_ARG(QString, html));
    }
  }
#endif

  if (type == QtFatalMsg)
    gen_internal_error(msg, "ORQ", __FILE__, __LINE__);
}
} // namespace

void orq_install_filtering_message_handler()
{
  g_previous_handler.store(qInstallMessageHandler(filtering_handler));
}

void orq_install_full_message_handler()
{
  g_previous_handler.store(qInstallMessageHandler(full_handler));
}
