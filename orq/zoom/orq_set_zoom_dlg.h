#pragma once
// The small modal dialog behind the set zoom action: pick or type a
// magnification in per cent, or "Fit in Window".
#include "orq_dialog.h"
#include "orq_export.h"

class QComboBox;

class ORQ_EXPORT ORQ_SET_ZOOM_DLG : public ORQ_DIALOG {
  Q_OBJECT
public:
  // min and max in per cent of the zoom the user sees.
  ORQ_SET_ZOOM_DLG(float min, float max, QWidget* parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
  ~ORQ_SET_ZOOM_DLG() override;

  QString get_current_text() const;
  // The chosen magnification in per cent, within the bounds; 100 for text
  // that is no number.
  float get_selected_zoom() const;
  // Makes zoom (1.0 for 100 %) the current item, appending it when the
  // list has no such item.
  void select_current_zoom(float zoom);
  QComboBox* get_combo_box() const;

  static QString fit_in_window_text();

private:
  QComboBox* m_combo_box;
  float m_min;
  float m_max;
};
