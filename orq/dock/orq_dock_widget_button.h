#pragma once
// The button an auto-hidden dock leaves in the button bar at the window's
// edge: a click slides the dock out, another slides it back.
#include "orq_export.h"

#include <QToolButton>

class ORQ_DOCK_WIDGET;

class ORQ_EXPORT ORQ_DOCK_WIDGET_BUTTON : public QToolButton {
  Q_OBJECT
public:
  ORQ_DOCK_WIDGET_BUTTON(ORQ_DOCK_WIDGET* dock, QWidget* parent = nullptr);
  ~ORQ_DOCK_WIDGET_BUTTON() override;

  void set_area(Qt::ToolBarArea area);
  Qt::ToolBarArea get_area() const;
  ORQ_DOCK_WIDGET* get_dock() const;

  QSize sizeHint() const override;

public slots:
  void on_clicked(bool checked);

protected:
  void paintEvent(QPaintEvent* event) override;

private:
  Qt::ToolBarArea m_area;
  ORQ_DOCK_WIDGET* m_dock;
};
