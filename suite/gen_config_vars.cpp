#include "gen_config_vars.h"

#include "gen_message_service.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <atomic>

namespace {
std::atomic<GEN_CONFIG_VARS*> g_service{nullptr};

// Names are C identifiers; anything else on the left of "=" is a typo we
// would rather report than silently keep under a name nobody reads.
bool is_valid_name(const QString& name)
{
  static const QRegularExpression pattern(QStringLiteral("^[A-Za-z_][A-Za-z0-9_.]*$"));
  return pattern.match(name).hasMatch();
}

// A configuration file is a handful of lines; anything this large is not one.
constexpr qint64 k_max_file_size = 4 * 1024 * 1024;
}  // namespace

GEN_CONFIG_VARS::~GEN_CONFIG_VARS() = default;

QHash<QString, GEN_INI_CONFIG_VARS::ENTRY>
GEN_INI_CONFIG_VARS::parse(const QByteArray& text, const QString& shown_name,
                           const std::function<void(const QString&)>& warn)
{
  QHash<QString, ENTRY> entries;
  const QList<QByteArray> lines = text.split('\n');
  for (int index = 0; index < lines.size(); ++index) {
    const int line_number = index + 1;
    const QString line = QString::fromUtf8(lines.at(index)).trimmed();
    if (line.isEmpty() || line.startsWith(QLatin1Char('#')) || line.startsWith(QLatin1Char(';')))
      continue;
    const int eq = line.indexOf(QLatin1Char('='));
    const QString name = eq > 0 ? line.left(eq).trimmed() : QString();
    if (eq <= 0 || !is_valid_name(name)) {
      warn(QStringLiteral("%1:%2: ignored \"%3\": expected a line of the form name=value")
               .arg(shown_name)
               .arg(line_number)
               .arg(line.left(80)));
      continue;
    }
    if (entries.contains(name))
      warn(QStringLiteral("%1:%2: %3 is set again; line %4 is ignored")
               .arg(shown_name)
               .arg(line_number)
               .arg(name)
               .arg(entries.value(name).line));
    entries.insert(name, ENTRY{line.mid(eq + 1).trimmed(), line_number});
  }
  return entries;
}

bool gen_parse_bool(const QString& text, bool* ok)
{
  const QString t = text.trimmed().toLower();
  *ok = true;
  if (t == QLatin1String("1") || t == QLatin1String("on") || t == QLatin1String("true")
      || t == QLatin1String("yes"))
    return true;
  if (t == QLatin1String("0") || t == QLatin1String("off") || t == QLatin1String("false")
      || t == QLatin1String("no"))
    return false;
  *ok = false;
  return false;
}

GEN_INI_CONFIG_VARS::GEN_INI_CONFIG_VARS(const QString& path)
    : m_path(path)
{
  if (m_path.isEmpty())
    m_path = qEnvironmentVariable("VANTOR_INI");
  if (m_path.isEmpty())
    m_path = QStringLiteral("vantor.ini");
}

QString GEN_INI_CONFIG_VARS::path() const
{
  return m_path;
}

void GEN_INI_CONFIG_VARS::load()
{
  std::call_once(m_loaded, [this] {
    QFile file(m_path);
    if (!file.exists())
      return;
    const QString shown = QFileInfo(m_path).fileName();
    if (QFileInfo(m_path).size() > k_max_file_size) {
      gen_message_service().warning(
          QStringLiteral("%1: file is larger than %2 bytes and was not read; defaults are used")
              .arg(m_path)
              .arg(k_max_file_size));
      return;
    }
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
      gen_message_service().warning(QStringLiteral("%1: cannot be read (%2); defaults are used")
                                        .arg(m_path, file.errorString()));
      return;
    }
    QHash<QString, ENTRY> entries =
        parse(file.readAll(), shown, [](const QString& text) { gen_message_service().warning(text); });
    std::lock_guard<std::mutex> lock(m_mutex);
    m_entries = std::move(entries);
  });
}

const GEN_INI_CONFIG_VARS::ENTRY* GEN_INI_CONFIG_VARS::find(const QString& name)
{
  load();
  // Entries never change after load(), so the pointer stays valid.
  const auto it = m_entries.constFind(name);
  return it == m_entries.constEnd() ? nullptr : &it.value();
}

void GEN_INI_CONFIG_VARS::warn_once(const QString& name, const QString& text)
{
  {
    std::lock_guard<std::mutex> lock(m_mutex);
    if (m_warned.contains(name))
      return;
    m_warned.insert(name);
  }
  gen_message_service().warning(text);
}

bool GEN_INI_CONFIG_VARS::get_bool(const QString& name, bool default_value)
{
  const ENTRY* entry = find(name);
  if (!entry)
    return default_value;
  bool ok = false;
  const bool value = gen_parse_bool(entry->value, &ok);
  if (ok)
    return value;
  warn_once(name, QStringLiteral("%1:%2: %3=%4 is not on or off; the default %5 is used")
                      .arg(QFileInfo(m_path).fileName())
                      .arg(entry->line)
                      .arg(name, entry->value.left(80),
                           default_value ? QStringLiteral("on") : QStringLiteral("off")));
  return default_value;
}

int GEN_INI_CONFIG_VARS::get_int(const QString& name, int default_value)
{
  const ENTRY* entry = find(name);
  if (!entry)
    return default_value;
  bool ok = false;
  const int value = entry->value.toInt(&ok, 0);  // decimal, 0x hex or 0 octal
  if (ok)
    return value;
  warn_once(name, QStringLiteral("%1:%2: %3=%4 is not an integer; the default %5 is used")
                      .arg(QFileInfo(m_path).fileName())
                      .arg(entry->line)
                      .arg(name, entry->value.left(80))
                      .arg(default_value));
  return default_value;
}

QString GEN_INI_CONFIG_VARS::get_string(const QString& name, const QString& default_value)
{
  const ENTRY* entry = find(name);
  return entry ? entry->value : default_value;
}

GEN_CONFIG_VARS& gen_config_vars()
{
  static GEN_INI_CONFIG_VARS default_service;
  GEN_CONFIG_VARS* service = g_service.load();
  return service ? *service : default_service;
}

void gen_set_config_vars(GEN_CONFIG_VARS* service)
{
  g_service.store(service);
}
