#pragma once
// The base of every tool's main window.
#include "orq_export.h"

#include <QMainWindow>

class ORQ_EXPORT ORQ_MAIN_WINDOW : public QMainWindow {
  Q_OBJECT
public:
  explicit ORQ_MAIN_WINDOW(QWidget* parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
  ~ORQ_MAIN_WINDOW() override;

signals:
  void update_actions();

public slots:
  // Context help for the widget that has the focus.
  void f1_help();
};
