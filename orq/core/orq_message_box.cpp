#include "orq_message_box.h"

#include <QApplication>

namespace {

QMessageBox::Icon icon_of(GEN_PROMPT_TYPE type)
{
  switch (type) {
  case GEN_PROMPT_TYPE::INFORMATION:
    return QMessageBox::Information;
  case GEN_PROMPT_TYPE::WARNING:
    return QMessageBox::Warning;
  case GEN_PROMPT_TYPE::ERROR:
    return QMessageBox::Critical;
  case GEN_PROMPT_TYPE::QUESTION:
    return QMessageBox::Question;
  }
  return QMessageBox::NoIcon;
}

QMessageBox::StandardButton first_of(QMessageBox::StandardButtons buttons)
{
  for (int bit = QMessageBox::FirstButton; bit <= QMessageBox::LastButton; bit <<= 1) {
    if (buttons & bit)
      return static_cast<QMessageBox::StandardButton>(bit);
  }
  return QMessageBox::NoButton;
}

} // namespace

QMessageBox::StandardButton orq_message_box(const QString& text, GEN_PROMPT_TYPE type, QWidget* parent,
                                            QMessageBox::StandardButtons buttons)
{
  if (gen_message_service().is_regression_test_mode() ||
      !qobject_cast<QApplication*>(QCoreApplication::instance()))
    return first_of(buttons);
  QString title = QGuiApplication::applicationDisplayName();
  if (title.isEmpty())
    title = QStringLiteral("Vantor");
  QMessageBox box(icon_of(type), title, text, buttons, parent ? parent : QApplication::activeWindow());
  box.setObjectName(QStringLiteral("orq_message_box"));
  box.setTextFormat(Qt::PlainText);
  return static_cast<QMessageBox::StandardButton>(box.exec());
}
