#pragma once
// The per-user settings registry: keys (a path such as "Theme/Colors") holding
// named values. Kept in an INI file under the user's configuration directory,
// "$XDG_CONFIG_HOME/Vantor/vantor_settings.ini" (~/.config/Vantor/... by
// default). Numbered settings groups hold per-user booleans of the suite
// ("Groups/2" keeps the MDI tab choice, "Groups/59" the tool-bar icon size).
#include "gen_export.h"

#include <QString>
#include <QStringList>
#include <QVariant>

#include <memory>
#include <mutex>

class QSettings;

class GEN_EXPORT GEN_SETTINGS {
public:
  // An empty file name means the per-user default above.
  explicit GEN_SETTINGS(const QString& file_name = QString());
  virtual ~GEN_SETTINGS();
  GEN_SETTINGS(const GEN_SETTINGS&) = delete;
  GEN_SETTINGS& operator=(const GEN_SETTINGS&) = delete;

  virtual QVariant value(const QString& key, const QString& name,
                         const QVariant& default_value = QVariant()) const;
  virtual bool contains(const QString& key, const QString& name) const;
  virtual void set_value(const QString& key, const QString& name, const QVariant& value);
  virtual void remove(const QString& key, const QString& name);
  // Names of the values directly under key.
  virtual QStringList names(const QString& key) const;
  // Writes pending changes; false when the file cannot be written.
  virtual bool sync();

  // Per-user booleans of numbered settings groups. get_group_bool returns
  // false and leaves *value alone when nothing usable is stored.
  bool get_group_bool(int group, const QString& name, bool* value) const;
  void set_group_bool(int group, const QString& name, bool value);
  static QString group_key(int group);

  QString file_name() const;
  // Why the file could not be used, or empty.
  QString problem() const;
  static QString default_file_name();
  // Whether text is an INI file that the registry reads back without loss:
  // UTF-8, sections, name=value lines and comments only.
  static bool is_well_formed(const QByteArray& text);

private:
  // Reports a problem with the file; true when it is damaged and a copy was kept.
  bool check_file();

  mutable std::mutex m_mutex;
  QString m_file_name;
  QString m_problem;
  std::unique_ptr<QSettings> m_settings;
  // A file that cannot be read safely is never written: changes of this
  // session are kept here instead (a null value marks a removed name).
  bool m_read_only = false;
  QVariantMap m_session;
};

// The process's settings registry; null restores the default one.
GEN_EXPORT GEN_SETTINGS& gen_settings();
GEN_EXPORT void gen_set_settings(GEN_SETTINGS* service);
