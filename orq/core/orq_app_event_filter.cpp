#include "orq_app_event_filter.h"

#include <QComboBox>
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QJsonDocument>
#include <QKeyEvent>
#include <QMetaEnum>
#include <QMouseEvent>
#include <QWheelEvent>

namespace {
QJsonObject point_json(const QPoint& p)
{
  return QJsonObject{{QStringLiteral("x"), p.x()}, {QStringLiteral("y"), p.y()}};
}

QJsonObject point_json(const QPointF& p)
{
  return QJsonObject{{QStringLiteral("x"), p.x()}, {QStringLiteral("y"), p.y()}};
}
}  // namespace

ORQ_APP_EVENT_FILTER::ORQ_APP_EVENT_FILTER(QObject* parent)
    : QObject(parent)
{
  m_logging = qEnvironmentVariableIsSet("VANTOR_EVENT_LOGGING");
  if (m_logging) {
    QString stamp = QDateTime::currentDateTime().toString(Qt::ISODate);
    stamp.replace(QLatin1Char(':'), QLatin1Char('-'));
    // Absolute, so that a tool changing its working directory keeps one log.
    m_log.setFileName(QDir::current().absoluteFilePath(QCoreApplication::applicationName()
                                                       + QStringLiteral("_event_log_") + stamp
                                                       + QStringLiteral(".json")));
    if (m_log.open(QIODevice::WriteOnly | QIODevice::Append)) {
      m_log.write("[");
      m_log.close();
    }
    m_start_ms = QDateTime::currentMSecsSinceEpoch();
  }
  m_logged_types = {QEvent::ApplicationStateChange,
                    QEvent::ContextMenu,
                    QEvent::KeyPress,
                    QEvent::KeyRelease,
                    QEvent::NonClientAreaMouseButtonDblClick,
                    QEvent::NonClientAreaMouseButtonPress,
                    QEvent::NonClientAreaMouseButtonRelease,
                    QEvent::NonClientAreaMouseMove,
                    QEvent::MouseButtonDblClick,
                    QEvent::MouseButtonPress,
                    QEvent::MouseButtonRelease,
                    QEvent::MouseMove,
                    QEvent::ShortcutOverride,
                    QEvent::Wheel};
}

ORQ_APP_EVENT_FILTER::~ORQ_APP_EVENT_FILTER()
{
  if (m_logging && m_log.open(QIODevice::WriteOnly | QIODevice::Append)) {
    m_log.write("]");
    m_log.close();
  }
}

bool ORQ_APP_EVENT_FILTER::is_logging() const
{
  return m_logging;
}

QString ORQ_APP_EVENT_FILTER::get_log_file_name() const
{
  return m_log.fileName();
}

bool ORQ_APP_EVENT_FILTER::eventFilter(QObject* watched, QEvent* event)
{
  // Every event of the process passes here: the common case must cost two
  // comparisons.
  if (m_logging && m_logged_types.contains(event->type()))
    log_event(watched, event);
  if (event->type() == QEvent::Wheel && qobject_cast<QComboBox*>(watched))
    return true;
  return QObject::eventFilter(watched, event);
}

void ORQ_APP_EVENT_FILTER::log_event(QObject* watched, QEvent* event)
{
  const QJsonObject record{
      {QStringLiteral("timedelta"), QDateTime::currentMSecsSinceEpoch() - m_start_ms},
      {QStringLiteral("event"), event_to_json(event)},
      {QStringLiteral("object"), object_to_json(watched)}};
  // A record that cannot be written is lost, but logging goes on: the next
  // one may well succeed (a full disk drains, a locked file is released).
  if (!m_log.open(QIODevice::WriteOnly | QIODevice::Append))
    return;
  if (!m_first_record)
    m_log.write(",");
  m_log.write(QJsonDocument(record).toJson());
  m_first_record = false;
  m_log.close();
}

QJsonObject ORQ_APP_EVENT_FILTER::event_to_json(const QEvent* event)
{
  static const QMetaEnum types =
      QEvent::staticMetaObject.enumerator(QEvent::staticMetaObject.indexOfEnumerator("Type"));
  QJsonObject json{{QStringLiteral("eventType"), int(event->type())},
                   {QStringLiteral("eventTypeString"), QString::fromLatin1(types.valueToKey(event->type()))}};
  if (const auto* input = dynamic_cast<const QInputEvent*>(event)) {
    json.insert(QStringLiteral("modifiers"), int(input->modifiers()));
    json.insert(QStringLiteral("timestamp"), double(input->timestamp()));
  }
  if (const auto* menu = dynamic_cast<const QContextMenuEvent*>(event)) {
    json.insert(QStringLiteral("globalPos"), point_json(menu->globalPos()));
    json.insert(QStringLiteral("pos"), point_json(menu->pos()));
    json.insert(QStringLiteral("reason"), int(menu->reason()));
  } else if (const auto* key = dynamic_cast<const QKeyEvent*>(event)) {
    json.insert(QStringLiteral("count"), key->count());
    json.insert(QStringLiteral("isAutoRepeat"), key->isAutoRepeat());
    json.insert(QStringLiteral("key"), key->key());
    json.insert(QStringLiteral("text"), key->text());
  } else if (const auto* mouse = dynamic_cast<const QMouseEvent*>(event)) {
    json.insert(QStringLiteral("globalPos"), point_json(mouse->globalPos()));
    json.insert(QStringLiteral("pos"), point_json(mouse->pos()));
    json.insert(QStringLiteral("localPos"), point_json(mouse->localPos()));
    json.insert(QStringLiteral("button"), int(mouse->button()));
    json.insert(QStringLiteral("buttons"), int(mouse->buttons()));
  } else if (const auto* wheel = dynamic_cast<const QWheelEvent*>(event)) {
    json.insert(QStringLiteral("globalPosF"), point_json(wheel->globalPosition()));
    json.insert(QStringLiteral("posf"), point_json(wheel->position()));
    json.insert(QStringLiteral("pixelDelta"), point_json(wheel->pixelDelta()));
    json.insert(QStringLiteral("angleDelta"), point_json(wheel->angleDelta()));
  }
  return json;
}

QJsonObject ORQ_APP_EVENT_FILTER::object_to_json(const QObject* object)
{
  QString name_path;
  QString class_path;
  for (const QObject* o = object; o; o = o->parent()) {
    name_path.prepend(QLatin1Char('/') + o->objectName());
    class_path.prepend(QLatin1Char('/') + QLatin1String(o->metaObject()->className()));
  }
  return QJsonObject{{QStringLiteral("objectName"), object ? object->objectName() : QString()},
                     {QStringLiteral("className"),
                      object ? QString::fromLatin1(object->metaObject()->className()) : QString()},
                     {QStringLiteral("objectNamePath"), name_path},
                     {QStringLiteral("classNamePath"), class_path}};
}
