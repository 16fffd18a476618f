#include "gen_settings.h"

#include "gen_message_service.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>
#include <QTextCodec>

#include <atomic>

namespace {
std::atomic<GEN_SETTINGS*> g_service{nullptr};

}  // namespace

// What QSettings' INI reader keeps: sections, name=value lines, comments. A
// file with anything else (binary junk, a truncated write) would be silently
// shortened on the next save, so such a file is copied aside first.
bool GEN_SETTINGS::is_well_formed(const QByteArray& data)
{
  if (data.contains('\0'))
    return false;
  QTextCodec::ConverterState state;
  QTextCodec::codecForName("UTF-8")->toUnicode(data.constData(), data.size(), &state);
  if (state.invalidChars > 0)
    return false;
  const QList<QByteArray> lines = data.split('\n');
  for (const QByteArray& raw : lines) {
    const QByteArray line = raw.trimmed();
    if (line.isEmpty() || line.startsWith(';') || line.startsWith('#'))
      continue;
    if (line.startsWith('[') && line.endsWith(']'))
      continue;
    if (line.indexOf('=') > 0)
      continue;
    return false;
  }
  return true;
}

GEN_SETTINGS::GEN_SETTINGS(const QString& file_name)
    : m_file_name(file_name.isEmpty() ? default_file_name() : file_name)
{
  const bool damaged = check_file();
  m_settings = std::make_unique<QSettings>(m_file_name, QSettings::IniFormat);
  m_settings->setIniCodec("UTF-8");
  if (damaged) {
    // QSettings keeps a read error for its whole life, and every later sync
    // would report it: start a clean file from the entries it could read.
    QVariantMap readable;
    const QStringList keys = m_settings->allKeys();
    for (const QString& key : keys)
      readable.insert(key, m_settings->value(key));
    m_settings.reset();
    QFile::remove(m_file_name);
    m_settings = std::make_unique<QSettings>(m_file_name, QSettings::IniFormat);
    m_settings->setIniCodec("UTF-8");
    for (auto it = readable.cbegin(); it != readable.cend(); ++it)
      m_settings->setValue(it.key(), it.value());
    m_settings->sync();
  }
  if (m_problem.isEmpty() && m_settings->status() != QSettings::NoError)
    m_problem = QStringLiteral("settings file %1 could not be read; defaults are used").arg(m_file_name);
  if (!m_problem.isEmpty())
    gen_message_service().warning(m_problem);
}

GEN_SETTINGS::~GEN_SETTINGS()
{
  if (m_settings && !m_read_only)
    m_settings->sync();
}

QString GEN_SETTINGS::default_file_name()
{
  const QString base = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
  return QDir(base).filePath(QStringLiteral("Vantor/vantor_settings.ini"));
}

bool GEN_SETTINGS::check_file()
{
  const QFileInfo info(m_file_name);
  if (!info.exists())
    return false;
  if (info.isDir()) {
    m_problem = QStringLiteral("settings file %1 is a directory; defaults are used and nothing is saved")
                    .arg(m_file_name);
    m_read_only = true;
    return false;
  }
  QFile file(m_file_name);
  if (!file.open(QIODevice::ReadOnly)) {
    m_problem = QStringLiteral("settings file %1 cannot be read (%2); defaults are used and nothing is saved")
                    .arg(m_file_name, file.errorString());
    m_read_only = true;
    return false;
  }
  // Settings files are small; a huge one is damaged, and is not read whole.
  const QByteArray data = file.read(8 * 1024 * 1024 + 1);
  if (data.size() <= 8 * 1024 * 1024 && is_well_formed(data))
    return false;
  file.close();
  const QString copy = m_file_name + QStringLiteral(".damaged-")
                       + QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
  if (!QFile::copy(m_file_name, copy)) {
    m_problem = QStringLiteral("settings file %1 is damaged and could not be copied aside; it is "
                               "left untouched and nothing is saved")
                    .arg(m_file_name);
    m_read_only = true;
    return false;
  }
  m_problem = QStringLiteral("settings file %1 is damaged; a copy was kept as %2 and the readable "
                             "entries are used")
                  .arg(m_file_name, copy);
  // Without a safe copy the file is left exactly as it is.
  return QFile::exists(copy);
}

QVariant GEN_SETTINGS::value(const QString& key, const QString& name, const QVariant& default_value) const
{
  std::lock_guard<std::mutex> lock(m_mutex);
  const QString path = key + QLatin1Char('/') + name;
  if (m_read_only && m_session.contains(path)) {
    const QVariant value = m_session.value(path);
    return value.isNull() ? default_value : value;
  }
  return m_settings->value(path, default_value);
}

bool GEN_SETTINGS::contains(const QString& key, const QString& name) const
{
  std::lock_guard<std::mutex> lock(m_mutex);
  const QString path = key + QLatin1Char('/') + name;
  if (m_read_only && m_session.contains(path))
    return !m_session.value(path).isNull();
  return m_settings->contains(path);
}

void GEN_SETTINGS::set_value(const QString& key, const QString& name, const QVariant& value)
{
  std::lock_guard<std::mutex> lock(m_mutex);
  if (m_read_only)
    m_session.insert(key + QLatin1Char('/') + name, value.isNull() ? QVariant(QString()) : value);
  else
    m_settings->setValue(key + QLatin1Char('/') + name, value);
}

void GEN_SETTINGS::remove(const QString& key, const QString& name)
{
  std::lock_guard<std::mutex> lock(m_mutex);
  if (m_read_only)
    m_session.insert(key + QLatin1Char('/') + name, QVariant());
  else
    m_settings->remove(key + QLatin1Char('/') + name);
}

QStringList GEN_SETTINGS::names(const QString& key) const
{
  std::lock_guard<std::mutex> lock(m_mutex);
  m_settings->beginGroup(key);
  QStringList keys = m_settings->childKeys();
  m_settings->endGroup();
  const QString prefix = key + QLatin1Char('/');
  for (auto it = m_session.cbegin(); it != m_session.cend(); ++it) {
    if (!it.key().startsWith(prefix) || it.key().indexOf(QLatin1Char('/'), prefix.size()) >= 0)
      continue;
    const QString name = it.key().mid(prefix.size());
    keys.removeAll(name);
    if (!it.value().isNull())
      keys.append(name);
  }
  return keys;
}

bool GEN_SETTINGS::sync()
{
  std::lock_guard<std::mutex> lock(m_mutex);
  if (m_read_only)
    return false;
  QDir().mkpath(QFileInfo(m_file_name).absolutePath());
  m_settings->sync();
  return m_settings->status() == QSettings::NoError;
}

QString GEN_SETTINGS::group_key(int group)
{
  return QStringLiteral("Groups/%1").arg(group);
}

bool GEN_SETTINGS::get_group_bool(int group, const QString& name, bool* value) const
{
  const QVariant stored = this->value(group_key(group), name);
  if (!stored.isValid())
    return false;
  bool ok = false;
  const QString text = stored.toString().trimmed().toLower();
  const bool parsed = text == QLatin1String("true") || text == QLatin1String("1");
  ok = parsed || text == QLatin1String("false") || text == QLatin1String("0");
  if (!ok)
    return false;  // a damaged value counts as none stored
  *value = parsed;
  return true;
}

void GEN_SETTINGS::set_group_bool(int group, const QString& name, bool value)
{
  set_value(group_key(group), name, value);
}

QString GEN_SETTINGS::file_name() const
{
  return m_file_name;
}

QString GEN_SETTINGS::problem() const
{
  std::lock_guard<std::mutex> lock(m_mutex);
  return m_problem;
}

GEN_SETTINGS& gen_settings()
{
  static GEN_SETTINGS default_service;
  GEN_SETTINGS* service = g_service.load();
  return service ? *service : default_service;
}

void gen_set_settings(GEN_SETTINGS* service)
{
  g_service.store(service);
}
