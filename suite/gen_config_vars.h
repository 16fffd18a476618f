#pragma once
// Configuration variables: behaviour switches by name, on/off or integer,
// each with the default the caller gives. The default service reads a file of
// "name=value" lines once, on first use: the file named by VANTOR_INI, else
// vantor.ini in the working directory. A missing file means every default.
#include "gen_export.h"

#include <QHash>
#include <QSet>
#include <QString>

#include <functional>
#include <mutex>

class GEN_EXPORT GEN_CONFIG_VARS {
public:
  virtual ~GEN_CONFIG_VARS();
  virtual bool get_bool(const QString& name, bool default_value) = 0;
  virtual int get_int(const QString& name, int default_value) = 0;
  virtual QString get_string(const QString& name, const QString& default_value) = 0;
};

// The file-backed service. Thread-safe; the file is read once, on first use.
// Malformed lines and values produce one warning each through the message
// service, naming the file and line, and the caller's default is used.
class GEN_EXPORT GEN_INI_CONFIG_VARS : public GEN_CONFIG_VARS {
public:
  // An empty path means VANTOR_INI, else "vantor.ini" in the working directory.
  explicit GEN_INI_CONFIG_VARS(const QString& path = QString());

  bool get_bool(const QString& name, bool default_value) override;
  int get_int(const QString& name, int default_value) override;
  QString get_string(const QString& name, const QString& default_value) override;

  // The file this service reads (resolved at construction).
  QString path() const;

  struct ENTRY {
    QString value;
    int line = 0;
  };
  // Parses the text of a configuration file; warn is called once for each
  // line that is not name=value, naming shown_name and the line.
  static QHash<QString, ENTRY> parse(const QByteArray& text, const QString& shown_name,
                                     const std::function<void(const QString&)>& warn);

private:
  void load();
  const ENTRY* find(const QString& name);
  void warn_once(const QString& name, const QString& text);

  QString m_path;
  std::once_flag m_loaded;
  std::mutex m_mutex;
  QHash<QString, ENTRY> m_entries;
  QSet<QString> m_warned;
};

// Parses an on/off value: 1/0, on/off, true/false, yes/no in any case.
GEN_EXPORT bool gen_parse_bool(const QString& text, bool* ok);

// The process's configuration-variable service; null restores the default.
GEN_EXPORT GEN_CONFIG_VARS& gen_config_vars();
GEN_EXPORT void gen_set_config_vars(GEN_CONFIG_VARS* service);
