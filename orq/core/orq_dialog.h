#pragma once
// The dialog base class of the library: F1 asks the suite's help service for
// the dialog's help topic (its own, else its object name, else its class).
#include "orq_export.h"

#include <QDialog>
#include <QString>

class ORQ_EXPORT ORQ_DIALOG : public QDialog {
  Q_OBJECT
public:
  explicit ORQ_DIALOG(QWidget* parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
  ~ORQ_DIALOG() override;

  void set_help_topic(const QString& topic);
  QString get_help_topic() const;

public slots:
  virtual void f1_help();

protected:
  void keyPressEvent(QKeyEvent* event) override;

private:
  QString m_help_topic;
};
