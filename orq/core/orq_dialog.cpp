#include "orq_dialog.h"

#include "gen_help.h"

#include <QKeyEvent>

ORQ_DIALOG::ORQ_DIALOG(QWidget* parent, Qt::WindowFlags flags)
    : QDialog(parent, flags)
{
  // F1 is the way to help; the title-bar "?" button would be a second one
  // that does something else.
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);
}

ORQ_DIALOG::~ORQ_DIALOG() = default;

void ORQ_DIALOG::set_help_topic(const QString& topic)
{
  m_help_topic = topic;
}

QString ORQ_DIALOG::get_help_topic() const
{
  if (!m_help_topic.isEmpty())
    return m_help_topic;
  if (!objectName().isEmpty())
    return objectName();
  return QString::fromLatin1(metaObject()->className());
}

void ORQ_DIALOG::f1_help()
{
  gen_help().show_help(this, get_help_topic());
}

void ORQ_DIALOG::keyPressEvent(QKeyEvent* event)
{
  if (event->key() == Qt::Key_F1 && event->modifiers() == Qt::NoModifier) {
    f1_help();
    event->accept();
    return;
  }
  QDialog::keyPressEvent(event);
}
