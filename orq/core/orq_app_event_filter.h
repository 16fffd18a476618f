#pragma once
// The application-wide event filter: keeps mouse-wheel turns off combo boxes
// (a wheel over a form must scroll the form, not change a choice), and with
// VANTOR_EVENT_LOGGING set, logs every input event of the process as one JSON
// array in "<application>_event_log_<date-time>.json" in the working directory.
#include "orq_export.h"

#include <QFile>
#include <QJsonObject>
#include <QObject>
#include <QSet>

class QEvent;

class ORQ_EXPORT ORQ_APP_EVENT_FILTER : public QObject {
  Q_OBJECT
public:
  explicit ORQ_APP_EVENT_FILTER(QObject* parent);
  ~ORQ_APP_EVENT_FILTER() override;

  bool eventFilter(QObject* watched, QEvent* event) override;

  bool is_logging() const;
  QString get_log_file_name() const;

  // The record parts, as they are written to the log.
  static QJsonObject event_to_json(const QEvent* event);
  static QJsonObject object_to_json(const QObject* object);

private:
  void log_event(QObject* watched, QEvent* event);

  QSet<int> m_logged_types;
  bool m_logging = false;
  QFile m_log;
  bool m_first_record = true;
  qint64 m_start_ms = 0;
};
