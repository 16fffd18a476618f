#pragma once
// Draws a floor plan scaled to fit the widget.
#include "floorplan_model.h"

#include <QWidget>

class FLOORPLAN_WIDGET : public QWidget {
  Q_OBJECT
public:
  explicit FLOORPLAN_WIDGET(QWidget* parent = nullptr);
  void set_floorplan(const FLOORPLAN& plan);
  QSize sizeHint() const override;
  const FLOORPLAN& floorplan() const { return m_plan; }

public slots:
  void set_show_pads(bool show);
  void set_show_block_names(bool show);

signals:
  void block_hovered(const QString& text);

protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

private:
  QTransform logical_to_widget() const;

  FLOORPLAN m_plan;
  bool m_show_pads = true;
  bool m_show_block_names = true;
};
