#include "gen_message_service.h"

#include "gen_config_vars.h"
#include "gen_process.h"

#include <QApplication>
#include <QDateTime>
#include <QFile>

#include <atomic>
#include <cstdio>

namespace {
std::atomic<GEN_MESSAGE_SERVICE*> g_service{nullptr};

const char* kind_name(GEN_MESSAGE_KIND kind)
{
  switch (kind) {
  case GEN_MESSAGE_KIND::INFO:
    return "Info";
  case GEN_MESSAGE_KIND::WARNING:
    return "Warning";
  case GEN_MESSAGE_KIND::ERROR:
  case GEN_MESSAGE_KIND::OK_ONLY:
    return "Error";
  }
  return "Message";
}
} // namespace

QString gen_format_message_text(const QString& text, const QStringList& args)
{
  QString out;
  out.reserve(text.size());
  const int n = text.size();
  for (int i = 0; i < n; ++i) {
    const QChar c = text.at(i);
    if (c != QLatin1Char('%') || i + 1 >= n) {
      out += c;
      continue;
    }
    if (text.at(i + 1) == QLatin1Char('%')) {
      out += QLatin1Char('%');
      ++i;
      continue;
    }
    int j = i + 1;
    int index = 0;
    while (j < n && text.at(j).isDigit() && index < 100)
      index = index * 10 + text.at(j++).digitValue();
    if (j == i + 1) { // a lone percent sign stands for itself
      out += c;
      continue;
    }
    // An optional "!fmt!" tag says how the argument was meant to be printed;
    // arguments arrive as text already, so the tag is consumed and ignored.
    if (j < n && text.at(j) == QLatin1Char('!')) {
      const int close = text.indexOf(QLatin1Char('!'), j + 1);
      if (close > j)
        j = close + 1;
    }
    if (index >= 1 && index <= args.size())
      out += args.at(index - 1);
    i = j - 1;
  }
  return out;
}

GEN_MESSAGE_SERVICE::GEN_MESSAGE_SERVICE() = default;
GEN_MESSAGE_SERVICE::~GEN_MESSAGE_SERVICE() = default;

void GEN_MESSAGE_SERVICE::init(int argc, const char* const* argv)
{
  bool regression = qEnvironmentVariableIsSet("VANTOR_REGRESSION_TEST");
  for (int i = 1; argv && i < argc && argv[i]; ++i)
    if (qstrcmp(argv[i], "-regression") == 0)
      regression = true;
  const bool debug = qEnvironmentVariableIsSet("VANTOR_DEBUG") ||
                     gen_config_vars().get_bool(QStringLiteral("vantor_debug"), false);
  std::lock_guard<std::mutex> lock(m_mutex);
  m_regression = m_regression || regression;
  m_debug_enabled = m_debug_enabled || debug;
  m_program = gen_process().program_base_name();
  m_initialized = true;
}

void GEN_MESSAGE_SERVICE::shutdown()
{
  std::lock_guard<std::mutex> lock(m_mutex);
  m_initialized = false;
}

bool GEN_MESSAGE_SERVICE::is_initialized() const
{
  std::lock_guard<std::mutex> lock(m_mutex);
  return m_initialized;
}

QString GEN_MESSAGE_SERVICE::format_message(int number, const QStringList& args) const
{
  const GEN_MESSAGE_DEF* def = gen_find_message(number);
  if (!def)
    return QStringLiteral("Message %1 is not in the catalogue (%2)")
        .arg(number)
        .arg(args.join(QStringLiteral(", ")));
  return gen_format_message_text(QString::fromUtf8(def->text), args);
}

void GEN_MESSAGE_SERVICE::post_message(int number, const QStringList& args)
{
  const GEN_MESSAGE_DEF* def = gen_find_message(number);
  GEN_MESSAGE message;
  message.number = number;
  message.kind = def ? def->kind : GEN_MESSAGE_KIND::ERROR;
  message.text = format_message(number, args);
  deliver(message);
}

void GEN_MESSAGE_SERVICE::warning(const QString& text)
{
  deliver(GEN_MESSAGE{0, GEN_MESSAGE_KIND::WARNING, text});
}

void GEN_MESSAGE_SERVICE::deliver(const GEN_MESSAGE& message)
{
  const QString line =
      message.number ? QStringLiteral("%1 (%2): %3")
                           .arg(QLatin1String(kind_name(message.kind)))
                           .arg(message.number)
                           .arg(message.text)
                     : QStringLiteral("%1: %2").arg(QLatin1String(kind_name(message.kind)), message.text);
  std::fprintf(stderr, "%s\n", line.toLocal8Bit().constData());
  std::fflush(stderr);
  debug_log(QLatin1String(kind_name(message.kind)), message.text);

  // Listeners are called outside the lock so that one may post again.
  std::vector<LISTENER> listeners;
  {
    std::lock_guard<std::mutex> lock(m_mutex);
    for (const auto& entry : m_listeners)
      listeners.push_back(entry.second);
  }
  for (const auto& listener : listeners)
    listener(message);
}

QMessageBox::StandardButton GEN_MESSAGE_SERVICE::prompt(int number, const QStringList& args,
                                                        QMessageBox::StandardButtons buttons,
                                                        QMessageBox::StandardButton default_button,
                                                        QWidget* parent)
{
  const QString text = format_message(number, args);
  debug_log(QStringLiteral("prompt"), text);
  const GEN_MESSAGE_DEF* def = gen_find_message(number);
  const bool ok_only = def && def->kind == GEN_MESSAGE_KIND::OK_ONLY;
  if (ok_only) {
    buttons = QMessageBox::Ok;
    default_button = QMessageBox::Ok;
  }
  if (is_regression_test_mode() || !qobject_cast<QApplication*>(QCoreApplication::instance()))
    return default_button;
  QMessageBox box(parent);
  box.setIcon(!def || ok_only || def->kind == GEN_MESSAGE_KIND::ERROR ? QMessageBox::Critical
              : def->kind == GEN_MESSAGE_KIND::WARNING                ? QMessageBox::Warning
                                                                      : QMessageBox::Information);
  box.setWindowTitle(QApplication::applicationDisplayName());
  box.setText(text);
  box.setStandardButtons(buttons);
  box.setDefaultButton(default_button);
  return static_cast<QMessageBox::StandardButton>(box.exec());
}

QString GEN_MESSAGE_SERVICE::debug_log_path() const
{
  const QString explicit_path = qEnvironmentVariable("VANTOR_DEBUG_LOG");
  if (!explicit_path.isEmpty())
    return explicit_path;
  std::lock_guard<std::mutex> lock(m_mutex);
  if (!m_debug_enabled)
    return {};
  const QString program = m_program.isEmpty() ? gen_process().program_base_name() : m_program;
  return program + QStringLiteral("_debug.log");
}

void GEN_MESSAGE_SERVICE::debug_log(const QString& tag, const QString& text)
{
  const QString path = debug_log_path();
  if (path.isEmpty())
    return;
  static std::mutex file_mutex;
  std::lock_guard<std::mutex> lock(file_mutex);
  QFile file(path);
  // A debug log that cannot be written must never disturb the tool.
  if (!file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Text))
    return;
  const QString line =
      QStringLiteral("%1 [%2] %3\n").arg(QDateTime::currentDateTime().toString(Qt::ISODateWithMs), tag, text);
  file.write(line.toUtf8());
}

bool GEN_MESSAGE_SERVICE::is_debug_enabled() const
{
  std::lock_guard<std::mutex> lock(m_mutex);
  return m_debug_enabled;
}

bool GEN_MESSAGE_SERVICE::is_regression_test_mode() const
{
  std::lock_guard<std::mutex> lock(m_mutex);
  return m_regression;
}

void GEN_MESSAGE_SERVICE::set_debug_enabled(bool enabled)
{
  std::lock_guard<std::mutex> lock(m_mutex);
  m_debug_enabled = enabled;
}

void GEN_MESSAGE_SERVICE::set_regression_test_mode(bool on)
{
  std::lock_guard<std::mutex> lock(m_mutex);
  m_regression = on;
}

int GEN_MESSAGE_SERVICE::add_listener(LISTENER listener)
{
  std::lock_guard<std::mutex> lock(m_mutex);
  const int id = m_next_listener++;
  m_listeners.emplace_back(id, std::move(listener));
  return id;
}

void GEN_MESSAGE_SERVICE::remove_listener(int id)
{
  std::lock_guard<std::mutex> lock(m_mutex);
  for (auto it = m_listeners.begin(); it != m_listeners.end(); ++it)
    if (it->first == id) {
      m_listeners.erase(it);
      return;
    }
}

GEN_MESSAGE_SERVICE& gen_message_service()
{
  static GEN_MESSAGE_SERVICE default_service;
  GEN_MESSAGE_SERVICE* service = g_service.load();
  return service ? *service : default_service;
}

void gen_set_message_service(GEN_MESSAGE_SERVICE* service)
{
  g_service.store(service);
}
